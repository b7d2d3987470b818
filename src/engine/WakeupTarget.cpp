#include "engine/WakeupTarget.h"

#include <utility>

#include "engine/MpvEngine.h"
#include "platform/MainThread.h"

namespace tromelo {

void WakeupTarget::wakeup(void* context) {
  if (!context) return;
  auto& target = *static_cast<WakeupTarget*>(context);
  target.hasListener_ ? target.wakeListener() : target.post();
}

void WakeupTarget::post() {
  if (posted_.exchange(true)) return;
  postToMainThread([target = shared_from_this()] { target->drain(); });
}

void WakeupTarget::setListener(bool listens) {
  hasListener_ = listens;
  wakeListener();
}

void WakeupTarget::wakeListener() {
  const std::scoped_lock lock(mutex_);
  isWoken_ = true;
  woken_.notify_one();
}

bool WakeupTarget::listen(std::optional<std::chrono::milliseconds> patience) {
  std::unique_lock lock(mutex_);
  const auto isWoken = [this] { return isWoken_; };
  if (patience)
    woken_.wait_for(lock, *patience, isWoken);
  else
    woken_.wait(lock, isWoken);
  return std::exchange(isWoken_, false);
}

void WakeupTarget::drain() {
  // Before the events are taken: one that comes after the last was taken needs a task of its own.
  posted_.store(false);
  if (engine) engine->drainEvents();
}

}  // namespace tromelo
