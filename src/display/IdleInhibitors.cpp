#include "display/IdleInhibitors.h"

#include <utility>

namespace tromelo {

IdleInhibitors::IdleInhibitors(wlr_idle_inhibit_manager_v1* manager,
                               std::function<void(bool)> changed)
    : changed_(std::move(changed)) {
  added_.connect(manager->events.new_inhibitor,
                 [this](void* data) { add(static_cast<wlr_idle_inhibitor_v1*>(data)); });
}

void IdleInhibitors::add(wlr_idle_inhibitor_v1* inhibitor) {
  auto destroyed = std::make_unique<Listener>();
  destroyed->connect(inhibitor->events.destroy, [this, inhibitor](void*) { remove(inhibitor); });
  present_.emplace(inhibitor, std::move(destroyed));
  if (present_.size() == 1) changed_(true);
}

void IdleInhibitors::remove(wlr_idle_inhibitor_v1* inhibitor) {
  present_.erase(inhibitor);
  if (present_.empty()) changed_(false);
}

}  // namespace tromelo
