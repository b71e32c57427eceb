#pragma once

#include <functional>
#include <shared_mutex>
#include <string>

namespace tavrin {

/// Ends a program that is told to end from outside (SIGINT, SIGTERM, SIGHUP), and leaves nothing half made: what is
/// registered as a `Leftover` goes first, then the program dies of the signal, as its caller expects. The signals are
/// taken by a thread that only waits for them, so none of this runs inside a signal handler.
class Interruption {
  public:
    /// To be called first of all, while there is no other thread. A program that never calls it dies of signals as
    /// any other does. SIGHUP stays ignored where it is (nohup). From here on writing into a closed pipe or beyond a
    /// limit for files is an error of that write, and no death.
    static void watch();

    /// From now on the first signal calls `stop`, on a thread of its own, and ends nothing. The next one ends the
    /// program.
    static void stopFirst(std::function<void()> stop);

    /// While one exists the program is not ended: for steps of milliseconds that belong together. They may be nested,
    /// and keep nobody but the end waiting; that waits for two seconds at most, for a disk that does not answer.
    class Hold {
      public:
        Hold();

      private:
        std::shared_lock<std::shared_mutex> lock_;
    };
};

/// A file, or a folder with all that is in it, which must not stay when the program is ended from outside. Made and
/// registered under one `Hold`.
class Leftover {
  public:
    explicit Leftover(std::string path);
    ~Leftover();
    Leftover(const Leftover&) = delete;
    Leftover& operator=(const Leftover&) = delete;

  private:
    const std::string path_;
};

}  // namespace tavrin
