#pragma once

#include <poll.h>
#include <wayland-client.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "display/DmabufSupport.h"
#include "display/HostProxy.h"
#include "display/HostRelay.h"
#include "display/TaskQueue.h"

namespace tromelo {

class DmabufFeedback;

/// What a host that manages colour can be told of. Values are the protocol's own.
struct HostColorSupport {
  std::vector<std::uint32_t> intents, features, transferFunctions, primaries;

  bool has(std::uint32_t feature) const;
};

/// Our own talk with the Wayland host, on the connection that Qt has opened: with a queue and a
/// thread of its own, the host thread, so that neither Qt's main thread nor its scene is in the
/// way. All objects of it are used, and end, on the host thread, where post() brings one.
class HostConnection {
 public:
  /// Asks the host what it has, which takes two round trips. None where it lacks what showing a
  /// picture takes; then `lacks` names that. `display` outlives the connection, and so does
  /// `relay`, which may stand between the two, or between others, or be none.
  static std::shared_ptr<HostConnection> open(wl_display* display, HostRelay* relay,
                                              std::string* lacks);
  /// Runs what was posted. On any thread but the host thread.
  ~HostConnection();
  HostConnection(const HostConnection&) = delete;
  HostConnection& operator=(const HostConnection&) = delete;

  /// In order; any thread. Requests that the task makes are sent after it.
  void post(TaskQueue::Task task) { tasks_.post(std::move(task)); }

  /// Calls `readable` whenever `fd` is, until unwatch(). Host thread.
  void watch(int fd, std::function<void()> readable);
  void unwatch(int fd);

  /// Has the events of `proxy`, which has a listener all the same, come past Qt's main thread where
  /// they can; see HostRelay::divert(). Host thread.
  void divert(wl_proxy* proxy, std::weak_ptr<const HostRelay::Handler> handler);

  /// The surface that pictures are shown on; none: none is. Host thread.
  void setPictureSurface(wl_surface* surface);
  wl_surface* pictureSurface() const { return pictureSurface_; }
  /// Tells of the present one, and of each that comes. None: nobody is told. Host thread.
  void followPictureSurface(std::function<void(wl_surface*)> follow);

  // What the host has, from the beginning on. Those that are last may be missing.
  wl_compositor* compositor() const { return compositor_.get(); }
  wl_subcompositor* subcompositor() const { return subcompositor_.get(); }
  wl_shm* shm() const { return shm_.get(); }
  wp_viewporter* viewporter() const { return viewporter_.get(); }
  wp_presentation* presentation() const { return presentation_.get(); }
  zwp_linux_dmabuf_v1* dmabuf() const { return dmabuf_.get(); }
  wp_alpha_modifier_v1* alphaModifier() const { return alphaModifier_.get(); }
  wp_color_manager_v1* colorManager() const { return colorManager_.get(); }
  wp_linux_drm_syncobj_manager_v1* syncManager() const { return syncManager_.get(); }

  /// DRM FourCCs.
  const std::vector<std::uint32_t>& shmFormats() const { return shmFormats_; }
  /// None where the host takes no dmabufs, or doesn't say of which device.
  const std::optional<DmabufSupport>& dmabufSupport() const { return dmabufSupport_; }
  const HostColorSupport& colorSupport() const { return colorSupport_; }
  /// The clock of the host's presentation times is the one that we count in.
  bool hasOurClock() const { return hasOurClock_; }
  /// "interface version", for a report.
  const std::vector<std::string>& globals() const { return globals_; }

 private:
  HostConnection(wl_display* display, HostRelay* relay);

  void ask();
  void bind(std::uint32_t name, const std::string& interface, std::uint32_t version);
  void listen(const std::string& interface);
  std::string missing() const;
  void serve();
  bool waitForEvents();

  struct QueueDeleter {
    void operator()(wl_event_queue* queue) const { wl_event_queue_destroy(queue); }
  };

  wl_display* display_;
  HostRelay* relay_;  // of this connection, or none
  std::unique_ptr<wl_event_queue, QueueDeleter> queue_;
  HostProxy<wl_registry> registry_;
  HostProxy<wl_compositor> compositor_;
  HostProxy<wl_subcompositor> subcompositor_;
  HostProxy<wl_shm> shm_;
  HostProxy<wp_viewporter> viewporter_;
  HostProxy<wp_presentation> presentation_;
  HostProxy<zwp_linux_dmabuf_v1> dmabuf_;
  HostProxy<wp_alpha_modifier_v1> alphaModifier_;
  HostProxy<wp_color_manager_v1> colorManager_;
  HostProxy<wp_linux_drm_syncobj_manager_v1> syncManager_;
  std::vector<std::uint32_t> shmFormats_;
  DmabufFeedback* feedback_ = nullptr;  // while the host is asked
  std::optional<DmabufSupport> dmabufSupport_;
  HostColorSupport colorSupport_;
  bool hasOurClock_ = false;
  std::vector<std::string> globals_;

  wl_surface* pictureSurface_ = nullptr;                   // host thread
  std::function<void(wl_surface*)> followPictureSurface_;  // host thread
  std::map<int, std::function<void()>> watched_;           // host thread
  TaskQueue tasks_;
  std::vector<pollfd> waits_;  // host thread: for the connection, for tasks, for what is watched
  std::atomic<bool> quits_ = false;
  std::thread thread_;
};

}  // namespace tromelo
