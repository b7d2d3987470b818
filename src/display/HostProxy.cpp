#include "display/HostProxy.h"

#include <wayland-client.h>

#include "alpha-modifier-v1-client-protocol.h"
#include "color-management-v1-client-protocol.h"
#include "linux-dmabuf-v1-client-protocol.h"
#include "linux-drm-syncobj-v1-client-protocol.h"
#include "presentation-time-client-protocol.h"
#include "viewporter-client-protocol.h"

namespace tromelo {

#define TROMELO_END(T) \
  void endProxy(struct T* proxy) { T##_destroy(proxy); }
TROMELO_HOST_PROXIES(TROMELO_END)
#undef TROMELO_END

}  // namespace tromelo
