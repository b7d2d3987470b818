#include "display/EngineSync.h"

#include <xf86drm.h>

#include <algorithm>
#include <utility>

namespace tromelo {

namespace {

constexpr std::uint32_t kVersion = 1;
// wlroots doesn't tell when the engine lets go of one. Engines have two for each of a few buffers.
constexpr std::size_t kMostOpened = 16;

const wlr_linux_drm_syncobj_surface_v1_state* stateOf(wlr_surface* surface) {
  const auto* state = wlr_linux_drm_syncobj_v1_get_surface_state(surface);
  return state && state->acquire_timeline && state->release_timeline ? state : nullptr;
}

}  // namespace

bool EngineSync::announce(wl_display* display, const SyncDevice& device) {
  return wlr_linux_drm_syncobj_manager_v1_create(display, kVersion, device.fd());
}

bool EngineSync::isAsked(wlr_surface* surface) { return stateOf(surface); }

EngineSync::EngineSync(std::shared_ptr<const SyncDevice> device) : device_(std::move(device)) {}

EngineSync::~EngineSync() {
  for (const Opened& opened : opened_) wlr_drm_syncobj_timeline_unref(opened.engines);
}

std::shared_ptr<FrameSync> EngineSync::of(wlr_surface* surface) {
  const auto* state = stateOf(surface);
  if (!state || !device_) return nullptr;
  SyncPoint acquire{open(state->acquire_timeline), state->acquire_point};
  SyncPoint release{open(state->release_timeline), state->release_point};
  if (!acquire.timeline || !release.timeline) return nullptr;
  return std::make_shared<FrameSync>(std::move(acquire), std::move(release));
}

std::shared_ptr<const SyncTimeline> EngineSync::open(wlr_drm_syncobj_timeline* timeline) {
  const auto found = std::ranges::find(opened_, timeline, &Opened::engines);
  if (found != opened_.end()) {
    std::rotate(found, std::next(found), opened_.end());
    return opened_.back().ours;
  }
  int shared = -1;
  drmSyncobjHandleToFD(timeline->drm_fd, timeline->handle, &shared);
  auto ours = SyncTimeline::import(device_, UniqueFd(shared));
  if (!ours) return nullptr;
  opened_.push_back({wlr_drm_syncobj_timeline_ref(timeline), ours});
  if (opened_.size() > kMostOpened) {
    wlr_drm_syncobj_timeline_unref(opened_.front().engines);
    opened_.pop_front();
  }
  return ours;
}

}  // namespace tromelo
