#include "platform/HeapMemory.h"

#include <malloc.h>

namespace tromelo {

void shareHeaps() {
#ifdef __GLIBC__
  mallopt(M_ARENA_MAX, 2);
#endif
}

void giveBackFreeMemory() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

}  // namespace tromelo
