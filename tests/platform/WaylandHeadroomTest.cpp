#include "platform/WaylandHeadroom.h"

#include <gtest/gtest.h>

#include <string_view>

#include "RecordingHost.h"
#include "color-management-v1-server-protocol.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(Headroom, IsTheScreensOwnPeakAgainstWhite) {
  const Table<ScreenLuminances, double> rows{{{203, 812, 0}, 4},   {{203, 10000, 1015}, 5},
                                             {{80, 80, 0}, 1},     {{203, 100, 0}, 1},
                                             {{0, 1000, 1000}, 1}, {ScreenLuminances(), 1}};
  for (const auto& [told, headroom] : rows) EXPECT_DOUBLE_EQ(headroomOf(told), headroom);
}

wl_output* bindOutput(RecordingHost& host, wl_registry* registry) {
  static wl_output* output;
  static constexpr wl_registry_listener kListener{
      .global =
          [](void*, wl_registry* from, std::uint32_t name, const char* interface, std::uint32_t) {
            if (std::string_view(interface) == wl_output_interface.name)
              output =
                  static_cast<wl_output*>(wl_registry_bind(from, name, &wl_output_interface, 1));
          },
      .global_remove = [](void*, wl_registry*, std::uint32_t) {},
  };
  wl_registry_add_listener(registry, &kListener, nullptr);
  host.settle();
  return output;
}

/// The host answers what it is asked of its output. `screenMost` 0 isn't told.
void describe(RecordingHost& host, std::uint32_t screenMost) {
  for (int trips = 0; trips < 2; ++trips) host.settle();  // the question was asked in an answer
  host.tell("wp_image_description_v1",
            [](wl_resource* r) { wp_image_description_v1_send_ready(r, 7); });
  for (int trips = 0; trips < 2; ++trips) host.settle();
  host.tell("wp_image_description_info_v1", [screenMost](wl_resource* r) {
    wp_image_description_info_v1_send_primaries_named(r, 1);
    wp_image_description_info_v1_send_luminances(r, 50, 812, 203);
    if (screenMost > 0) wp_image_description_info_v1_send_target_luminance(r, 50, screenMost);
    wp_image_description_info_v1_send_done(r);
    wl_resource_destroy(r);
  });
  host.settle();
}

TEST(WaylandHeadroom, AsksTheHostAndFollowsWhatItSays) {
  RecordingHost host({RecordingHost::Feature::newerColorManager, RecordingHost::Feature::output});
  wl_registry* registry = wl_display_get_registry(host.client());
  wl_output* output = bindOutput(host, registry);
  const auto tellAnother = [&] {
    host.tell("wp_color_management_output_v1", [](wl_resource* r) {
      wp_color_management_output_v1_send_image_description_changed(r);
    });
  };
  int changes = 0;
  {
    WaylandHeadroom headroom(host.client(), [&] { ++changes; });
    EXPECT_EQ(headroom.of(output).potential, 1);
    describe(host, 0);
    EXPECT_EQ(host.count("wp_color_manager_v1.bound 1"), 1);
    EXPECT_EQ(headroom.of(output).potential, 4);
    EXPECT_EQ(changes, 1);

    tellAnother();
    describe(host, 0);
    EXPECT_EQ(changes, 1) << "nothing is other than before";

    tellAnother();
    describe(host, 1015);
    EXPECT_EQ(headroom.of(output), (ScreenHeadroom{5, 5}));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(host.count("wp_color_management_output_v1.get_image_description"), 3);
    tellAnother();
    headroom.forget(output);
    host.settle();
  }
  host.settle();
  wl_output_destroy(output);
  wl_registry_destroy(registry);
}

}  // namespace tromelo::testing
