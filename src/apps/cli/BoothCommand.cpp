#include "apps/cli/BoothCommand.h"

#include <cstdlib>
#include <memory>
#include <mutex>

#include "apps/cli/BoothConsole.h"
#include "apps/cli/Console.h"
#include "apps/cli/MailServerOptions.h"
#include "apps/cli/Output.h"
#include "apps/cli/PrinterOptions.h"
#include "apps/cli/Usage.h"
#include "core/Interruption.h"
#include "core/NearestName.h"
#include "core/raster/PixelMemory.h"
#include "delivery/mail/Outbox.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

struct BoothOptions {
    std::string output, printer, page, paper, fit = "stretch", mailTitle, mailText, from;
    std::string queue = PrintQueue::usualFolder(), outbox = Outbox::usualFolder();  // before the places may change
    MailServerOptions server;
    int limit = 120;
    bool once = false, json = false, location = false;
};

/// What the account has set up for its events, and what the command line says otherwise.
Refusal takeSettings(const BoothOptions& options, EventSetup& setup) {
    loadServerSettings(setup.settings);
    setup.delivery = readDeliveryConf();
    if (!setup.delivery.problem.empty()) warn(setup.delivery.problem);
    QLXInfo& settings = setup.settings;
    if (!options.printer.empty()) settings.sEventModePrinterName = options.printer;
    if (options.printer == "default") settings.sEventModePrinterName = "";
    if (!options.page.empty()) settings.sEventModeSelectedTemplate = options.page;
    if (!options.mailTitle.empty()) settings.sEventModeEmailTitle = options.mailTitle;
    if (!options.mailText.empty()) settings.sEventModeEmailBody = options.mailText;
    std::optional<MailServer> server;
    if (Refusal refusal = readMailServer(options.server, server); refusal.code != kDone) return refusal;
    if (!server) return options.from.empty() ? Refusal{} : Refusal{kUsage, "--from goes with --server."};
    settings.bDefaultSMTPServer = false;
    settings.sSMTPHost = server->host;
    settings.sSMTPort = std::to_string(server->port);
    settings.sSMTPAccountName = server->account;
    settings.sSMTPAccoutPassword = server->password;
    settings.bSMTPSSL = server->ssl;
    settings.bSMTPTSL = server->startTls;
    setup.delivery.relayAccount = options.from;
    setup.delivery.checkCertificates = server->checksCertificate;
    setup.delivery.caFile = server->caFile;
    return {};
}

/// The page by its title; that of the settings may have gone since.
Refusal takePage(const SystemInfo& info, const BoothOptions& options, EventSetup& setup) {
    const std::string title = setup.settings.sEventModeSelectedTemplate;
    std::vector<std::string> titles;
    for (const PrinterPage& page : info.oPrinterPages)
        titles.push_back(page.sPageTitle);
    const auto found = std::ranges::find(titles, title);
    setup.settings.iEventModeSelectedTemplate =
        found == titles.end() ? -1 : static_cast<std::int32_t>(found - titles.begin());
    if (found != titles.end() || options.page.empty()) return {};
    const std::string nearest = nearestName(title, titles);
    return {kUsage, "There is no print page \"" + title + "\"" +
                        (nearest.empty() ? "." : "; did you mean \"" + nearest + "\"?")};
}

Refusal takeLook(const BoothOptions& options, EventSetup& setup) {
    PrinterOptions look;
    look.fit = options.fit;
    setup.look = look.look();
    setup.paper = options.paper;
    if (!options.paper.empty() && !paperOf(options.paper))
        return {kUsage, "There is no paper \"" + options.paper +
                            "\"; it is a name such as A4 or Letter, or a size such as 4x6 (inches) or 10x15cm."};
    return {};
}

/// What a signal stops, as long as there is something.
class Stopping {
  public:
    explicit Stopping(EventWorker& worker) {
        set(&worker);
        Interruption::stopFirst([] {
            const std::lock_guard lock(mutex_);
            if (worker_) worker_->stop();
        });
    }
    ~Stopping() { set(nullptr); }
    Stopping(const Stopping&) = delete;
    Stopping& operator=(const Stopping&) = delete;

  private:
    static void set(EventWorker* worker) {
        const std::lock_guard lock(mutex_);
        worker_ = worker;
    }
    static inline std::mutex mutex_;
    static inline EventWorker* worker_ = nullptr;
};

int refuse(const Refusal& refusal) {
    complain(refusal.line);
    return refusal.code;
}

