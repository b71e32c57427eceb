#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QByteArray>
#include <QDateTime>

#include "delivery/mail/MailMan.h"
#include "delivery/mail/OutgoingMail.h"

namespace tavrin {

/// How the sending of a mail ended.
struct MailResult {
    MailEnd end = MailEnd::notSent;
    bool closedCleanly = false;  ///< the server said goodbye
    std::string reason;          ///< why it is not known to be sent; a plain sentence
};

/// A mail of the outbox, as it is shown.
struct OutboxEntry {
    enum class State {
        waiting,    ///< is sent again by itself at `nextTry`
        held,       ///< is sent when a person says so
        maybeGone,  ///< may have gone, so nothing sends it by itself
        underWay    ///< a program is sending it
    };
    std::string id;
    OutgoingMail mail;
    State state = State::waiting;
    QDateTime created, nextTry;
    int tries = 0;
    std::string reason;
};

class Outbox;

/// The right to send, change or remove a mail of the outbox. One program has it at a time, on whatever machine; it
/// goes with the object, or with the program however that ends.
class OutboxClaim {
  public:
    OutboxClaim(OutboxClaim&& other) noexcept;
    OutboxClaim& operator=(OutboxClaim&& other) noexcept;
    ~OutboxClaim();

    const OutboxEntry& entry() const { return entry_; }
    /// Notes on the disk that from here on the mail may have gone.
    bool noteHandedOver() const;
    /// What came of a sending: the mail leaves the outbox, or stays with the reason.
    void settle(const MailResult& result);
    void remove();

  private:
    friend class Outbox;
    OutboxClaim(std::string folder, int lock) : folder_(std::move(folder)), lock_(lock) {}

    std::string folder_;
    int lock_ = -1;
    OutboxEntry entry_;
};

/// How much an outbox takes in.
struct OutboxLimits {
    int mails = 1000;
    long long bytes = 4'000'000'000;  ///< of all that is attached
};

/// Mails that could not go, or are just going, each in a folder of its own that nobody but its owner can read. A mail
/// is brought here before it is sent, so a kill at any moment leaves it sent or here, once.
class Outbox {
  public:
    explicit Outbox(std::string folder = Outbox::usualFolder(), OutboxLimits limits = {});
    static std::string usualFolder();

    /// Puts a mail in, ready to be sent by the caller. A full outbox takes none.
    /// @param attachment what the attached file holds
    /// @param problem is set when it cannot be put in
    std::optional<OutboxClaim> add(const OutgoingMail& mail, const QByteArray& attachment,
                                   std::string& problem) const;
    /// As `add`, but under a name of the caller's, and nobody sees the mail until `release`.
    /// @return "" or why it cannot be put in
    std::string prepare(const std::string& id, const OutgoingMail& mail, const QByteArray& attachment) const;
    /// Lets a prepared mail into the outbox, in one step that comes to the disk; it is due at once.
    /// @return false when none of that name is prepared, such as one that was let in before
    bool release(const std::string& id) const;
    /// Forgets a prepared mail.
    void withdraw(const std::string& id) const;
    /// The oldest first.
    std::vector<OutboxEntry> entries() const;
    /// @return null when the mail is gone or another program is sending it
    std::optional<OutboxClaim> claim(const std::string& id) const;
    /// Removes a mail. @return false as `claim`
    bool discard(const std::string& id) const;

    /// How long a mail waits after so many tries that failed: a minute, and twice as long each time, up to four
    /// hours.
    static long long pauseSeconds(int tries);

  private:
    std::string pathOf(const std::string& id) const { return folder_ + id; }
    std::string makeFolder() const;

    std::string whyFull(long long more) const;

    std::string folder_;
    OutboxLimits limits_;
};

}  // namespace tavrin
