#pragma once

#include <mutex>

#include "display/SyncTimeline.h"

namespace tromelo {

/// What a GPU that reads a picture waits for, and what the engine waits for before it draws there
/// again. All readers of the picture hold it; the engine's point is signalled when the last lets
/// go. Any thread.
class FrameSync {
 public:
  FrameSync(SyncPoint acquire, SyncPoint release);
  ~FrameSync();
  FrameSync(const FrameSync&) = delete;
  FrameSync& operator=(const FrameSync&) = delete;

  /// Signalled once the engine has drawn the picture. Somebody has promised that already.
  const SyncPoint& acquire() const { return acquire_; }
  /// A GPU was asked to read it, and has done so when `fence` is signalled; of one GPU's, only the
  /// last counts. Whoever knows of the end otherwise just lets go then.
  void readUntil(UniqueFd fence);

 private:
  const SyncPoint acquire_, release_;
  std::mutex mutex_;
  UniqueFd lastRead_;
};

}  // namespace tromelo
