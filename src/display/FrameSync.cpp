#include "display/FrameSync.h"

#include <utility>

namespace tromelo {

FrameSync::FrameSync(SyncPoint acquire, SyncPoint release)
    : acquire_(std::move(acquire)), release_(std::move(release)) {}

/// Rather too early than never: an engine that waits for ever stands still.
FrameSync::~FrameSync() {
  if (!lastRead_ || !release_.timeline->signalAfter(release_.value, lastRead_))
    release_.timeline->signal(release_.value);
}

void FrameSync::readUntil(UniqueFd fence) {
  const std::scoped_lock lock(mutex_);
  lastRead_ = std::move(fence);
}

}  // namespace tromelo
