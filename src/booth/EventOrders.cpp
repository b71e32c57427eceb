#include "booth/EventOrders.h"

#include <filesystem>

#include <QSysInfo>

#include "booth/Ticket.h"
#include "core/state/SystemInfo.h"
#include "delivery/mail/Email.h"
#include "delivery/mail/MailText.h"
#include "delivery/print/PrintMe.h"
#include "folders/FileFacts.h"
#include "session/StartUp.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr std::chrono::seconds kPrinterPatience{10};

void addReason(JobNote& note, const std::string& reason) {
    note.reason += (note.reason.empty() ? "" : " ") + reason;
}

}  // namespace

/// The same each time on one machine and for one account, which has the queue and the outbox.
std::string EventOrders::ownerOf(const EventSetup& setup) {
    constexpr std::size_t kDigits = 16;
    QByteArray machine = QSysInfo::machineUniqueId();
    if (machine.isEmpty()) machine = QSysInfo::machineHostName().toUtf8();
    return digestOfText(machine.toStdString() + ":" +
                        (setup.printQueue.empty() ? PrintQueue::usualFolder() : setup.printQueue))
        .substr(0, kDigits);
}

EventOrders::EventOrders(std::shared_ptr<const EventSetup> setup, std::shared_ptr<const SystemInfo> lists,
                         std::shared_ptr<EventPrints> prints, std::shared_ptr<EventCounts> counts)
    : setup_(std::move(setup)),
      lists_(std::move(lists)),
      prints_(std::move(prints)),
      counts_(std::move(counts)),
      queue_(setup_->printQueue.empty() ? PrintQueue() : PrintQueue(setup_->printQueue)),
      outbox_(setup_->outbox.empty() ? Outbox() : Outbox(setup_->outbox)),
      owner_(ownerOf(*setup_)) {}

/// Sheets and mails are kept in the order of their names, which begin with the time; the rest is the ticket's own, so
/// that a job that is done anew finds what it had made ready.
std::string EventOrders::nameOf(const std::string& stem) const {
    constexpr std::size_t kDigits = 12;
    const std::string ticks = stem.substr(stem.rfind('_') + 1);
    const bool isPress =
        !ticks.empty() && ticks.size() <= kDigits && ticks.find_first_not_of("0123456789") == std::string::npos;
    constexpr long long kBegin = 1262286000000;  // of the ticks, in milliseconds since 1970
    const long long at = isPress ? kBegin + std::stoll(ticks) * 10 : 0;
    return QStringLiteral("%1-").arg(at, 14, 10, QLatin1Char('0')).toStdString() +
           digestOfText(setup_->outputFolder + "/" + stem).substr(0, kDigits);
}

JobNote EventOrders::prepare(SystemInfo& info, const std::string& stem, const std::string& file) {
    JobNote note;
    note.owner = owner_;
    note.mode = info.iEventSaveMode;
    if (note.mode == kEventSaveAndPrint) {
        note.copies = copiesToPrint(info);
        prepareSheets(info, stem, file, note);
    } else if (note.mode == kEventSaveAndMail) {
        note.email = info.sEventEmail;
        prepareMail(stem, file, note);
    }
    return note;
}

void EventOrders::prepareSheets(SystemInfo& info, const std::string& stem, const std::string& file, JobNote& note) {
    std::string problem;
    const std::optional<PrintTarget> target = prints_->target(kPrinterPatience, problem);
    if (target) {
        PrintOrder order;
        order.plan.look = setup_->look;
        order.plan.paper = target->paper;
        order.printer = target->printer;
        order.prepareAs = nameOf(stem);
        order.picture = BoothFolder(setup_->outputFolder).photo(stem);
        problem = printEventFile(info, file, order, queue_, note.sheets);
    }
    note.owesSheets = !problem.empty();
    if (note.owesSheets) addReason(note, problem);
}

void EventOrders::prepareMail(const std::string& stem, const std::string& file, JobNote& note) {
    const QLXInfo& settings = setup_->settings;
    Email email;
    email.AddTo("", note.email);
    email.AddFileAttachment(file, fs::path(file).filename().string(), setup_->keepsLocation);
    if (!isAddress(note.email)) return addReason(note, "\"" + note.email + "\" is no mail address.");
    if (!email.LastMethodSuccess()) return addReason(note, email.LastErrorText());
    OutgoingMail mail;
    mail.to = note.email;
    mail.subject = settings.sEventModeEmailTitle;
    mail.body = settings.sEventModeEmailBody;
    mail.attachment = file;
    mail.attachmentName = email.attachmentName();
    note.mail = nameOf(stem);
    const std::string problem = outbox_.prepare(note.mail, mail, email.attachment());
    note.owesMail = !problem.empty();
    if (note.owesMail) addReason(note, problem);
}

void EventOrders::withdraw(const JobNote& note) const {
    if (!isOurs(note)) return;
    for (const std::string& id : note.sheets)
        queue_.withdraw(id);
    if (!note.mail.empty()) outbox_.withdraw(note.mail);
}

/// @return whether anything has changed
bool EventOrders::makeOwed(const BoothFolder& folder, const std::string& stem, JobNote& note) {
    if (!note.owesSheets && !note.owesMail) return false;
    SystemInfo info;
    startLike(info, *lists_);
    *info.oQLXInfo = setup_->settings;
    info.iEventPrintCount = note.copies;
    note.reason.clear();
    if (note.owesSheets) prepareSheets(info, stem, folder.photo(stem), note);
    if (note.owesMail) prepareMail(stem, folder.photo(stem), note);
    return true;
}

std::string EventOrders::letGo(const BoothFolder& folder, const std::string& stem, JobNote note) {
    // What was owed is on the disk by its name before it goes, as all the rest was.
    if (makeOwed(folder, stem, note)) {
        if (const std::string problem = writeNote(note, folder.note(stem)); !problem.empty()) return problem;
    }
    counts_->addPicture(stem);
    if (!note.owesSheets) {
        for (const std::string& id : note.sheets)
            queue_.release(id);
        if (!note.sheets.empty()) counts_->addPrints(stem, static_cast<int>(note.sheets.size()));
    }
    if (!note.owesMail && !note.mail.empty()) {
        if (!outbox_.release(note.mail)) outbox_.withdraw(note.mail);
        counts_->addMail(stem);
    }
    std::error_code failed;
    if (!note.owesSheets && !note.owesMail) fs::remove(folder.note(stem), failed);
    return note.reason;
}

}  // namespace tavrin
