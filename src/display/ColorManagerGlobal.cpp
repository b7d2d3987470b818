#include "display/ColorManagerGlobal.h"

#include <algorithm>
#include <list>
#include <utility>

#include "color-management-v1-server-protocol.h"
#include "display/ColoredSurface.h"
#include "display/HostColors.h"
#include "display/ImageDescription.h"

namespace tromelo {

namespace {

constexpr int kVersion = 1;

/// One for a display.
class ColorManager {
 public:
  ColorManager(wl_display* display, HostConnection& host)
      : host_(host),
        answers_(std::make_shared<TaskQueue>()),
        colors_(std::make_shared<HostColors>(host, answers_)),
        global_(wl_global_create(display, &wp_color_manager_v1_interface, kVersion, this, bind)) {
    source_ = EventSource::readable(wl_display_get_event_loop(display), answers_->fd(),
                                    [this] { answers_->run(); });
    host.post([colors = colors_, this] {
      if (colors) colors->followPreference([this](std::uint32_t identity) { prefer(identity); });
    });
    end_.notify = [](wl_listener* listener, void*) {
      // The listener is the object's first member.
      const std::unique_ptr<ColorManager> ended(reinterpret_cast<ColorManager*>(listener));
    };
    wl_display_add_destroy_listener(display, &end_);
  }
  ~ColorManager() {
    // Nobody is there any more to be answered; what the host was asked for ends on its thread.
    answers_->close();
    host_.post([colors = std::move(colors_)] {});
  }

 private:
  static ColorManager& of(wl_resource* resource) {
    return *static_cast<ColorManager*>(wl_resource_get_user_data(resource));
  }
  static void bind(wl_client* client, void* self, std::uint32_t version, std::uint32_t id);
  void announce(wl_resource* resource) const;
  void prefer(std::uint32_t identity) {
    for (wl_resource* feedback : feedbacks_)
      wp_color_management_surface_feedback_v1_send_preferred_changed(feedback, identity);
  }
  /// A new description of the engine's, for which the host is asked on its own thread.
  template <typename Ask>
  void describe(wl_resource* by, std::uint32_t id, bool hasInformation, const SurfaceColor& named,
                Ask ask) {
    const auto description =
        ImageDescription::create(by, id, hasInformation, named, host_, colors_);
    if (!description) return;
    host_.post([colors = colors_, ask = std::move(ask),
                answered = ImageDescription::answeredOf(description)] { ask(*colors, answered); });
  }

  static void getOutput(wl_client*, wl_resource*, std::uint32_t id, wl_resource*);
  static void getFeedback(wl_client*, wl_resource*, std::uint32_t id, wl_resource*);
  static void createParametric(wl_client*, wl_resource*, std::uint32_t id);
  static void create(wl_client*, wl_resource*, std::uint32_t id);
  static void createScrgb(wl_client*, wl_resource*, std::uint32_t id);
  static void preferred(wl_client*, wl_resource*, std::uint32_t id);
  static void preferredParametric(wl_client*, wl_resource*, std::uint32_t id);

  friend struct Creator;

