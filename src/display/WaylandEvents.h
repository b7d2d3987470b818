#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "display/Wlroots.h"

// Callbacks of libwayland's signals and of its event loop, which end with their objects. Display's
// thread.

namespace tromelo {

/// A connection to a wl_signal. The callback may destroy the listener that it was called through.
class Listener {
 public:
  using Callback = std::function<void(void* data)>;

  Listener() = default;
  ~Listener() { disconnect(); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  void connect(wl_signal& signal, Callback callback);
  void disconnect();

 private:
  struct Hook {
    wl_listener listener{};  // first, so that a pointer to it is a pointer to the hook
    Listener* owner = nullptr;
  };

  Hook hook_;
  Callback callback_;
};

/// A callback for a descriptor or for a time.
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
