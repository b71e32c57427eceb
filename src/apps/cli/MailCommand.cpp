#include "apps/cli/MailCommand.h"

#include <filesystem>
#include <memory>
#include <optional>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/MailServerOptions.h"
#include "apps/cli/Output.h"
#include "apps/cli/Refusal.h"
#include "apps/cli/Usage.h"
#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "core/state/SystemInfo.h"
#include "delivery/mail/EventMail.h"
#include "delivery/mail/MailText.h"

namespace tavrin::cli {

namespace {

struct MailOptions {
    OutgoingMail mail;
    MailServerOptions server;
    std::string phone;
    bool noOutbox = false, location = false;
    int patience = 30;
};

/// The address that the number of a telephone has at the gateway for text messages.
Refusal takePhone(SystemInfo& info, MailOptions& options) {
    if (options.phone.empty()) return {};
    if (!options.mail.to.empty()) return {kUsage, "--to and --phone do not go together."};
    if (!eventModeSaveAndText(info, options.phone)) return {kUsage, ""};  // the alert has told
    if (!chooseCarrier(info, carriers().front(), readDeliveryConf())) return {kFailed, ""};
    options.mail.to = info.sEventEmail;
    return {};
}

Refusal check(const MailOptions& options) {
    const OutgoingMail& mail = options.mail;
    if (mail.to.empty()) return {kUsage, "--to or --phone is missing."};
    for (const auto& [option, address] : {std::pair{"--to", mail.to}, std::pair{"--from", mail.from}}) {
        if (address.empty()) continue;
        std::string problem = whyUnsafe(address);
        if (problem.empty() && !isAddress(address)) problem = "\"" + address + "\" is no mail address";
        if (!problem.empty()) return {kUsage, std::string(option) + ": " + problem + "."};
    }
    if (mail.server && mail.from.empty() && !isAddress(mail.server->account))
        return {kUsage, "--from is missing: a mail needs a sender."};
    std::error_code none;
    if (!mail.attachment.empty() && !std::filesystem::is_regular_file(mail.attachment, none))
        return {kUsage, "--attach " + mail.attachment + ": there is no such file."};
    return {};
}

void tellPosted(const std::string& what, const Posted& posted) {
    if (posted.isSent()) {
        if (!isQuiet()) printLine(what + ": sent");
    } else {
        const bool unknown = posted.end == MailEnd::unknown;
        const std::string where = !posted.inOutbox ? "it is not kept"
                                  : unknown        ? "it is kept in the outbox and not sent again by itself"
                                                   : "it is kept in the outbox";
        complain(what + ": " + (unknown ? "may have gone; " : "not sent; ") + where + ".");
    }
}

MailWatch watchOf(const MailOptions& options) {
    MailWatch watch;
    watch.patience = std::chrono::seconds(options.patience);
    return watch;
}

int sendOne(MailOptions options) {
    const auto info = std::make_unique<SystemInfo>();
    loadServerSettings(*info->oQLXInfo);
    Refusal refusal = readMailServer(options.server, options.mail.server);
    if (refusal.code == kDone) refusal = takePhone(*info, options);
    if (refusal.code == kDone) refusal = check(options);
    if (refusal.code != kDone) {
        if (!refusal.line.empty()) complain(refusal.line);
        return refusal.code;
    }
    const DeliveryConf conf = readDeliveryConf();
    if (!conf.problem.empty()) warn(conf.problem);
    const MailRoute route = routeOf(*info->oQLXInfo, conf);
    if (options.mail.server && options.mail.from.empty()) options.mail.from = options.mail.server->account;
    options.mail.keepLocation = options.location;
    const Outbox outbox;
    const Posted posted = post(options.mail, route, options.noOutbox ? nullptr : &outbox, watchOf(options));
    tellPosted(options.mail.to, posted);
    return posted.isSent() ? kDone : kFailed;
}

const char* wordOf(OutboxEntry::State state) {
    switch (state) {
        case OutboxEntry::State::waiting:
            return "waiting";
        case OutboxEntry::State::held:
            return "held";
        case OutboxEntry::State::maybeGone:
            return "may have gone";
        default:
            return "under way";
    }
}

int listOutbox(bool json) {
    QJsonArray list;
    for (const OutboxEntry& entry : Outbox().entries()) {
        list.append(QJsonObject{{"id", textOfName(entry.id)},
                                {"to", textOfName(entry.mail.to)},
                                {"subject", textOfName(entry.mail.subject)},
                                {"attachment", textOfName(entry.mail.attachmentName)},
                                {"state", wordOf(entry.state)},
                                {"tries", entry.tries},
                                {"created", entry.created.toString(Qt::ISODate)},
                                {"next_try", entry.nextTry.toString(Qt::ISODate)},
                                {"reason", textOfName(entry.reason)}});
        if (!json)
            printLine(entry.id + "  " + wordOf(entry.state) + "  " + entry.mail.to + "  " + entry.mail.subject +
                      "  " + entry.reason);
    }
    if (json) printJson(QJsonDocument(list), false);
    return kDone;
}

/// Those that were asked for, or all that may go: none that may have gone already.
std::vector<std::string> chosen(const std::vector<std::string>& ids) {
    if (!ids.empty()) return ids;
    std::vector<std::string> all;
    for (const OutboxEntry& entry : Outbox().entries())
        if (entry.state == OutboxEntry::State::waiting || entry.state == OutboxEntry::State::held)
            all.push_back(entry.id);
    return all;
}

int sendOutbox(const std::vector<std::string>& ids, int patience) {
    QLXInfo settings;
    loadServerSettings(settings);
    const MailRoute route = routeOf(settings, readDeliveryConf());
    MailWatch watch;
    watch.patience = std::chrono::seconds(patience);
    bool all = true;
    for (const std::string& id : chosen(ids)) {
        std::optional<OutboxClaim> claim = Outbox().claim(id);
        if (!claim) {
            complain(id + ": there is no such mail in the outbox, or another program is sending it.");
            all = false;
            continue;
        }
        const Posted posted = postAgain(std::move(*claim), route, watch);
        tellPosted(id, posted);
        all = all && posted.isSent();
    }
    return all ? kDone : kFailed;
}

int discardFromOutbox(const std::vector<std::string>& ids) {
    bool all = true;
    for (const std::string& id : ids) {
        if (Outbox().discard(id)) continue;
        complain(id + ": there is no such mail in the outbox, or another program is sending it.");
        all = false;
    }
    return all ? kDone : kFailed;
}

void addOutboxCommand(CLI::App& app, int& result) {
    CLI::App* outbox = app.add_subcommand("outbox", "Mails that could not be sent");
    outbox->require_subcommand(1);
    const auto json = std::make_shared<bool>(false);
    const auto ids = std::make_shared<std::vector<std::string>>();
    const auto patience = std::make_shared<int>(30);
    CLI::App* list = outbox->add_subcommand("list", "List them, with the reasons");
    list->add_flag("--json", *json, "Print them as JSON");
    list->callback([json, &result] { result = listOutbox(*json); });
    CLI::App* send = outbox->add_subcommand("send", "Send these now, or all but those that may have gone");
    send->add_option("ids", *ids, "As \"list\" names them")->type_name("ID");
    send->add_option("--patience", *patience, "Seconds that a server may keep silent (default 30)")
        ->check(within(1, 3600));
    send->footer("\nExit codes: 0 all were sent, 1 some were not.");
    send->callback([ids, patience, &result] { result = sendOutbox(*ids, *patience); });
    CLI::App* discard = outbox->add_subcommand("discard", "Remove these without sending them");
    discard->add_option("ids", *ids, "As \"list\" names them")->required()->type_name("ID");
    discard->callback([ids, &result] { result = discardFromOutbox(*ids); });
}

}  // namespace

void addMailCommands(CLI::App& app, int& result) {
    const auto options = std::make_shared<MailOptions>();
    OutgoingMail& mail = options->mail;
    CLI::App* command = app.add_subcommand("mail", "Send a finished picture by mail or as a text message");
    command->add_option("--to", mail.to, "Address of the recipient")->type_name("ADDRESS");
    command->add_option("--phone", options->phone, "Telephone number of ten digits: a text message by the gateway")
        ->type_name("NUMBER");
    command->add_option("--subject", mail.subject, "Subject")->type_name("TEXT");
    command->add_option("--body", mail.body, "Text of the mail")->type_name("TEXT");
    command->add_option("--attach", mail.attachment, "File to attach")->type_name("FILE");
    addMailServerOptions(*command, options->server);
    command->add_option("--from", mail.from, "Address of the sender (default: the server's account)")
        ->type_name("ADDRESS");
    command->add_flag("--location", options->location,
                      "Leave the place on earth, as the camera noted it, in the picture");
    command->add_flag("--no-outbox", options->noOutbox, "Do not keep a mail that cannot be sent");
    command->add_option("--patience", options->patience, "Seconds that a server may keep silent (default 30)")
        ->check(within(1, 3600));
    command->footer(
        "\nExamples:\n  tavrin-cli mail --to anna@example.org --subject \"Your picture\" --attach "
        "done/anna_beach.jpg\n"
        "  tavrin-cli mail --server smtp://mail.example.org:587 --starttls --account studio@example.org\n"
        "      --password-file secret --to anna@example.org --subject Hello --body \"Here it is\" --attach "
        "anna.jpg\n\n"
        "A mail that cannot be sent now is kept in the outbox: tavrin-cli outbox.\n"
        "Exit codes: 0 sent once, 1 not sent and kept in the outbox, or perhaps sent and kept there, 2 wrong usage.");
    command->callback([options, &result] { result = sendOne(*options); });
    addOutboxCommand(app, result);
}

}  // namespace tavrin::cli
