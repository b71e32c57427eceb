#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "booth/BoothFolder.h"
#include "booth/EventOrders.h"
#include "booth/EventWorker.h"
#include "core/state/Interface.h"

namespace tavrin {

/// What the jobs of a run share. It outlives a job that hangs, whatever becomes of the booth.
struct EventShop {
    std::shared_ptr<const EventSetup> setup;
    std::shared_ptr<const SystemInfo> lists;
    BoothFolder folder;
    std::shared_ptr<EventOrders> orders;
};

/// How a job ended.
struct JobEnd {
    enum class Kind {
        done,      ///< the picture stands; `reason` tells what is wrong beside that
        notThere,  ///< somebody else did it, or took the ticket away
        broken,    ///< the ticket cannot be made: it is to be set aside
        source,    ///< a picture that it names cannot be read, at least not yet
        place,     ///< nothing can be saved at present: it is to be tried again, as are all others
        givenUp    ///< it was cancelled
    };
    Kind kind = Kind::done;
    std::string reason;
    int mode = 0, copies = 0;
    std::string email;
};

/// One ticket on its way to its picture. `pEventSystemInfo` is made anew for each, so that nothing of one guest's
/// picture is left in the next one's, and a job that hangs has what it needs to itself.
class EventJob {
  public:
    using Clock = std::chrono::steady_clock;

    EventJob(EventShop shop, std::string stem);
    ~EventJob();

    /// Makes the picture and lets go what follows it. On whatever thread; never throws.
    JobEnd run();
    /// Nobody wants it any longer. On any thread, and as often as one likes: it ends at the next row of pixels.
    void cancel();
    /// Gives up waiting for it. From here on it will not bring its picture into the folder.
    /// @return false when it is just doing so
    bool abandon();
    /// After an end for a picture that cannot be read: whether it may be readable later, since it is not there, as on
    /// a disk that is not connected, or still arrives.
    bool mayHeal() const;
    Clock::time_point lastSign() const { return Clock::time_point(Clock::duration(sign_.load())); }

  private:
    /// Keeps what the engine would have shown.
    struct Alerts : Interface {
        bool wantsPixels() const override { return false; }
        void showAlert(const std::string& message, const std::string& reason) override;
        std::string all;
    };

    JobEnd make();
    JobEnd load();
    JobEnd compute();
    JobEnd save();
    JobEnd deliver();
    bool beginCommit();
    void giveSign() { sign_ = Clock::now().time_since_epoch().count(); }

    const EventShop shop_;
    const std::string stem_;
    Alerts alerts_;
    const std::unique_ptr<SystemInfo> pEventSystemInfo;
    std::atomic<Clock::rep> sign_;
    std::atomic<bool> cancelled_ = false;
    std::mutex mutex_;
    bool abandoned_ = false, committing_ = false;
};

}  // namespace tavrin
