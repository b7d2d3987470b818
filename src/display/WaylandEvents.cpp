#include "display/WaylandEvents.h"

#include <algorithm>

namespace tromelo {

void Listener::connect(wl_signal& signal, Callback callback) {
  disconnect();
  hook_.owner = this;
  hook_.listener.notify = [](wl_listener* listener, void* data) {
    const Callback called = reinterpret_cast<Hook*>(listener)->owner->callback_;
    called(data);
  };
  callback_ = std::move(callback);
  wl_signal_add(&signal, &hook_.listener);
}

void Listener::disconnect() {
  if (!std::exchange(hook_.owner, nullptr)) return;
  wl_list_remove(&hook_.listener.link);
}

EventSource::EventSource(Callback callback)
    : callback_(std::make_unique<Callback>(std::move(callback))) {}

EventSource EventSource::readable(wl_event_loop* loop, int fd, Callback callback) {
  EventSource source(std::move(callback));
  const auto dispatch = [](int, std::uint32_t, void* data) {
    (*static_cast<Callback*>(data))();
    return 0;
  };
  source.source_.reset(
      wl_event_loop_add_fd(loop, fd, WL_EVENT_READABLE, dispatch, source.callback_.get()));
  return source;
}

EventSource EventSource::timer(wl_event_loop* loop, Callback callback) {
  EventSource source(std::move(callback));
  const auto dispatch = [](void* data) {
    (*static_cast<Callback*>(data))();
    return 0;
  };
  source.source_.reset(wl_event_loop_add_timer(loop, dispatch, source.callback_.get()));
  return source;
}

void EventSource::fireAfter(std::chrono::nanoseconds delay) {
  const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(delay).count();
  wl_event_source_timer_update(source_.get(), int(std::max<std::int64_t>(milliseconds, 1)));
}

void EventSource::stop() { wl_event_source_timer_update(source_.get(), 0); }

}  // namespace tromelo
