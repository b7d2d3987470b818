#pragma once

#include <functional>
#include <utility>

#include "display/Wlroots.h"

namespace tromelo {

/// A connection to a wl_signal that ends with this object. The callback may destroy the listener
/// that it was called through.
class Listener {
 public:
  using Callback = std::function<void(void* data)>;

  Listener() = default;
  ~Listener() { disconnect(); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  void connect(wl_signal& signal, Callback callback) {
    disconnect();
    hook_.owner = this;
    hook_.listener.notify = &Listener::notify;
    callback_ = std::move(callback);
    wl_signal_add(&signal, &hook_.listener);
  }

  void disconnect() {
    if (!hook_.owner) return;
    wl_list_remove(&hook_.listener.link);
    hook_.owner = nullptr;
  }

 private:
  struct Hook {
    wl_listener listener{};  // first, so that a pointer to it is a pointer to the hook
    Listener* owner = nullptr;
  };

  static void notify(wl_listener* listener, void* data) {
    const Callback callback = reinterpret_cast<Hook*>(listener)->owner->callback_;
    callback(data);
  }

  Hook hook_;
  Callback callback_;
};

}  // namespace tromelo
