#pragma once

#include <functional>
#include <map>
#include <memory>

#include "display/Listener.h"

namespace tromelo {

/// Tells when the engine begins and ends to want the screen kept awake. Display's thread.
class IdleInhibitors {
 public:
  IdleInhibitors(wlr_idle_inhibit_manager_v1* manager, std::function<void(bool)> changed);

 private:
  void add(wlr_idle_inhibitor_v1* inhibitor);
  void remove(wlr_idle_inhibitor_v1* inhibitor);

  std::function<void(bool)> changed_;
  Listener added_;
  std::map<wlr_idle_inhibitor_v1*, std::unique_ptr<Listener>> present_;
};

}  // namespace tromelo
