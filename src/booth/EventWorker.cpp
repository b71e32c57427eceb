#include "booth/EventWorker.h"

#include "booth/BrokenTickets.h"
#include "booth/EventMails.h"
#include "booth/EventPictures.h"
#include "booth/EventPrints.h"
#include "core/Worker.h"
#include "core/state/SystemInfo.h"
#include "session/StartUp.h"

namespace tavrin {

namespace {

using Next = Worker::Next;

constexpr std::chrono::milliseconds kDeliveryPause{1000};

}  // namespace

/// One booth from start to end: three threads, and what they share.
class EventWorker::Run {
  public:
    Run(EventShop shop, std::shared_ptr<EventTeller> teller, std::shared_ptr<EventPrints> prints,
        std::shared_ptr<EventCounts> counts);
    ~Run();

    void start();
    void stop();
    void join();
    void wake() { pictureWorker_.wake(); }
    bool isRunning() const { return running_ > 0; }
    EventSigns signs() const;
    const BoothFolder& folder() const { return shop_.folder; }
    EventCounts& counts() { return *counts_; }

  private:
    Next pictureStep();
    Next deliveryStep(Worker& worker, const std::function<void()>& step);
    void tellChange() { teller_->changed(signs()); }
    void picturesEnded();
    void oneEnded();

    const EventShop shop_;
    const std::shared_ptr<EventTeller> teller_;
    const std::shared_ptr<EventPrints> prints_;
    const std::shared_ptr<EventCounts> counts_;
    EventMails mails_;
    EventPictures pictures_;
    std::atomic<int> running_ = 0;
    std::atomic<bool> isStopped_ = false, isLastRound_ = false;
    Worker printWorker_, mailWorker_, pictureWorker_;
};

EventWorker::Run::Run(EventShop shop, std::shared_ptr<EventTeller> teller, std::shared_ptr<EventPrints> prints,
                      std::shared_ptr<EventCounts> counts)
    : shop_(std::move(shop)),
      teller_(std::move(teller)),
      prints_(std::move(prints)),
      counts_(std::move(counts)),
      mails_(shop_.setup, *teller_),
      pictures_(shop_, counts_, *teller_, [this] { tellChange(); }),
      printWorker_([this] { return deliveryStep(printWorker_, [this] { prints_->step(); }); }, kDeliveryPause,
                   [this] { oneEnded(); }),
      mailWorker_([this] { return deliveryStep(mailWorker_, [this] { mails_.step(); }); }, kDeliveryPause,
                  [this] { oneEnded(); }),
      pictureWorker_([this] { return pictureStep(); }, shop_.setup->pause, [this] { picturesEnded(); }) {}

EventWorker::Run::~Run() {
    stop();
    join();
}

void EventWorker::Run::start() {
    running_ = 3;
    printWorker_.start();  // first, since it asks for the paper
    mailWorker_.start();
    pictureWorker_.start();
}

void EventWorker::Run::stop() {
    isStopped_ = true;
    pictureWorker_.stop();
    mails_.leave();
}

void EventWorker::Run::join() {
    pictureWorker_.join();
    printWorker_.join();
    mailWorker_.join();
}

Next EventWorker::Run::pictureStep() {
    pictures_.pass(pictureWorker_);
    mails_.count();
    tellChange();
    if (shop_.setup->once && pictures_.isAllDone()) pictureWorker_.stop();
    return Next::pause;
}

/// Sheets and mails are brought away once more after the last picture.
Next EventWorker::Run::deliveryStep(Worker& worker, const std::function<void()>& step) {
    const bool isLast = isLastRound_;
    step();
    tellChange();
    if (isLast) worker.stop();
    return isLast || !isLastRound_ ? Next::pause : Next::atOnce;
}

void EventWorker::Run::picturesEnded() {
    isLastRound_ = true;
    printWorker_.wake();
    mailWorker_.wake();
    oneEnded();
}

void EventWorker::Run::oneEnded() {
    if (--running_ > 0) return;
    tellChange();
    teller_->ended();
}

EventSigns EventWorker::Run::signs() const {
    EventSigns signs;
    signs.isRunning = isRunning();
    signs.isDraining = isRunning() && isStopped_;
    signs.lastSign = pictureWorker_.lastSign();
    signs.hanging = pictures_.hanging();
    pictures_.tell(signs);
    prints_->tell(signs);
    mails_.tell(signs);
    signs.today = counts_->today();
    signs.printsLeft = counts_->printsLeft();
    return signs;
}

EventWorker::EventWorker(const SystemInfo& base, EventListener& listener) : base_(base), listener_(listener) {}

EventWorker::~EventWorker() = default;

std::string EventWorker::start(EventSetup setup) {
    if (isRunning()) return "The booth still runs.";
    BoothFolder folder(setup.outputFolder);
    if (std::string problem = folder.adopt(); !problem.empty()) return problem;
    folder.removeLeftovers();
    run_.reset();
    const auto teller = std::make_shared<EventTeller>(listener_);
    const auto shared = std::make_shared<const EventSetup>(std::move(setup));
    const auto lists = std::make_shared<SystemInfo>();
    startLike(*lists, base_);
    const auto prints = std::make_shared<EventPrints>(shared, *teller);
    const auto counts = std::make_shared<EventCounts>(folder.output(), EventOrders::ownerOf(*shared));
    const auto orders = std::make_shared<EventOrders>(shared, lists, prints, counts);
    run_ = std::make_unique<Run>(EventShop{shared, lists, folder, orders}, teller, prints, counts);
    run_->start();
    return "";
}

void EventWorker::stop() {
    if (run_) run_->stop();
}

bool EventWorker::isRunning() const {
    return run_ && run_->isRunning();
}

void EventWorker::join() {
    if (run_) run_->join();
}

void EventWorker::wake() {
    if (run_) run_->wake();
}

EventSigns EventWorker::signs() const {
    return run_ ? run_->signs() : EventSigns();
}

int EventWorker::retryBroken() {
    const int back = run_ ? putTicketsBack(run_->folder()) : 0;
    wake();
    return back;
}

void EventWorker::refillPack(int prints) {
    if (run_) run_->counts().refill(prints);
}

}  // namespace tavrin
