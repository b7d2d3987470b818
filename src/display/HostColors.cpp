#include "display/HostColors.h"

#include <unistd.h>

#include <utility>

#include "color-management-v1-client-protocol.h"
#include "color-management-v1-server-protocol.h"
#include "platform/UniqueFd.h"

namespace tromelo {

HostImageDescription::HostImageDescription(wp_image_description_v1* proxy) : proxy_(proxy) {}

HostImageDescription::~HostImageDescription() { wp_image_description_v1_destroy(proxy_); }

/// A description that the host hasn't answered for yet.
struct HostColors::Question {
  void finish(const Answer& answer) {
    owner.answers_->postUnlessClosed([answered = answered, answer] { answered(answer); });
    std::erase_if(owner.questions_, [this](const auto& held) { return held.get() == this; });
  }

  HostColors& owner;
  Answered answered;
  HostProxy<wp_image_description_v1> proxy;
};

/// What the host tells of a description, event by event.
struct HostColors::Inquiry {
  /// One event, with its arguments, goes on as it is.
  template <auto Send, typename... Arguments>
  static void relay(void* data, wp_image_description_info_v1*, Arguments... arguments) {
    static_cast<Inquiry*>(data)->tell([=](wl_resource* info) { Send(info, arguments...); });
  }
  void tell(InfoEvent event) const {
    owner.answers_->postUnlessClosed([told = told, event = std::move(event)] { told(event); });
  }
  void finish() {
    std::erase_if(owner.inquiries_, [this](const auto& held) { return held.get() == this; });
  }

  HostColors& owner;
  std::function<void(InfoEvent)> told;
  std::shared_ptr<const HostImageDescription> description;
  HostProxy<wp_image_description_info_v1> proxy;
};

HostColors::HostColors(HostConnection& host, std::shared_ptr<TaskQueue> answers)
    : host_(host), answers_(std::move(answers)) {}

HostColors::~HostColors() { host_.followPictureSurface({}); }

void HostColors::make(const ColorParameters& parameters, Answered answered) {
  auto* creator = wp_color_manager_v1_create_parametric_creator(host_.colorManager());
  parameters.tell(creator);
  ask(wp_image_description_creator_params_v1_create(creator), std::move(answered));
}

void HostColors::makeWindowsScrgb(Answered answered) {
  ask(wp_color_manager_v1_create_windows_scrgb(host_.colorManager()), std::move(answered));
}

void HostColors::prefer(bool parametric, Answered answered) {
  ask(parametric ? wp_color_management_surface_feedback_v1_get_preferred_parametric(feedback_.get())
                 : wp_color_management_surface_feedback_v1_get_preferred(feedback_.get()),
      std::move(answered));
}

void HostColors::followPreference(std::function<void(std::uint32_t)> changed) {
  changed_ = std::move(changed);
  host_.followPictureSurface([this](wl_surface* surface) { askAbout(surface); });
}

/// What the host likes depends on the screen that a surface is on.
void HostColors::askAbout(wl_surface* surface) {
  static constexpr wp_color_management_surface_feedback_v1_listener kListener{
      .preferred_changed = [](void* data, auto*, std::uint32_t identity) {
        const auto& self = *static_cast<HostColors*>(data);
        self.answers_->postUnlessClosed([changed = self.changed_, identity] { changed(identity); });
      }};
  if (!surface && !unshown_) unshown_.reset(wl_compositor_create_surface(host_.compositor()));
  feedback_.reset(wp_color_manager_v1_get_surface_feedback(host_.colorManager(),
                                                           surface ? surface : unshown_.get()));
  wp_color_management_surface_feedback_v1_add_listener(feedback_.get(), &kListener, this);
}

void HostColors::ask(wp_image_description_v1* proxy, Answered answered) {
  static constexpr wp_image_description_v1_listener kListener{
      .failed =
          [](void* data, auto*, std::uint32_t cause, const char*) {
            static_cast<Question*>(data)->finish({.made = nullptr, .cause = cause});
          },
      .ready =
          [](void* data, auto*, std::uint32_t identity) {
            auto& self = *static_cast<Question*>(data);
            self.finish({.made = std::make_shared<HostImageDescription>(self.proxy.release()),
                         .identity = identity});
          },
  };
  questions_.push_back(std::make_unique<Question>(*this, std::move(answered)));
  Question& question = *questions_.back();
  question.proxy.reset(proxy);
  wp_image_description_v1_add_listener(proxy, &kListener, &question);
}

void HostColors::inform(const std::shared_ptr<const HostImageDescription>& description,
                        std::function<void(InfoEvent)> told) {
  static constexpr wp_image_description_info_v1_listener kListener{
      .done =
          [](void* data, auto*) {
            auto& self = *static_cast<Inquiry*>(data);
            self.tell([](wl_resource* info) {
              wp_image_description_info_v1_send_done(info);
              wl_resource_destroy(info);
            });
            self.finish();
          },
      .icc_file =
          [](void* data, auto*, std::int32_t file, std::uint32_t size) {
            const auto owned = std::make_shared<UniqueFd>(file);
            static_cast<Inquiry*>(data)->tell([owned, size](wl_resource* info) {
              wp_image_description_info_v1_send_icc_file(info, owned->get(), size);
            });
          },
      .primaries = Inquiry::relay<wp_image_description_info_v1_send_primaries>,
      .primaries_named = Inquiry::relay<wp_image_description_info_v1_send_primaries_named>,
      .tf_power = Inquiry::relay<wp_image_description_info_v1_send_tf_power>,
      .tf_named = Inquiry::relay<wp_image_description_info_v1_send_tf_named>,
      .luminances = Inquiry::relay<wp_image_description_info_v1_send_luminances>,
      .target_primaries = Inquiry::relay<wp_image_description_info_v1_send_target_primaries>,
      .target_luminance = Inquiry::relay<wp_image_description_info_v1_send_target_luminance>,
      .target_max_cll = Inquiry::relay<wp_image_description_info_v1_send_target_max_cll>,
      .target_max_fall = Inquiry::relay<wp_image_description_info_v1_send_target_max_fall>,
  };
  inquiries_.push_back(std::make_unique<Inquiry>(*this, std::move(told), description));
  Inquiry& inquiry = *inquiries_.back();
  inquiry.proxy.reset(wp_image_description_v1_get_information(description->proxy()));
  wp_image_description_info_v1_add_listener(inquiry.proxy.get(), &kListener, &inquiry);
}

}  // namespace tromelo
