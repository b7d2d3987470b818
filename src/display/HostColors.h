#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "display/ColorParameters.h"
#include "display/HostImageDescription.h"

struct wl_resource;

namespace tromelo {

/// Asks the host about colours for the engine. Its answers come on the display's thread. Host
/// thread, but for what says otherwise.
class HostColors {
 public:
  /// What became of a description.
  struct Answer {
    std::shared_ptr<const HostImageDescription> made = nullptr;  // none: the host has none such
    std::uint32_t identity = 0;
    std::uint32_t cause = 0;  // wp_image_description_v1.cause, where none was made
  };
  using Answered = std::function<void(const Answer&)>;
  /// Sends one event of wp_image_description_info_v1 to the engine's object.
  using InfoEvent = std::function<void(wl_resource* info)>;

  /// Any thread. `host` outlives it; `answers` is the display's.
  HostColors(HostConnection& host, std::shared_ptr<TaskQueue> answers);
  ~HostColors();
  HostColors(const HostColors&) = delete;
  HostColors& operator=(const HostColors&) = delete;

  void make(const ColorParameters& parameters, Answered answered);
  void makeWindowsScrgb(Answered answered);
  /// What the host likes pictures of ours to be; parametric, where the host says what it is made
  /// of.
  void prefer(bool parametric, Answered answered);
  /// Calls `changed` with the identity of each later preference. The first of all requests.
  void followPreference(std::function<void(std::uint32_t)> changed);
  /// `told` comes for each event; the last one is "done".
  void inform(const std::shared_ptr<const HostImageDescription>& description,
              std::function<void(InfoEvent)> told);

 private:
  struct Question;
  struct Inquiry;

  void ask(wp_image_description_v1* proxy, Answered answered);
  void askAbout(wl_surface* surface);

  HostConnection& host_;
  const std::shared_ptr<TaskQueue> answers_;
  HostProxy<wl_surface> unshown_;  // to ask about while nothing is shown
  HostProxy<wp_color_management_surface_feedback_v1> feedback_;
  std::function<void(std::uint32_t)> changed_;
  std::vector<std::unique_ptr<Question>> questions_;
  std::vector<std::unique_ptr<Inquiry>> inquiries_;
};

}  // namespace tromelo
