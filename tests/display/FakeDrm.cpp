// Makes wlroots believe in a DRM device, on machines that have none. The test executable exports
// these, so that they come before the library's.
#include <xf86drm.h>

namespace {

char nodePath[] = "/dev/null";

}  // namespace

extern "C" {

int drmGetDeviceFromDevId(dev_t, uint32_t, drmDevicePtr* device) {
  static char* nodes[DRM_NODE_MAX];
  for (char*& node : nodes) node = nodePath;
  static drmDevice fake{};
  fake.nodes = nodes;
  fake.available_nodes = 1 << DRM_NODE_RENDER | 1 << DRM_NODE_PRIMARY;
  *device = &fake;
  return 0;
}

void drmFreeDevice(drmDevicePtr* device) { *device = nullptr; }

int drmPrimeFDToHandle(int, int, uint32_t* handle) {
  *handle = 1;
  return 0;
}

int drmCloseBufferHandle(int, uint32_t) { return 0; }
}
