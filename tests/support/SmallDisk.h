#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tavrin::test {

/// Files of this process cannot grow beyond `bytes` while it lives: what a full disk does, for anyone.
class SmallDisk {
  public:
    explicit SmallDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit small{bytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, signal_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

  private:
    rlimit old_{};
    void (*signal_)(int);
};

}  // namespace tavrin::test
