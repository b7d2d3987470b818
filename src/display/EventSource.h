#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "display/Wlroots.h"

namespace tromelo {

/// A callback on the display's event loop, for a descriptor or for a time. Ends with this object.
class EventSource {
 public:
  using Callback = std::function<void()>;

  static EventSource readable(wl_event_loop* loop, int fd, Callback callback);
  static EventSource timer(wl_event_loop* loop, Callback callback);

  /// Timers only. Fires once; a time that isn't past yet is replaced. Rounded up to milliseconds.
  void fireAfter(std::chrono::nanoseconds delay);
  void stop();

 private:
  struct Removal {
    void operator()(wl_event_source* source) const { wl_event_source_remove(source); }
  };

  explicit EventSource(Callback callback);

  std::unique_ptr<Callback> callback_;  // at an address that stays when this object moves
  std::unique_ptr<wl_event_source, Removal> source_;
};

}  // namespace tromelo
