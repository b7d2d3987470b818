#include "display/HostConnection.h"

#include <pthread.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <functional>
#include <utility>

#include "alpha-modifier-v1-client-protocol.h"
#include "color-management-v1-client-protocol.h"
#include "display/BlockedSignals.h"
#include "display/DmabufFeedback.h"
#include "display/PixelFormat.h"
#include "linux-dmabuf-v1-client-protocol.h"
#include "linux-drm-syncobj-v1-client-protocol.h"
#include "presentation-time-client-protocol.h"
#include "viewporter-client-protocol.h"

namespace tromelo {

namespace {

// The newest of each whose requests and events are known here.
constexpr std::uint32_t kCompositorVersion = 4;  // damage in pixels of the buffer
constexpr std::uint32_t kDmabufVersion = 4;
constexpr std::uint32_t kPresentationVersion = 2;

/// Of what a host takes, what a scene can draw with too: it must when the host can't.
void keepKnownFormats(DmabufSupport& support) {
  for (DmabufSupport::Tranche& tranche : support.tranches)
    std::erase_if(tranche.formats, [](const auto& format) { return !pixelFormat(format.fourcc); });
  std::erase_if(support.tranches, [](const auto& tranche) { return tranche.formats.empty(); });
}

}  // namespace

bool HostColorSupport::has(std::uint32_t feature) const {
  return std::ranges::find(features, feature) != features.end();
}

std::shared_ptr<HostConnection> HostConnection::open(wl_display* display, HostRelay* relay,
                                                     std::string* lacks) {
  // Not make_shared: the constructor is ours alone.
  std::shared_ptr<HostConnection> host(new HostConnection(display, relay));
  host->ask();
  *lacks = host->missing();
  if (!lacks->empty()) return nullptr;
  const BlockedSignals blocked;
  host->thread_ = std::thread([self = host.get()] { self->serve(); });
  if (host->relay_)
    host->relay_->deliverTo(
        [&tasks = host->tasks_](auto task) { tasks.postUnlessClosed(std::move(task)); });
  return host;
}

HostConnection::HostConnection(wl_display* display, HostRelay* relay)
    : display_(display),
      relay_(relay && relay->clientEnd() == wl_display_get_fd(display) ? relay : nullptr),
      queue_(wl_display_create_queue_with_name(display, "host")),
      waits_{{wl_display_get_fd(display), POLLIN, 0}, {tasks_.fd(), POLLIN, 0}} {}

HostConnection::~HostConnection() {
  if (relay_) relay_->deliverTo({});
  if (thread_.joinable()) {
    tasks_.post([this] { quits_ = true; });
    thread_.join();
  }
  wl_display_flush(display_);
}

void HostConnection::ask() {
  DmabufFeedback feedback;
  feedback_ = &feedback;
  static constexpr wl_registry_listener kListener{
      .global =
          [](void* data, wl_registry*, std::uint32_t name, const char* interface,
             std::uint32_t version) {
            auto& self = *static_cast<HostConnection*>(data);
            self.globals_.push_back(std::string(interface) + ' ' + std::to_string(version));
            self.bind(name, interface, version);
          },
      .global_remove = ignore<wl_registry*, std::uint32_t>,
  };
  const std::unique_ptr<void, decltype(&wl_proxy_wrapper_destroy)> wrapper(
      wl_proxy_create_wrapper(display_), wl_proxy_wrapper_destroy);
  wl_proxy_set_queue(static_cast<wl_proxy*>(wrapper.get()), queue_.get());
  registry_.reset(wl_display_get_registry(static_cast<wl_display*>(wrapper.get())));
  wl_registry_add_listener(registry_.get(), &kListener, this);
  wl_display_roundtrip_queue(display_, queue_.get());
  if (dmabuf_) feedback.ask(dmabuf_.get());
  wl_display_roundtrip_queue(display_, queue_.get());
  const auto scene = dmabuf_ ? DmabufSupport::query() : std::nullopt;
  dmabufSupport_ = feedback.take(scene ? std::optional(scene->mainDevice) : std::nullopt);
  feedback_ = nullptr;
  if (dmabufSupport_) keepKnownFormats(*dmabufSupport_);
  if (dmabufSupport_ && dmabufSupport_->tranches.empty()) dmabufSupport_.reset();
}

void HostConnection::bind(std::uint32_t name, const std::string& interface, std::uint32_t version) {
  const auto bind = [&](auto& global, const wl_interface& wanted, std::uint32_t newest) {
    using Global = typename std::remove_reference_t<decltype(global)>::element_type;
    if (interface != wanted.name || global) return;
    global.reset(static_cast<Global*>(
        wl_registry_bind(registry_.get(), name, &wanted, std::min(version, newest))));
    listen(interface);
  };
  bind(compositor_, wl_compositor_interface, kCompositorVersion);
  bind(subcompositor_, wl_subcompositor_interface, 1);
  bind(shm_, wl_shm_interface, 1);
  bind(viewporter_, wp_viewporter_interface, 1);
  bind(presentation_, wp_presentation_interface, kPresentationVersion);
  bind(dmabuf_, zwp_linux_dmabuf_v1_interface, kDmabufVersion);
  bind(alphaModifier_, wp_alpha_modifier_v1_interface, 1);
  bind(colorManager_, wp_color_manager_v1_interface, 1);
  bind(syncManager_, wp_linux_drm_syncobj_manager_v1_interface, 1);
}

/// To what a global tells of itself, which may come with what is dispatched already.
void HostConnection::listen(const std::string& interface) {
  static constexpr wl_shm_listener kShm{.format = [](void* data, auto*, std::uint32_t format) {
    const auto add = [&](const auto& known) {
      for (const PixelFormat& pixels : known)
        if (shmNumber(pixels.fourcc) == format)
          static_cast<HostConnection*>(data)->shmFormats_.push_back(pixels.fourcc);
    };
    add(kPixelFormats);
    add(kDeepPixelFormats);
  }};
  static constexpr wp_presentation_listener kPresentation{
      .clock_id = [](void* data, auto*, std::uint32_t clock) {
        static_cast<HostConnection*>(data)->hasOurClock_ = clock == CLOCK_MONOTONIC;
      }};
  static constexpr wp_color_manager_v1_listener kColor{
      .supported_intent =
          [](void* data, auto*, std::uint32_t value) {
            static_cast<HostConnection*>(data)->colorSupport_.intents.push_back(value);
          },
      .supported_feature =
          [](void* data, auto*, std::uint32_t value) {
            static_cast<HostConnection*>(data)->colorSupport_.features.push_back(value);
          },
      .supported_tf_named =
          [](void* data, auto*, std::uint32_t value) {
            static_cast<HostConnection*>(data)->colorSupport_.transferFunctions.push_back(value);
          },
      .supported_primaries_named =
          [](void* data, auto*, std::uint32_t value) {
            static_cast<HostConnection*>(data)->colorSupport_.primaries.push_back(value);
          },
      .done = ignore<wp_color_manager_v1*>,
  };
  if (interface == wl_shm_interface.name) wl_shm_add_listener(shm_.get(), &kShm, this);
  if (interface == wp_presentation_interface.name)
    wp_presentation_add_listener(presentation_.get(), &kPresentation, this);
  if (interface == wp_color_manager_v1_interface.name)
    wp_color_manager_v1_add_listener(colorManager_.get(), &kColor, this);
  if (interface == zwp_linux_dmabuf_v1_interface.name) feedback_->listen(dmabuf_.get());
}

std::string HostConnection::missing() const {
  if (!compositor_ || wl_compositor_get_version(compositor_.get()) < kCompositorVersion)
    return "wl_compositor 4";
  if (!subcompositor_) return wl_subcompositor_interface.name;
  if (!viewporter_) return wp_viewporter_interface.name;
  if (!presentation_) return wp_presentation_interface.name;
  for (const auto fourcc : {kPixelFormats[0].fourcc, kPixelFormats[1].fourcc})
    if (std::ranges::find(shmFormats_, fourcc) == shmFormats_.end()) return wl_shm_interface.name;
  return {};
}

void HostConnection::divert(wl_proxy* proxy, std::weak_ptr<const HostRelay::Handler> handler) {
  if (relay_) relay_->divert(wl_proxy_get_id(proxy), std::move(handler));
}

void HostConnection::setPictureSurface(wl_surface* surface) {
  pictureSurface_ = surface;
  if (followPictureSurface_) followPictureSurface_(surface);
}

void HostConnection::followPictureSurface(std::function<void(wl_surface*)> follow) {
  followPictureSurface_ = std::move(follow);
  if (followPictureSurface_) followPictureSurface_(pictureSurface_);
}

void HostConnection::watch(int fd, std::function<void()> readable) {
  watched_[fd] = std::move(readable);
  waits_.push_back({fd, POLLIN, 0});
}

void HostConnection::unwatch(int fd) {
  watched_.erase(fd);
  std::erase_if(waits_, [fd](const pollfd& wait) { return wait.fd == fd; });
}

void HostConnection::serve() {
  pthread_setname_np(pthread_self(), "host");
  while (!quits_) {
    tasks_.run();
    if (quits_ || wl_display_dispatch_queue_pending(display_, queue_.get()) < 0) break;
    wl_display_flush(display_);
    if (!waitForEvents()) break;
  }
  tasks_.close();
}

/// Until there is an event or a task. Whoever prepares to read is waited for by all others that
/// read from the connection, Qt's threads for example, so that none of them reads past a poll.
bool HostConnection::waitForEvents() {
  if (wl_display_prepare_read_queue(display_, queue_.get()) != 0) return true;
  while (poll(waits_.data(), waits_.size(), -1) < 0 && errno == EINTR) {
  }
  bool isOpen = true;
  if (waits_[0].revents == 0)
    wl_display_cancel_read(display_);
  else
    isOpen = wl_display_read_events(display_) == 0;
  const auto waited = waits_;  // who is called may watch something else
  for (const pollfd& wait : waited)
    if (const auto found = watched_.find(wait.fd); wait.revents && found != watched_.end())
      found->second();
  return isOpen;
}

}  // namespace tromelo