int runBooth(const BoothOptions& options) {
    if (options.output.empty()) return refuse({kUsage, "--output is missing: the folder with the tickets."});
    keepPixelMemory(std::size_t{1} << 29U);
    EventSetup setup;
    setup.outputFolder = options.output;
    setup.once = options.once;
    setup.keepsLocation = options.location;
    setup.jobLimit = std::chrono::seconds(options.limit);
    setup.printQueue = options.queue;
    setup.outbox = options.outbox;
    if (const Refusal refusal = takeSettings(options, setup); refusal.code != kDone) return refuse(refusal);
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    for (const Refusal& refusal : {takePage(*info, options, setup), takeLook(options, setup)}) {
        if (refusal.code != kDone) return refuse(refusal);
    }
    BoothConsole console({options.json || !Console::isTerminal(stdout), options.json}, options.output);
    EventWorker worker(*info, console);
    if (const std::string problem = worker.start(std::move(setup)); !problem.empty())
        return refuse({kUsage, problem});
    const Stopping stopping(worker);
    console.waitForEnd();
    const EventSigns signs = worker.signs();
    console.summarize(signs);
    flushOutput();
    // A thread that the system keeps in a call would use what the end of the program takes down.
    if (signs.hanging > 0) std::_Exit(kFailed);
    const bool isLeft = options.once && (signs.jobsWaiting > 0 || !signs.trouble.empty());
    return console.failed() == 0 && !isLeft ? kDone : kFailed;
}

constexpr const char* kBoothExamples = R"(
Examples:
  tavrin-cli booth --output event --printer studio --page "4x6 Vert"
  tavrin-cli booth --output event --once
  tavrin-cli booth press --output event --portrait in/anna.jpg --background beach.jpg --print 2
  tavrin-cli booth counts --output event --csv evening.csv

A ticket is a state file in the folder; one without a photo of the same stem beside it is made, printed and mailed as
it says itself. Several booths, on one machine or on many, may share a folder: each ticket is done once. A ticket that
cannot be made goes to the folder Broken in it, with the reason beside it; "booth retry" puts these back. Ctrl-C
finishes the picture in hand, a second one stops at once. What is printed and sent waits in the printer's queue and in
the outbox of the account while it cannot go.
Exit codes: 0 all done, 1 some failed or (with --once) are left, 2 wrong usage.)";

}  // namespace

void addBoothCommand(CLI::App& app, int& result) {
    const auto options = std::make_shared<BoothOptions>();
    CLI::App* command = app.add_subcommand("booth", "Make the pictures of a photo booth's tickets");
    command->require_subcommand(0, 1);
    command->add_option("--output", options->output, "Folder of the tickets, and of their photos")
        ->type_name("FOLDER");
    command
        ->add_option("--printer", options->printer,
                     "Printer for what is to be printed (default: the one of the event's settings); \"default\" is "
                     "the usual one")
        ->type_name("NAME");
    command->add_option("--page", options->page, "Print page by its title (see tavrin-cli pages)")
        ->type_name("TITLE");
    command->add_option("--paper", options->paper, "Paper: A4, Letter, 4x6, 10x15cm ... (default: the printer's)")
        ->type_name("NAME");
    command->add_option("--fit", options->fit, "How a picture fills a slot: stretch (default), fill (cut) or whole")
        ->check(oneOf({"stretch", "fill", "whole"}))
        ->type_name("NAME");
    command->add_option("--mail-title", options->mailTitle, "Subject of the mails (default: that of the settings)")
        ->type_name("TEXT");
    command->add_option("--mail-text", options->mailText, "Text of the mails")->type_name("TEXT");
    addMailServerOptions(*command, options->server);
    command->add_option("--from", options->from, "With --server: address of the sender")->type_name("ADDRESS");
    command->add_flag("--location", options->location,
                      "Leave the place on earth, as the camera noted it, in mailed pictures");
    command->add_option("--limit", options->limit, "Seconds after which a picture is given up (default 120)")
        ->check(within(1, 86400));
    command->add_flag("--once", options->once, "End when no ticket is left");
    command->add_flag("--json", options->json, "One JSON line an event, also on a terminal");
    command->footer(kBoothExamples);
    addBoothHelpers(*command, result);
    command->callback([options, command, &result] {
        if (command->get_subcommands().empty()) result = runBooth(*options);
    });
}

}  // namespace tavrin::cli
