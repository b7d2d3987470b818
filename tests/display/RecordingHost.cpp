#include "RecordingHost.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <ctime>
#include <future>
#include <set>

#include "alpha-modifier-v1-client-protocol.h"
#include "color-management-v1-client-protocol.h"
#include "color-management-v1-server-protocol.h"
#include "display/WaylandEvents.h"
#include "linux-dmabuf-v1-client-protocol.h"
#include "linux-drm-syncobj-v1-client-protocol.h"
#include "presentation-time-client-protocol.h"
#include "viewporter-client-protocol.h"

namespace tromelo::testing {

namespace {

constexpr std::uint32_t kFormatEvent = 0;  // wl_shm's and wp_presentation's first
constexpr std::uint32_t kModifierEvent = 1;

/// Requests that end their object under another name than "destroy".
bool ends(const std::string& interface, const char* request) {
  return std::strcmp(request, "destroy") == 0 ||
         (interface == wp_image_description_creator_params_v1_interface.name &&
          std::strcmp(request, "create") == 0);
}

const wl_interface& newerColorManager() {
  static const wl_interface newer = [] {
    wl_interface interface = wp_color_manager_v1_interface;
    ++interface.version;
    return interface;
  }();
  return newer;
}

}  // namespace

void RecordingHost::ClientDeleter::operator()(wl_display* display) const {
  wl_display_disconnect(display);
}

RecordingHost::RecordingHost(std::vector<Feature> features, std::vector<std::string> without)
    : display_(wl_display_create()) {
  const auto offer = [&](const wl_interface& interface, int version) {
    if (std::ranges::find(without, interface.name) == without.end()) announce(interface, version);
  };
  offer(wl_compositor_interface, 4);
  offer(wl_subcompositor_interface, 1);
  offer(wl_shm_interface, 1);
  offer(wp_viewporter_interface, 1);
  offer(wp_presentation_interface, 1);
  for (const Feature feature : features) {
    if (feature == Feature::alphaModifier) offer(wp_alpha_modifier_v1_interface, 1);
    if (feature == Feature::colorManager) offer(wp_color_manager_v1_interface, 1);
    if (feature == Feature::newerColorManager) offer(newerColorManager(), 2);
    if (feature == Feature::synchronisation) offer(wp_linux_drm_syncobj_manager_v1_interface, 1);
    if (feature == Feature::output) offer(wl_output_interface, 1);
    if (feature == Feature::dmabuf) offer(zwp_linux_dmabuf_v1_interface, 3);
  }
  std::array<int, 2> ends{};
  socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
  wl_client_create(display_, ends[0]);
  thread_ = std::thread([this] {
    const auto source = EventSource::readable(wl_display_get_event_loop(display_), tasks_.fd(),
                                              [this] { tasks_.run(); });
    while (!quits_) {
      wl_display_flush_clients(display_);
      wl_event_loop_dispatch(wl_display_get_event_loop(display_), -1);
    }
  });
  relay_ = HostRelay::between(UniqueFd(ends[1]));
  client_.reset(wl_display_connect_to_fd(relay_->takeClientEnd().release()));
}

RecordingHost::~RecordingHost() {
  client_.reset();
  relay_.reset();
  run([this] { quits_ = true; });
  thread_.join();
  wl_display_destroy_clients(display_);
  wl_display_destroy(display_);
}

void RecordingHost::announce(const wl_interface& interface, int version) {
  struct Offer {
    RecordingHost& host;
    const wl_interface& interface;
  };
  static std::vector<std::unique_ptr<Offer>> offers;  // globals don't own their data
  offers.push_back(std::make_unique<Offer>(*this, interface));
  wl_global_create(
      display_, &interface, version, offers.back().get(),
      [](wl_client* client, void* data, std::uint32_t v, std::uint32_t id) {
        auto& offer = *static_cast<Offer*>(data);
        offer.host.note(offer.interface.name + std::string(".bound ") + std::to_string(v));
        offer.host.greet(offer.host.add(client, offer.interface, v, id));
      });
}

wl_resource* RecordingHost::add(wl_client* client, const wl_interface& interface,
                                std::uint32_t version, std::uint32_t id) {
  wl_resource* resource = wl_resource_create(
      client, &interface, int(std::min(version, std::uint32_t(interface.version))), id);
  const auto dispatch = [](const void*, void* target, std::uint32_t, const wl_message* message,
                           wl_argument* arguments) {
    auto* of = static_cast<wl_resource*>(target);
    return static_cast<RecordingHost*>(wl_resource_get_user_data(of))
        ->take(of, *message, arguments);
  };
  wl_resource_set_dispatcher(resource, dispatch, nullptr, this, [](wl_resource* ended) {
    auto& host = *static_cast<RecordingHost*>(wl_resource_get_user_data(ended));
    for (auto& [name, held] : host.resources_) std::erase(held, ended);
  });
  resources_[interface.name].push_back(resource);
  return resource;
}

void RecordingHost::greet(wl_resource* resource) {
  const std::string interface = wl_resource_get_class(resource);
  if (interface == wl_shm_interface.name)
    for (const auto format : {WL_SHM_FORMAT_ARGB8888, WL_SHM_FORMAT_XRGB8888})
      wl_resource_post_event(resource, kFormatEvent, format);
  if (interface == wp_presentation_interface.name)
    wl_resource_post_event(resource, kFormatEvent, CLOCK_MONOTONIC);
  if (interface == zwp_linux_dmabuf_v1_interface.name)
    wl_resource_post_event(resource, kModifierEvent, WL_SHM_FORMAT_XRGB8888, 0, 0);
  if (interface != wp_color_manager_v1_interface.name) return;
  wp_color_manager_v1_send_supported_intent(resource, WP_COLOR_MANAGER_V1_RENDER_INTENT_PERCEPTUAL);
  for (const auto feature : {WP_COLOR_MANAGER_V1_FEATURE_PARAMETRIC,
                             WP_COLOR_MANAGER_V1_FEATURE_SET_MASTERING_DISPLAY_PRIMARIES})
    wp_color_manager_v1_send_supported_feature(resource, feature);
  wp_color_manager_v1_send_supported_tf_named(resource,
                                              WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_ST2084_PQ);
  wp_color_manager_v1_send_supported_primaries_named(resource,
                                                     WP_COLOR_MANAGER_V1_PRIMARIES_BT2020);
  wp_color_manager_v1_send_done(resource);
}

int RecordingHost::take(wl_resource* resource, const wl_message& message, wl_argument* arguments) {
  const std::string interface = wl_resource_get_class(resource);
  std::string request = interface + '.' + message.name;
  std::size_t at = 0;
  for (const char* kind = message.signature; *kind; ++kind) {
    if (std::strchr("iufsohna", *kind) == nullptr) continue;  // a version, or "may be null"
    const wl_argument& argument = arguments[at];
    if (*kind == 'n')
      add(wl_resource_get_client(resource), *message.types[at],
          std::uint32_t(wl_resource_get_version(resource)), argument.n);
    if (*kind == 'h') {
      UniqueFd taken(argument.h);
      if (interface == wp_linux_drm_syncobj_manager_v1_interface.name) timeline_ = std::move(taken);
    }
    if (*kind == 'i' || *kind == 'u') request += ' ' + std::to_string(argument.i);
    if (*kind == 'o' && !argument.o) request += " none";
    ++at;
  }
  note(std::move(request));
  if (ends(interface, message.name)) wl_resource_destroy(resource);
  return 0;
}

void RecordingHost::note(std::string request) {
  const std::scoped_lock lock(mutex_);
  requests_.push_back(std::move(request));
}

std::vector<std::string> RecordingHost::requests() const {
  const std::scoped_lock lock(mutex_);
  return requests_;
}

int RecordingHost::count(const std::string& name) const {
  const std::scoped_lock lock(mutex_);
  return int(std::ranges::count_if(requests_,
                                   [&](const auto& request) { return request.starts_with(name); }));
}

void RecordingHost::forget() {
  const std::scoped_lock lock(mutex_);
  requests_.clear();
}

void RecordingHost::tell(const std::string& interface, std::function<void(wl_resource*)> send) {
  run([this, interface, send = std::move(send)] {
    if (!resources_[interface].empty()) send(resources_[interface].back());
    wl_display_flush_clients(display_);
  });
}

void RecordingHost::makeDmabuf() {
  tell("zwp_linux_buffer_params_v1", [this](wl_resource* params) {
    constexpr std::uint32_t kCreated = 0;
    wl_resource* buffer = add(wl_resource_get_client(params), wl_buffer_interface, 1, 0);
    wl_resource_post_event(params, kCreated, buffer);
  });
}

UniqueFd RecordingHost::takeTimeline() {
  UniqueFd taken;
  run([&] { taken = std::move(timeline_); });
  return taken;
}

void RecordingHost::settle() { wl_display_roundtrip(client()); }

void RecordingHost::run(TaskQueue::Task task) {
  std::promise<void> done;
  tasks_.post([&] {
    task();
    done.set_value();
  });
  done.get_future().wait();
}

}  // namespace tromelo::testing
