#pragma once

#include <deque>
#include <memory>

#include "display/FrameSync.h"
#include "display/Wlroots.h"

namespace tromelo {

/// How the engine's commits to one surface say when its GPU is done with a picture, and ask when
/// ours and the host's are. wlroots speaks the protocol, and holds back a commit until its point
/// has a fence. Display's thread.
class EngineSync {
 public:
  /// Announces it where the device serves; false where it doesn't.
  static bool announce(wl_display* display, const SyncDevice& device);
  /// The surface's newest buffer is not to be read without.
  static bool isAsked(wlr_surface* surface);

  /// `device` is the one that was announced; may be none.
  explicit EngineSync(std::shared_ptr<const SyncDevice> device);
  ~EngineSync();
  EngineSync(const EngineSync&) = delete;
  EngineSync& operator=(const EngineSync&) = delete;

  /// For the surface's newest buffer; none where it isn't asked for, or the system gives too
  /// little.
  std::shared_ptr<FrameSync> of(wlr_surface* surface);

 private:
  /// One of the engine's timelines, which is opened once.
  struct Opened {
    wlr_drm_syncobj_timeline* engines;  // held
    std::shared_ptr<const SyncTimeline> ours;
  };

  std::shared_ptr<const SyncTimeline> open(wlr_drm_syncobj_timeline* timeline);

  const std::shared_ptr<const SyncDevice> device_;
  std::deque<Opened> opened_;  // the latest last
};

}  // namespace tromelo
