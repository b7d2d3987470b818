#pragma once

#include <map>
#include <memory>

#include "display/HostProxy.h"
#include "display/SyncTimeline.h"

struct wl_surface;

namespace tromelo {

class HostConnection;

/// Tells the host what it waits for before it reads a surface's buffers, and what it is to signal
/// then. Host thread.
class HostSync {
 public:
  /// Any thread. Both outlive it.
  HostSync(HostConnection& host, wl_surface* surface);
  ~HostSync();

  /// For the buffer that the next commit brings. False where the system gives too little.
  bool set(const SyncPoint& acquire, const SyncPoint& release);
  /// The next commit's buffer needs none.
  void unset() { synced_.reset(); }

 private:
  using Proxy = HostProxy<wp_linux_drm_syncobj_timeline_v1>;
  struct Told {
    std::weak_ptr<const SyncTimeline> timeline;
    Proxy proxy;
  };

  wp_linux_drm_syncobj_timeline_v1* proxyOf(const std::shared_ptr<const SyncTimeline>& timeline);

  HostConnection& host_;
  wl_surface* surface_;
  HostProxy<wp_linux_drm_syncobj_surface_v1> synced_;
  std::map<const SyncTimeline*, Told> told_;
};

}  // namespace tromelo
