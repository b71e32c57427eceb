#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include <QObject>
#include <QThreadPool>

namespace tavrin {

/// Makes pages beside the main thread, one wish at a time: a newer one takes the place of the older. Its functions
/// are for the main thread.
class PageMaker : public QObject {
  public:
    using QObject::QObject;
    /// Ends what is being made.
    ~PageMaker() override;

    /// Does something on the main thread, unless a newer wish has come meanwhile.
    using Tell = std::function<void(std::function<void()> what)>;
    /// @param job runs on another thread; it ends early where `stop` is set
    void make(std::function<void(const std::atomic<bool>& stop, const Tell& tell)> job);

  private:
    void stop();

    QThreadPool worker_;
    std::shared_ptr<std::atomic<bool>> stop_;
};

}  // namespace tavrin
