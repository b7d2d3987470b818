#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "display/EngineSync.h"
#include "display/FrameLedger.h"
#include "display/VideoSink.h"
#include "display/WaylandEvents.h"

namespace tromelo {

class TaskQueue;

/// The display's side of a wl_surface: turns commits into frames for its sink and settles what the
/// engine is owed for them. Display's thread.
class EngineSurface {
 public:
  struct Place {
    wl_event_loop* loop = nullptr;
    wlr_output* output = nullptr;
    std::shared_ptr<TaskQueue> queue;
    std::shared_ptr<const SyncDevice> syncDevice = nullptr;  // none: it isn't announced
  };

  /// `destroyed` is called when the engine has destroyed the surface, and may destroy this object.
  EngineSurface(wlr_surface* surface, const Place& place, std::function<void()> destroyed);

  static EngineSurface* of(wlr_surface* surface);

  /// What a surface that is a window's tells that window.
  struct Window {
    /// The engine may have forgotten that the window is hidden.
    std::function<void()> remindOfHidden;
  };
  /// Surfaces without a window of their own have no sink; what they commit goes back at once.
  void setWindow(std::optional<Window> window);
  void setSink(std::shared_ptr<VideoSink> sink);
  void setHidden(bool hidden) { ledger_->setHidden(hidden); }

 private:
  void committed();
  std::shared_ptr<Frame> makeFrame();
  void deliver(std::shared_ptr<Frame> frame);

  wlr_surface* surface_;
  std::shared_ptr<TaskQueue> queue_;
  EngineSync sync_;
  std::shared_ptr<FrameLedger> ledger_;  // outlived by frames that will report to it
  Listener commit_;
  Listener destroy_;
  std::optional<Window> window_;
  std::shared_ptr<VideoSink> sink_;
  std::shared_ptr<Frame> unclaimed_;  // the newest frame, while there is no sink
  std::uint64_t sequence_ = 0;
};

}  // namespace tromelo
