// Timelines of a graphics device, on machines that have none: fences are descriptors that are
// readable once they are signalled, as the kernel's are.
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xf86drm.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <memory>
#include <mutex>

#include "platform/UniqueFd.h"

using tromelo::UniqueFd;

namespace {

struct Timeline {
  std::uint64_t value = 0;
  std::map<std::uint64_t, std::shared_ptr<UniqueFd>> fences;  // by the point that they signal
  std::multimap<std::uint64_t, int> asked;                    // event descriptors

  bool has(std::uint64_t point) const {
    for (auto fence = fences.lower_bound(point); fence != fences.end(); ++fence)
      if (pollfd signalled{fence->second->get(), POLLIN, 0}; poll(&signalled, 1, 0) == 1)
        return true;
    return value >= point;
  }
};

std::mutex mutex;
std::map<std::uint32_t, std::shared_ptr<Timeline>> handles;
std::map<ino_t, std::weak_ptr<Timeline>> shared;
std::uint32_t lastHandle = 0;

std::uint32_t add(std::shared_ptr<Timeline> timeline) {
  handles[++lastHandle] = std::move(timeline);
  return lastHandle;
}

ino_t identity(int fd) {
  struct stat status{};
  fstat(fd, &status);
  return status.st_ino;
}

}  // namespace

extern "C" {

int drmGetCap(int, std::uint64_t, std::uint64_t* value) {
  *value = 1;
  return 0;
}

/// wlroots asks so whether the kernel tells of points: about none it must say that there is none.
int drmIoctl(int fd, unsigned long request, void* argument) {
  if (request != DRM_IOCTL_SYNCOBJ_EVENTFD) return ioctl(fd, request, argument);
  errno = ENOENT;
  return -1;
}

int drmSyncobjCreate(int, std::uint32_t, std::uint32_t* handle) {
  const std::scoped_lock lock(mutex);
  *handle = add(std::make_shared<Timeline>());
  return 0;
}

int drmSyncobjDestroy(int, std::uint32_t handle) {
  const std::scoped_lock lock(mutex);
  handles.erase(handle);
  return 0;
}

int drmSyncobjHandleToFD(int, std::uint32_t handle, int* fd) {
  const std::scoped_lock lock(mutex);
  *fd = memfd_create("timeline", MFD_CLOEXEC);
  shared[identity(*fd)] = handles.at(handle);
  return 0;
}

int drmSyncobjFDToHandle(int, int fd, std::uint32_t* handle) {
  const std::scoped_lock lock(mutex);
  const auto timeline = shared[identity(fd)].lock();
  if (!timeline) return -1;
  *handle = add(timeline);
  return 0;
}

int drmSyncobjImportSyncFile(int, std::uint32_t handle, int fence) {
  const std::scoped_lock lock(mutex);
  handles.at(handle)->fences[0] = std::make_shared<UniqueFd>(dup(fence));
  return 0;
}

int drmSyncobjTransfer(int, std::uint32_t to, std::uint64_t toPoint, std::uint32_t from,
                       std::uint64_t fromPoint, std::uint32_t) {
  const std::scoped_lock lock(mutex);
  handles.at(to)->fences[toPoint] = handles.at(from)->fences.at(fromPoint);
  return 0;
}

int drmSyncobjTimelineSignal(int, const std::uint32_t* handle, std::uint64_t* point,
                             std::uint32_t) {
  const std::scoped_lock lock(mutex);
  Timeline& timeline = *handles.at(*handle);
  timeline.value = std::max(timeline.value, *point);
  const auto end = timeline.asked.upper_bound(*point);
  for (auto asked = timeline.asked.begin(); asked != end; ++asked) eventfd_write(asked->second, 1);
  timeline.asked.erase(timeline.asked.begin(), end);
  return 0;
}

int drmSyncobjTimelineWait(int, std::uint32_t* handle, std::uint64_t* point, unsigned, std::int64_t,
                           unsigned flags, std::uint32_t*) {
  const std::scoped_lock lock(mutex);
  const bool onlyPromised = flags & DRM_SYNCOBJ_WAIT_FLAGS_WAIT_AVAILABLE;
  return onlyPromised || handles.at(*handle)->has(*point) ? 0 : -ETIME;
}

int drmSyncobjEventfd(int, std::uint32_t handle, std::uint64_t point, int fd, std::uint32_t) {
  const std::scoped_lock lock(mutex);
  handles.at(handle)->asked.emplace(point, fd);
  return 0;
}
}
