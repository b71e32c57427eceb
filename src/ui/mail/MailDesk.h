#pragma once

#include <atomic>
#include <vector>

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include "delivery/mail/SendSomeMail.h"

namespace tavrin {

/// What a person wrote, with a picture.
struct Letter {
    QString to, title, from, text;
    std::string picture;  ///< a file; it is removed when it has been taken
};

/// Sends mails beside the main thread, one after another, and those of the outbox whose time has come. Each is
/// brought into the outbox at once, however many wait before it.
class MailDesk : public QObject {
    Q_OBJECT

  public:
    explicit MailDesk(SystemInfo& info, QObject* parent = nullptr);
    /// What is being sent is stopped, and goes on by itself with the next start.
    ~MailDesk() override;

    void send(const Letter& letter);
    /// Sends mails of the outbox, whatever their time.
    void sendNow(const QStringList& ids);
    void discard(const QStringList& ids);
    /// Ends what is being sent.
    void stop();
    /// Letters that are still to be sent.
    int lettersUnderWay() const { return letters_; }
    /// Reads the outbox anew.
    void refresh();

    /// Whether mails that cannot be sent are kept, and sent again.
    static bool keepsMails();
    void setKeepsMails(bool on);
    /// Whether pictures keep the place on earth that the camera noted.
    static bool keepsLocation();
    static void setKeepsLocation(bool on);

  signals:
    void began(const QString& to);
    void progressed(int percent);
    /// @param wentWell the mail is sent and the connection was closed cleanly
    void ended(bool wentWell, const tavrin::Posted& posted, const QString& to);
    /// A mail of the outbox was sent, or could not be when a person wanted it.
    void endedAgain(const tavrin::Posted& posted, const QString& to);
    void outboxRead(const std::vector<tavrin::OutboxEntry>& entries);

  private:
    MailWatch watch();
    void work(std::function<void()> job);
    void tell(std::function<void()> what);
    void look();
    void readOutbox();
    MailRoute route() const;

    SystemInfo& info_;
    QThreadPool filer_, worker_;
    QTimer timer_;
    std::atomic<bool> stop_ = false, leaving_ = false;
    std::atomic<int> percent_ = -1;
    int letters_ = 0;
};

}  // namespace tavrin
