// What a script does at a booth: press, put broken tickets back, read and set the counts.
#include <fstream>
#include <memory>

#include "apps/cli/BoothCommand.h"
#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/PictureOptions.h"
#include "apps/cli/Usage.h"
#include "booth/BrokenTickets.h"
#include "booth/EventCounts.h"
#include "booth/Ticket.h"
#include "core/files/AtomicFile.h"
#include "core/state/NamedFiles.h"
#include "delivery/mail/EventMail.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

struct PressOptions {
    std::string output, portrait, background, state, mail, phone;
    PictureOptions picture;
    int prints = 0;
};

Refusal takeAim(SystemInfo& info, const PressOptions& options) {
    if ((options.prints > 0) + !options.mail.empty() + !options.phone.empty() > 1)
        return {kUsage, "--print, --mail and --phone do not go together."};
    info.sEventEmail = options.mail;
    info.iEventSaveMode = options.prints > 0     ? kEventSaveAndPrint
                          : options.mail.empty() ? kEventSave
                                                 : kEventSaveAndMail;
    info.iEventPrintCount = std::max(options.prints, 1);
    if (!options.mail.empty() && options.mail.find('@') == std::string::npos)
        return {kUsage, "Bad Email Address: No @ found in email address."};
    if (options.phone.empty()) return {};
    if (!eventModeSaveAndText(info, options.phone)) return {kUsage, ""};  // the alert has told
    return chooseCarrier(info, carriers().front(), readDeliveryConf()) ? Refusal{} : Refusal{kFailed, ""};
}

Refusal makePress(const PressOptions& options, Press& press) {
    const auto info = std::make_unique<SystemInfo>();
    const DeliveryConf conf = readDeliveryConf();
    if (Refusal refusal = takeAim(*info, options); refusal.code != kDone) return refusal;
    const EventSettings aim = *info;
    startCommandLine(*info);
    const LoadedState loaded =
        options.state.empty() ? startSettings(*info, options.picture.start) : loadState(*info, options.state);
    if (!loaded.problem.empty()) return {kFailed, loaded.problem};
    static_cast<EventSettings&>(*info) = aim;
    if (!options.portrait.empty()) setForeground(*info, options.portrait);
    if (!options.background.empty()) setBackground(*info, options.background);
    if (Refusal refusal = applyPictureOptions(*info, options.picture, loaded); refusal.code != kDone) return refusal;
    if (const std::string problem = useChosenSize(*info); !problem.empty()) return {kUsage, problem};
    useFullPaths(*info);
    press = writeTicket(*info, options.output);
    return press.isDone() ? Refusal{} : Refusal{kFailed, press.problem};
}

int pressButton(const PressOptions& options) {
    Press press;
    const Refusal refusal = makePress(options, press);
    if (!refusal.line.empty()) complain(refusal.line);
    if (refusal.code == kDone) printLine(press.ticket);
    return refusal.code;
}

int retry(const std::string& output) {
    const int back = putTicketsBack(BoothFolder(output));
    if (!isQuiet()) printLine(std::to_string(back) + (back == 1 ? " ticket" : " tickets") + " put back");
    return kDone;
}

int tellCounts(const std::string& output, const std::string& file) {
    const std::string text = EventCounts(output, "").csv();
    if (file.empty()) {
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find('\n', at);
            printLine(text.substr(at, end - at));
            at = end + 1;
        }
        return kDone;
    }
    AtomicFile csv(file);
    csv.write(text.data(), text.size());
    if (csv.commit()) return kDone;
    complain(file + " cannot be written: " + csv.error() + ".");
    return kFailed;
}

void addPress(CLI::App& booth, int& result) {
    const auto options = std::make_shared<PressOptions>();
    CLI::App* press = booth.add_subcommand("press", "Write a ticket, as a press of the booth's buttons does");
    press->add_option("--output", options->output, "Folder of the tickets")->required()->type_name("FOLDER");
    press->add_option("--portrait", options->portrait, "Portrait in front of the screen")->type_name("FILE");
    press->add_option("--background", options->background, "Background picture")->type_name("FILE");
    press->add_option("--state", options->state, "Take all settings from a .qlx file first")->type_name("FILE");
    press->add_option("--print", options->prints, "Print it, so many times")->check(within(1, 10));
    press->add_option("--mail", options->mail, "Mail it to this address")->type_name("ADDRESS");
    press->add_option("--phone", options->phone, "Send it to this number as a text message")->type_name("NUMBER");
    addPictureOptions(*press, options->picture);
    press->get_option("--my-defaults")->excludes("--state");
    press->get_option("--recipe")->excludes("--state");
    press->callback([options, &result] { result = pressButton(*options); });
}

}  // namespace

void addBoothHelpers(CLI::App& booth, int& result) {
    addPress(booth, result);
    const auto output = std::make_shared<std::string>();
    const auto file = std::make_shared<std::string>();
    const auto prints = std::make_shared<int>(-1);
    const auto add = [&booth, output](const char* name, const char* about) {
        CLI::App* command = booth.add_subcommand(name, about);
        command->add_option("--output", *output, "Folder of the tickets")->required()->type_name("FOLDER");
        return command;
    };
    add("retry", "Put the tickets that were set aside back to the others")->callback([output, &result] {
        result = retry(*output);
    });
    CLI::App* counts = add("counts", "What was made, printed and mailed on each day");
    counts->add_option("--csv", *file, "Write it to a file")->type_name("FILE");
    counts->callback([output, file, &result] { result = tellCounts(*output, *file); });
    CLI::App* refill = add("refill", "Count the prints that are left from a new pack");
    refill->add_option("--prints", *prints, "That the pack has; -1 counts no longer")->required();
    refill->callback([output, prints, &result] {
        EventCounts(*output, "refill").refill(*prints);
        result = kDone;
    });
}

}  // namespace tavrin::cli
