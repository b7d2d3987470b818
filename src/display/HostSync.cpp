#include "display/HostSync.h"

#include "display/HostConnection.h"
#include "linux-drm-syncobj-v1-client-protocol.h"

namespace tromelo {

namespace {

std::uint32_t high(std::uint64_t value) { return std::uint32_t(value >> 32); }
std::uint32_t low(std::uint64_t value) { return std::uint32_t(value & 0xffffffff); }

}  // namespace

HostSync::HostSync(HostConnection& host, wl_surface* surface) : host_(host), surface_(surface) {}

HostSync::~HostSync() = default;

bool HostSync::set(const SyncPoint& acquire, const SyncPoint& release) {
  std::erase_if(told_, [](const auto& item) { return item.second.timeline.expired(); });
  auto* waited = proxyOf(acquire.timeline);
  auto* signalled = proxyOf(release.timeline);
  if (!waited || !signalled) return false;
  if (!synced_)
    synced_.reset(wp_linux_drm_syncobj_manager_v1_get_surface(host_.syncManager(), surface_));
  wp_linux_drm_syncobj_surface_v1_set_acquire_point(synced_.get(), waited, high(acquire.value),
                                                    low(acquire.value));
  wp_linux_drm_syncobj_surface_v1_set_release_point(synced_.get(), signalled, high(release.value),
                                                    low(release.value));
  return true;
}

wp_linux_drm_syncobj_timeline_v1* HostSync::proxyOf(
    const std::shared_ptr<const SyncTimeline>& timeline) {
  auto& [of, proxy] = told_[timeline.get()];
  if (!proxy) {
    const UniqueFd shared = timeline->share();
    if (!shared) return nullptr;
    of = timeline;
    proxy.reset(wp_linux_drm_syncobj_manager_v1_import_timeline(host_.syncManager(), shared.get()));
  }
  return proxy.get();
}

}  // namespace tromelo
