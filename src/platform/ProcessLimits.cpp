#include "platform/ProcessLimits.h"

#include <malloc.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace tromelo {

namespace {

constexpr rlim_t kMemory = rlim_t{1536} * 1024 * 1024;  // bytes of addresses
constexpr int kNice = 10;

void lower(decltype(RLIMIT_AS) what, rlim_t most) {
  rlimit limit{};
  if (getrlimit(what, &limit) != 0) return;
  limit.rlim_cur = std::min(limit.rlim_max, most);
  limit.rlim_max = limit.rlim_cur;
  setrlimit(what, &limit);
}

/// The lowest of the priorities that a disk's queue knows without starving who has it.
void yieldDisks() {
  constexpr int kOfProcess = 1;
  constexpr int kBestEffort = 2 << 13;
  constexpr int kLowest = 7;
  syscall(SYS_ioprio_set, kOfProcess, 0, kBestEffort | kLowest);
}

}  // namespace

void limitThisProcess() {
  setpriority(PRIO_PROCESS, 0, kNice);
  yieldDisks();
  prctl(PR_SET_DUMPABLE, 0);
  lower(RLIMIT_CORE, 0);
  // Each thread's own heap would take addresses that it never uses.
  mallopt(M_ARENA_MAX, 1);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // which take terabytes
  lower(RLIMIT_AS, kMemory);
#endif
}

void endAfter(std::chrono::seconds limit) {
  std::signal(SIGALRM, SIG_DFL);
  alarm(static_cast<unsigned>(limit.count()));
}

}  // namespace tromelo