  wl_listener end_{};  // first
  HostConnection& host_;
  const std::shared_ptr<TaskQueue> answers_;
  std::shared_ptr<HostColors> colors_;
  wl_global* global_;  // the display's
  std::optional<EventSource> source_;
  std::list<wl_resource*> feedbacks_;
};

void destroyResource(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

wl_resource* make(wl_resource* by, const wl_interface& interface, std::uint32_t id,
                  const void* implementation, void* data, wl_resource_destroy_func_t end) {
  wl_client* client = wl_resource_get_client(by);
  wl_resource* made = wl_resource_create(client, &interface, wl_resource_get_version(by), id);
  if (made)
    wl_resource_set_implementation(made, implementation, data, end);
  else
    wl_client_post_no_memory(client);
  return made;
}

/// Collects the parameters of a description.
struct Creator {
  ColorManager& manager;
  ColorParameters parameters;

  static Creator& of(wl_resource* resource) {
    return *static_cast<Creator*>(wl_resource_get_user_data(resource));
  }
  /// Each may be set once, and only as the host has it.
  template <typename T>
  static void set(wl_resource* resource, std::optional<T> ColorParameters::* member, T value) {
    ColorParameters& parameters = of(resource).parameters;
    if (parameters.*member)
      return wl_resource_post_error(
          resource, WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_ALREADY_SET, "it is set already");
    parameters.*member = std::move(value);
    if (const auto fault = parameters.faultOf(of(resource).manager.host_.colorSupport()))
      wl_resource_post_error(resource, *fault, "the host has no such parameter");
  }
  template <auto Member>
  static void setNumber(wl_client*, wl_resource* resource, std::uint32_t value) {
    set(resource, Member, value);
  }
  template <auto Member>
  static void setPrimaries(wl_client*, wl_resource* resource, std::int32_t rx, std::int32_t ry,
                           std::int32_t gx, std::int32_t gy, std::int32_t bx, std::int32_t by,
                           std::int32_t wx, std::int32_t wy) {
    set(resource, Member, ColorParameters::Primaries{rx, ry, gx, gy, bx, by, wx, wy});
  }
};

void ColorManager::create(wl_client*, wl_resource* resource, std::uint32_t id) {
  const ColorParameters parameters = Creator::of(resource).parameters;
  ColorManager& self = Creator::of(resource).manager;
  if (const auto fault = parameters.faultOfWhole())
    return wl_resource_post_error(resource, *fault, "the parameters make no description");
  const SurfaceColor named{.transfer = parameters.transfer.value_or(0),
                           .primaries = parameters.namedPrimaries.value_or(0)};
  self.describe(resource, id, false, named, [parameters](HostColors& colors, auto answered) {
    colors.make(parameters, answered);
  });
  wl_resource_destroy(resource);
}

void ColorManager::createParametric(wl_client*, wl_resource* resource, std::uint32_t id) {
  using P = ColorParameters;
  static constexpr struct wp_image_description_creator_params_v1_interface kCreator{
      .create = create,
      .set_tf_named = Creator::setNumber<&P::transfer>,
      .set_tf_power = Creator::setNumber<&P::power>,
      .set_primaries_named = Creator::setNumber<&P::namedPrimaries>,
      .set_primaries = Creator::setPrimaries<&P::primaries>,
      .set_luminances =
          [](wl_client*, wl_resource* r, std::uint32_t least, std::uint32_t most,
             std::uint32_t reference) {
            Creator::set(r, &P::luminances, std::array{least, most, reference});
          },
      .set_mastering_display_primaries = Creator::setPrimaries<&P::masteringPrimaries>,
      .set_mastering_luminance =
          [](wl_client*, wl_resource* r, std::uint32_t least, std::uint32_t most) {
            Creator::set(r, &P::masteringLuminance, std::array{least, most});
          },
      .set_max_cll = Creator::setNumber<&P::maxCll>,
      .set_max_fall = Creator::setNumber<&P::maxFall>,
  };
  ColorManager& self = of(resource);
  if (!self.host_.colorSupport().has(WP_COLOR_MANAGER_V1_FEATURE_PARAMETRIC))
    return wl_resource_post_error(resource, WP_COLOR_MANAGER_V1_ERROR_UNSUPPORTED_FEATURE,
                                  "the host takes no parameters");
  auto creator = std::make_unique<Creator>(self);
  const auto end = [](wl_resource* r) { const std::unique_ptr<Creator> ended(&Creator::of(r)); };
  if (make(resource, wp_image_description_creator_params_v1_interface, id, &kCreator, creator.get(),
           end))
    creator.release();  // the resource's
}

void ColorManager::createScrgb(wl_client*, wl_resource* resource, std::uint32_t id) {
  ColorManager& self = of(resource);
  if (!self.host_.colorSupport().has(WP_COLOR_MANAGER_V1_FEATURE_WINDOWS_SCRGB))
    return wl_resource_post_error(resource, WP_COLOR_MANAGER_V1_ERROR_UNSUPPORTED_FEATURE,
                                  "the host has no Windows scRGB");
  const SurfaceColor named{.transfer = WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_EXT_LINEAR,
                           .primaries = WP_COLOR_MANAGER_V1_PRIMARIES_SRGB};
  self.describe(resource, id, false, named,
                [](HostColors& colors, auto answered) { colors.makeWindowsScrgb(answered); });
}

void ColorManager::preferred(wl_client*, wl_resource* resource, std::uint32_t id) {
  of(resource).describe(resource, id, true, {},
                        [](HostColors& colors, auto answered) { colors.prefer(false, answered); });
}

void ColorManager::preferredParametric(wl_client*, wl_resource* resource, std::uint32_t id) {
  if (!of(resource).host_.colorSupport().has(WP_COLOR_MANAGER_V1_FEATURE_PARAMETRIC))
    return wl_resource_post_error(resource,
                                  WP_COLOR_MANAGEMENT_SURFACE_FEEDBACK_V1_ERROR_UNSUPPORTED_FEATURE,
                                  "the host takes no parameters");
  of(resource).describe(resource, id, true, {},
                        [](HostColors& colors, auto answered) { colors.prefer(true, answered); });
}

/// Our screen is wherever the window is: its colours are those that the host prefers.
void ColorManager::getOutput(wl_client*, wl_resource* resource, std::uint32_t id, wl_resource*) {
  static constexpr struct wp_color_management_output_v1_interface kOutput{
      .destroy = destroyResource,
      .get_image_description = preferred,
  };
  make(resource, wp_color_management_output_v1_interface, id, &kOutput, &of(resource), nullptr);
}

void ColorManager::getFeedback(wl_client*, wl_resource* resource, std::uint32_t id, wl_resource*) {
  static constexpr struct wp_color_management_surface_feedback_v1_interface kFeedback{
      .destroy = destroyResource,
      .get_preferred = preferred,
      .get_preferred_parametric = preferredParametric,
  };
  const auto end = [](wl_resource* r) { of(r).feedbacks_.remove(r); };
  wl_resource* made = make(resource, wp_color_management_surface_feedback_v1_interface, id,
                           &kFeedback, &of(resource), end);
  if (made) of(resource).feedbacks_.push_back(made);
}

void ColorManager::bind(wl_client* client, void* self, std::uint32_t version, std::uint32_t id) {
  static constexpr struct wp_color_manager_v1_interface kManager{
      .destroy = destroyResource,
      .get_output = getOutput,
      .get_surface = ColoredSurface::create,
      .get_surface_feedback = getFeedback,
      .create_icc_creator =
          [](wl_client*, wl_resource* r, std::uint32_t) {
            wl_resource_post_error(r, WP_COLOR_MANAGER_V1_ERROR_UNSUPPORTED_FEATURE,
                                   "profiles in files aren't passed on");
          },
      .create_parametric_creator = createParametric,
      .create_windows_scrgb = createScrgb,
  };
  wl_resource* manager =
      wl_resource_create(client, &wp_color_manager_v1_interface, int(version), id);
  if (!manager) return wl_client_post_no_memory(client);
  wl_resource_set_implementation(manager, &kManager, self, nullptr);
  static_cast<ColorManager*>(self)->announce(manager);
}

void ColorManager::announce(wl_resource* resource) const {
  const HostColorSupport& support = host_.colorSupport();
  for (const auto intent : support.intents)
    wp_color_manager_v1_send_supported_intent(resource, intent);
  for (const auto feature : support.features)
    if (feature != WP_COLOR_MANAGER_V1_FEATURE_ICC_V2_V4)
      wp_color_manager_v1_send_supported_feature(resource, feature);
  for (const auto transfer : support.transferFunctions)
    wp_color_manager_v1_send_supported_tf_named(resource, transfer);
  for (const auto primaries : support.primaries)
    wp_color_manager_v1_send_supported_primaries_named(resource, primaries);
  wp_color_manager_v1_send_done(resource);
}

}  // namespace

void announceColorManager(wl_display* display, HostConnection& host) {
  // The display's: it ends it.
  std::make_unique<ColorManager>(display, host).release();
}

std::optional<SurfaceColor> surfaceColorOf(wlr_surface* surface) {
  return ColoredSurface::colorOf(surface);
}

}  // namespace tromelo
