#include "engine/WakeupTarget.h"

#include "engine/MpvEngine.h"
#include "platform/MainThread.h"

namespace tromelo {

void WakeupTarget::wakeup(void* context) {
  if (!context) return;
  auto target = static_cast<WakeupTarget*>(context)->shared_from_this();
  if (target->posted_.exchange(true)) return;
  postToMainThread([target] { target->drain(); });
}

void WakeupTarget::drain() {
  // Before the events are taken: one that comes after the last was taken needs a task of its own.
  posted_.store(false);
  if (engine) engine->drainEvents();
}

}  // namespace tromelo
