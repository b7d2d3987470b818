#include "platform/WaylandHeadroom.h"

#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "color-management-v1-client-protocol.h"

namespace tromelo {

namespace {

template <auto Destroy>
struct Destroyer {
  template <typename T>
  void operator()(T* object) const {
    Destroy(object);
  }
};

template <typename T, auto Destroy>
using Owned = std::unique_ptr<T, Destroyer<Destroy>>;

/// For events that don't matter here.
template <typename... Arguments>
void ignore(void*, Arguments...) {}

}  // namespace

double headroomOf(const ScreenLuminances& told) {
  const double most = told.screenMost > 0 ? told.screenMost : told.most;
  return told.reference > 0 ? std::max(most / told.reference, 1.0) : 1.0;
}

struct WaylandHeadroom::Registry {
  explicit Registry(wl_display* display) : registry(wl_display_get_registry(display)) {
    static constexpr wl_registry_listener kListener{
        .global =
            [](void* data, wl_registry* from, std::uint32_t name, const char* interface,
               std::uint32_t) {
              auto* self = static_cast<Registry*>(data);
              if (std::strcmp(interface, wp_color_manager_v1_interface.name) != 0) return;
              self->bind(from, name);
            },
        .global_remove = ignore<wl_registry*, std::uint32_t>,
    };
    wl_registry_add_listener(registry.get(), &kListener, this);
  }

  void bind(wl_registry* from, std::uint32_t name) {
    static constexpr wp_color_manager_v1_listener kListener{
        .supported_intent = ignore<wp_color_manager_v1*, std::uint32_t>,
        .supported_feature = ignore<wp_color_manager_v1*, std::uint32_t>,
        .supported_tf_named = ignore<wp_color_manager_v1*, std::uint32_t>,
        .supported_primaries_named = ignore<wp_color_manager_v1*, std::uint32_t>,
        .done = ignore<wp_color_manager_v1*>,
    };
    manager.reset(static_cast<wp_color_manager_v1*>(
        wl_registry_bind(from, name, &wp_color_manager_v1_interface, 1)));
    wp_color_manager_v1_add_listener(manager.get(), &kListener, nullptr);
    if (found) found();
  }

  Owned<wl_registry, wl_registry_destroy> registry;
  Owned<wp_color_manager_v1, wp_color_manager_v1_destroy> manager;
  std::function<void()> found;
};

/// One output's conversation: its description, then what that says.
class WaylandHeadroom::Output {
 public:
  Output(wl_output* output, const std::function<void()>& changed)
      : output_(output), changed_(changed) {}

  const ScreenHeadroom& headroom() const { return headroom_; }

  void follow(wp_color_manager_v1* manager) {
    static constexpr wp_color_management_output_v1_listener kListener{
        .image_description_changed = [](void* data, auto*) { static_cast<Output*>(data)->ask(); },
    };
    if (managed_) return;
    managed_.reset(wp_color_manager_v1_get_output(manager, output_));
    wp_color_management_output_v1_add_listener(managed_.get(), &kListener, this);
    ask();
  }

 private:
  void ask() {
    static constexpr wp_image_description_v1_listener kListener{
        .failed = ignore<wp_image_description_v1*, std::uint32_t, const char*>,
        .ready = [](void* data, auto*, std::uint32_t) { static_cast<Output*>(data)->read(); },
    };
    info_.reset();
    description_.reset(wp_color_management_output_v1_get_image_description(managed_.get()));
    wp_image_description_v1_add_listener(description_.get(), &kListener, this);
  }

  void read() {
    using Info = wp_image_description_info_v1*;
    static constexpr wp_image_description_info_v1_listener kListener{
        .done = [](void* data, auto*) { static_cast<Output*>(data)->finish(); },
        .icc_file = [](void*, auto*, std::int32_t file, std::uint32_t) { close(file); },
        .primaries = ignore<Info, int, int, int, int, int, int, int, int>,
        .primaries_named = ignore<Info, std::uint32_t>,
        .tf_power = ignore<Info, std::uint32_t>,
        .tf_named = ignore<Info, std::uint32_t>,
        .luminances =
            [](void* data, auto*, std::uint32_t, std::uint32_t most, std::uint32_t reference) {
              auto& luminances = static_cast<Output*>(data)->luminances_;
              luminances.most = most;
              luminances.reference = reference;
            },
        .target_primaries = ignore<Info, int, int, int, int, int, int, int, int>,
        .target_luminance =
            [](void* data, auto*, std::uint32_t, std::uint32_t most) {
              static_cast<Output*>(data)->luminances_.screenMost = most;
            },
        .target_max_cll = ignore<Info, std::uint32_t>,
        .target_max_fall = ignore<Info, std::uint32_t>,
    };
    luminances_ = {};
    info_.reset(wp_image_description_v1_get_information(description_.get()));
    wp_image_description_info_v1_add_listener(info_.get(), &kListener, this);
  }

  void finish() {
    info_.reset();
    description_.reset();
    const double ratio = headroomOf(luminances_);
    const ScreenHeadroom told{.potential = ratio, .current = ratio};
    if (std::exchange(headroom_, told) != told) changed_();
  }

  wl_output* output_;
  const std::function<void()>& changed_;
  Owned<wp_color_management_output_v1, wp_color_management_output_v1_destroy> managed_;
  Owned<wp_image_description_v1, wp_image_description_v1_destroy> description_;
  Owned<wp_image_description_info_v1, wp_image_description_info_v1_destroy> info_;
  ScreenLuminances luminances_;
  ScreenHeadroom headroom_;
};

WaylandHeadroom::WaylandHeadroom(wl_display* display, std::function<void()> changed)
    : changed_(std::move(changed)), registry_(std::make_unique<Registry>(display)) {
  registry_->found = [this] {
    for (const auto& [output, followed] : outputs_) followed->follow(registry_->manager.get());
  };
}

WaylandHeadroom::~WaylandHeadroom() = default;

ScreenHeadroom WaylandHeadroom::of(wl_output* output) {
  auto& followed = outputs_[output];
  if (!followed) {
    followed = std::make_unique<Output>(output, changed_);
    if (registry_->manager) followed->follow(registry_->manager.get());
  }
  return followed->headroom();
}

void WaylandHeadroom::forget(wl_output* output) { outputs_.erase(output); }

}  // namespace tromelo
