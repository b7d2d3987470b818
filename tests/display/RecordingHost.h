#pragma once

#include <wayland-client.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "display/HostRelay.h"
#include "display/TaskQueue.h"
#include "platform/UniqueFd.h"

struct wl_client;
struct wl_interface;
struct wl_message;
struct wl_resource;
union wl_argument;

namespace tromelo::testing {

/// A Wayland host that shows nothing: it takes every request, writes it down, and says only what a
/// test has it say. On a thread of its own.
class RecordingHost {
 public:
  /// Beside what showing a picture takes. The newer colour manager has a version that nobody knows.
  enum class Feature {
    alphaModifier,
    colorManager,
    newerColorManager,
    dmabuf,
    output,
    synchronisation
  };

  explicit RecordingHost(std::vector<Feature> features = {}, std::vector<std::string> without = {});
  ~RecordingHost();
  RecordingHost(const RecordingHost&) = delete;
  RecordingHost& operator=(const RecordingHost&) = delete;

  /// The host's client, which is this process.
  wl_display* client() const { return client_.get(); }
  /// Stands between the two.
  HostRelay* relay() const { return relay_.get(); }

  /// What it has been asked for, in order: "wl_surface.attach". Numbers of a request follow its
  /// name: "wp_viewport.set_destination 320 180"; objects are left out. A global that is bound is
  /// "wl_shm.bound 1", with the version.
  std::vector<std::string> requests() const;
  /// Of requests that begin with `name`.
  int count(const std::string& name) const;
  void forget();

  /// Sends an event: `send` is called on the host's thread with the newest object of `interface`
  /// that is there, if there is one.
  void tell(const std::string& interface, std::function<void(wl_resource*)> send);
  /// Makes the dmabuf that was asked for last.
  void makeDmabuf();
  /// Of the timeline that was imported last.
  UniqueFd takeTimeline();
  /// Whatever the client has sent is in requests() by then.
  void settle();

 private:
  struct ClientDeleter {
    void operator()(wl_display* display) const;
  };

  void announce(const wl_interface& interface, int version);
  wl_resource* add(wl_client* client, const wl_interface& interface, std::uint32_t version,
                   std::uint32_t id);
  void greet(wl_resource* resource);
  void note(std::string request);
  int take(wl_resource* resource, const wl_message& message, wl_argument* arguments);
  void run(TaskQueue::Task task);

  TaskQueue tasks_;
  wl_display* display_;
  bool quits_ = false;
  UniqueFd timeline_;  // host's thread
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
  std::map<std::string, std::vector<wl_resource*>> resources_;  // host's thread
  std::thread thread_;
  std::unique_ptr<HostRelay> relay_;
  std::unique_ptr<wl_display, ClientDeleter> client_;
};

}  // namespace tromelo::testing
