#include "display/SyncTimeline.h"

#include <fcntl.h>
#include <xf86drm.h>

#include <utility>

namespace tromelo {

std::shared_ptr<const SyncDevice> SyncDevice::open(dev_t device) {
  drmDevicePtr found = nullptr;
  if (drmGetDeviceFromDevId(device, 0, &found) != 0) return nullptr;
  const bool hasNode = (found->available_nodes & 1 << DRM_NODE_RENDER) != 0;
  UniqueFd fd(hasNode ? ::open(found->nodes[DRM_NODE_RENDER], O_RDWR | O_CLOEXEC) : -1);
  drmFreeDevice(&found);
  std::uint64_t hasTimelines = 0;
  if (!fd || drmGetCap(fd.get(), DRM_CAP_SYNCOBJ_TIMELINE, &hasTimelines) != 0 || !hasTimelines)
    return nullptr;
  return std::make_shared<SyncDevice>(std::move(fd));
}

SyncTimeline::SyncTimeline(std::shared_ptr<const SyncDevice> device, std::uint32_t handle)
    : device_(std::move(device)), handle_(handle) {}

SyncTimeline::~SyncTimeline() { drmSyncobjDestroy(device_->fd(), handle_); }

std::shared_ptr<const SyncTimeline> SyncTimeline::create(std::shared_ptr<const SyncDevice> device) {
  std::uint32_t handle = 0;
  if (drmSyncobjCreate(device->fd(), 0, &handle) != 0) return nullptr;
  return std::make_shared<SyncTimeline>(std::move(device), handle);
}

std::shared_ptr<const SyncTimeline> SyncTimeline::import(std::shared_ptr<const SyncDevice> device,
                                                         const UniqueFd& shared) {
  std::uint32_t handle = 0;
  if (drmSyncobjFDToHandle(device->fd(), shared.get(), &handle) != 0) return nullptr;
  return std::make_shared<SyncTimeline>(std::move(device), handle);
}

UniqueFd SyncTimeline::share() const {
  int fd = -1;
  drmSyncobjHandleToFD(device_->fd(), handle_, &fd);
  return UniqueFd(fd);
}

bool SyncTimeline::isSignalled(std::uint64_t point) const {
  std::uint32_t handle = handle_;
  constexpr std::int64_t kAtOnce = 0;
  return drmSyncobjTimelineWait(device_->fd(), &handle, &point, 1, kAtOnce,
                                DRM_SYNCOBJ_WAIT_FLAGS_WAIT_FOR_SUBMIT, nullptr) == 0;
}

/// Only a syncobj of one point can be made a fence.
UniqueFd SyncTimeline::fence(std::uint64_t point) const {
  const auto single = create(device_);
  int fd = -1;
  if (single && drmSyncobjTransfer(device_->fd(), single->handle_, 0, handle_, point, 0) == 0)
    drmSyncobjExportSyncFile(device_->fd(), single->handle_, &fd);
  return UniqueFd(fd);
}

bool SyncTimeline::notify(std::uint64_t point, const UniqueFd& eventFd) const {
  return drmSyncobjEventfd(device_->fd(), handle_, point, eventFd.get(), 0) == 0;
}

bool SyncTimeline::signal(std::uint64_t point) const {
  return drmSyncobjTimelineSignal(device_->fd(), &handle_, &point, 1) == 0;
}

bool SyncTimeline::signalAfter(std::uint64_t point, const UniqueFd& fence) const {
  const auto single = create(device_);
  return single && drmSyncobjImportSyncFile(device_->fd(), single->handle_, fence.get()) == 0 &&
         drmSyncobjTransfer(device_->fd(), handle_, point, single->handle_, 0, 0) == 0;
}

}  // namespace tromelo
