#pragma once

#include <signal.h>
#include <sys/resource.h>

namespace tromelo::testing {

/// No file grows above so many bytes, as on a full disk.
struct FullDisk {
  explicit FullDisk(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  sighandler_t handler_ = SIG_DFL;
};

}  // namespace tromelo::testing
