#include "ui/mail/MailDesk.h"

#include <filesystem>
#include <memory>

#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

constexpr const char *kKeepsMails = "mailOutbox", *kKeepsLocation = "mailLocation";
constexpr int kLookEvery = 15000;  // milliseconds

}  // namespace

MailDesk::MailDesk(SystemInfo& info, QObject* parent) : QObject(parent), info_(info) {
    worker_.setMaxThreadCount(1);
    filer_.setMaxThreadCount(1);
    timer_.setInterval(kLookEvery);
    connect(&timer_, &QTimer::timeout, this, &MailDesk::look);
    timer_.start();
}

MailDesk::~MailDesk() {
    leaving_ = true;  // first, so that no job that begins now takes the stop back
    stop_ = true;
    filer_.waitForDone();  // what a person sent is kept
    worker_.clear();
    worker_.waitForDone();
}

/// On the main thread, unless there is nobody any more.
void MailDesk::tell(std::function<void()> what) {
    if (!leaving_) QMetaObject::invokeMethod(this, std::move(what), Qt::QueuedConnection);
}

void MailDesk::work(std::function<void()> job) {
    worker_.start([this, job = std::move(job)] {
        stop_ = false;
        if (leaving_) return;
        percent_ = -1;
        job();
        readOutbox();
    });
}

MailWatch MailDesk::watch() {
    MailWatch watch;
    watch.stop = &stop_;
    watch.leaving = &leaving_;
    watch.progress = [this](long long done, long long all) {
        const int percent = all > 0 ? static_cast<int>(100 * done / all) : 0;
        if (percent_.exchange(percent) != percent) tell([this, percent] { emit progressed(percent); });
    };
    return watch;
}

MailRoute MailDesk::route() const {
    return routeOf(*info_.oQLXInfo, readDeliveryConf());
}

/// The letter is on the disk before it waits for those that were written before it.
void MailDesk::send(const Letter& letter) {
    ++letters_;
    emit began(letter.to);
    const bool keeps = keepsMails(), location = keepsLocation();
    filer_.start([this, letter, keeps, location] {
        const auto mail = std::make_shared<SendSomeMail>(info_);
        mail->sEmailAttachment = letter.picture;
        mail->sEmailSubject = letter.title.toStdString();
        mail->sEmailBody = letter.text.toStdString();
        mail->sEmailAddress = letter.to.trimmed().toStdString();
        mail->sEmailFromAddress = letter.from.trimmed().toStdString();
        if (keeps) mail->outbox.emplace();
        mail->keepLocation = location;
        mail->watch = watch();
        mail->makeReady();
        std::error_code none;
        std::filesystem::remove(letter.picture, none);
        readOutbox();
        work([this, mail, to = letter.to] {
            const bool wentWell = mail->SendMailNow();
            tell([this, wentWell, posted = mail->posted(), to] {
                --letters_;
                emit ended(wentWell, posted, to);
            });
        });
    });
}

void MailDesk::sendNow(const QStringList& ids) {
    for (const QString& id : ids) {
        work([this, id = id.toStdString()] {
            std::optional<OutboxClaim> claim = Outbox().claim(id);
            if (!claim) return;  // it has just gone
            const QString to = QString::fromStdString(claim->entry().mail.to);
            tell([this, to] { emit began(to); });
            const Posted posted = postAgain(std::move(*claim), route(), watch());
            tell([this, posted, to] { emit endedAgain(posted, to); });
        });
    }
}

void MailDesk::discard(const QStringList& ids) {
    work([ids] {
        for (const QString& id : ids)
            Outbox().discard(id.toStdString());
    });
}

void MailDesk::stop() {
    stop_ = true;
}

/// What waits is looked for while nothing else is sent.
void MailDesk::look() {
    if (worker_.activeThreadCount() > 0) return;
    if (!keepsMails()) return refresh();
    work([this] {
        postDue(Outbox(), route(), watch(), [this](const OutboxEntry& entry, const Posted& posted) {
            if (posted.isSent())  // nobody has to hear of every try
                tell([this, posted, to = QString::fromStdString(entry.mail.to)] { emit endedAgain(posted, to); });
        });
    });
}

void MailDesk::refresh() {
    work([] {});
}

void MailDesk::readOutbox() {
    tell([this, entries = Outbox().entries()] { emit outboxRead(entries); });
}

bool MailDesk::keepsMails() {
    return windowSettings().value(kKeepsMails, true).toBool();
}

void MailDesk::setKeepsMails(bool on) {
    windowSettings().setValue(kKeepsMails, on);
    look();
}

bool MailDesk::keepsLocation() {
    return windowSettings().value(kKeepsLocation, false).toBool();
}

void MailDesk::setKeepsLocation(bool on) {
    windowSettings().setValue(kKeepsLocation, on);
}

}  // namespace tavrin
