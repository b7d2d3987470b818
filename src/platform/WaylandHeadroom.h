#pragma once

#include <functional>
#include <map>
#include <memory>

#include "platform/ScreenHeadroom.h"

struct wl_display;
struct wl_output;
struct wp_color_manager_v1;

namespace tromelo {

/// Luminances of a screen in cd/m², as a Wayland host tells them; 0 where it doesn't.
struct ScreenLuminances {
  double reference = 0;   // of plain white
  double most = 0;        // of the host's pictures
  double screenMost = 0;  // of the screen itself
};

/// 1 where what was told makes no sense.
double headroomOf(const ScreenLuminances& luminances);

/// Asks a Wayland host how bright its screens get, where it has colour management. Answers come in
/// with the host's other events; nothing waits for them. Main thread only.
class WaylandHeadroom {
 public:
  /// `changed` is called when an output's headroom becomes known or changes. `display` outlives it;
  /// its default queue is dispatched by somebody else.
  WaylandHeadroom(wl_display* display, std::function<void()> changed);
  ~WaylandHeadroom();

  /// Standard range until the host has told. Outputs outlive this object or are forgotten.
  ScreenHeadroom of(wl_output* output);
  void forget(wl_output* output);

 private:
  class Output;
  struct Registry;

  std::function<void()> changed_;
  std::unique_ptr<Registry> registry_;
  std::map<wl_output*, std::unique_ptr<Output>> outputs_;
};

}  // namespace tromelo
