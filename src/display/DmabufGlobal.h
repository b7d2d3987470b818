#pragma once

#include "display/DmabufSupport.h"
#include "display/Wlroots.h"

namespace tromelo {

/// Announces zwp_linux_dmabuf_v1 and refuses every buffer that isn't of an announced kind.
/// Display's thread; ends before the display does, and after its clients.
class DmabufGlobal {
 public:
  /// wlroots announces it only for a real DRM device; without one the engine uses shared memory.
  DmabufGlobal(wl_display* display, DmabufSupport support);
  DmabufGlobal(const DmabufGlobal&) = delete;
  DmabufGlobal& operator=(const DmabufGlobal&) = delete;

  /// Clients that connect from now on are not told of it.
  void withdraw();

 private:
  DmabufSupport support_;
  wlr_linux_dmabuf_v1* global_ = nullptr;  // the display's
};

}  // namespace tromelo
