#include "platform/HeapMemory.h"

#include <malloc.h>

#include <atomic>
#include <thread>

namespace tromelo {

void shareHeaps() {
#ifdef __GLIBC__
  mallopt(M_ARENA_MAX, 2);
#endif
}

void giveBackFreeMemory() {
#ifdef __GLIBC__
  static std::atomic<bool> isAtWork = false;
  if (isAtWork.exchange(true)) return;
  std::thread([] {
    malloc_trim(0);
    isAtWork = false;
  }).detach();
#endif
}

}  // namespace tromelo
