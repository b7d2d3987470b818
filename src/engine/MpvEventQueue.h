#pragma once

#include <mpv/client.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "engine/MpvEvent.h"

namespace tromelo {

struct MpvClientApi;
class WakeupTarget;

/// What an event of libmpv's holds, of which libmpv's own copy lasts until the next is asked for.
struct TakenEvent {
  mpv_event_id id = MPV_EVENT_NONE;
  int error = 0;
  std::uint64_t reply = 0;
  MpvValue value = {};  // of a property that was asked for; texts as people read them
  std::optional<MpvEvent> event = {};  // none where it is of no use to the model

  bool isReply() const;
};

/// The events of one engine, in order. The main thread takes them, unless it wants quiet: then a
/// thread of the queue's does, and has the main thread woken only for what isn't said with every
/// frame. Of that the newest waits until the main thread looks, or has something else to hear, or
/// has heard nothing for some seconds.
class MpvEventQueue {
 public:
  MpvEventQueue(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine,
                std::shared_ptr<WakeupTarget> target);
  /// Before the engine is destroyed. Any thread.
  ~MpvEventQueue();
  MpvEventQueue(const MpvEventQueue&) = delete;
  MpvEventQueue& operator=(const MpvEventQueue&) = delete;

  /// What waits is still to be taken. Main thread.
  void setQuiet(bool quiet);
  /// None: nothing waits. Main thread.
  std::optional<TakenEvent> next();
  /// It is quiet, and frames are played: FramesStopped comes when they aren't any more. Main
  /// thread.
  bool moves();

 private:
  void run();
  void gather();
  void tellOfStop();
  bool isForLater(const TakenEvent& taken);
  std::optional<TakenEvent> takeFromEngine();
  void tellNewest();

  const std::shared_ptr<const MpvClientApi> api_;
  mpv_handle* const engine_;
  const std::shared_ptr<WakeupTarget> target_;
  std::mutex mutex_;  // of all that follows, and of taking
  bool isQuiet_ = false;
  std::chrono::steady_clock::time_point lastTold_;  // of the newest
  bool moves_ = false;
  bool hasJumped_ = false;  // the next position is one that it has jumped to
  std::map<MpvProperty, TakenEvent> newest_;
  std::deque<TakenEvent> waiting_;
  std::atomic<bool> ends_ = false;
  std::thread thread_;  // since it was first to be quiet
};

}  // namespace tromelo
