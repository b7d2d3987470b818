#include "platform/WaylandHeadroom.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <wayland-client.h>
#include <wayland-server.h>

#include <array>
#include <string_view>

#include "color-management-v1-server-protocol.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(Headroom, IsTheScreensOwnPeakAgainstWhite) {
  const Table<ScreenLuminances, double> rows{{{203, 812, 0}, 4},   {{203, 10000, 1015}, 5},
                                             {{80, 80, 0}, 1},     {{203, 100, 0}, 1},
                                             {{0, 1000, 1000}, 1}, {ScreenLuminances(), 1}};
  for (const auto& [told, headroom] : rows) EXPECT_DOUBLE_EQ(headroomOf(told), headroom);
}

/// A host with one output and colour management, and our connection to it.
struct FakeHost {
  FakeHost() {
    std::array<int, 2> ends{};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    wl_global_create(server_, &wl_output_interface, 1, this, bind<&wl_output_interface>);
    wl_global_create(server_, &wp_color_manager_v1_interface, 1, this, bindManager);
    wl_client_create(server_, ends[0]);
    client = wl_display_connect_to_fd(ends[1]);
  }
  ~FakeHost() {
    wl_display_disconnect(client);
    wl_display_destroy_clients(server_);
    wl_display_destroy(server_);
  }

  /// Until neither side has anything more to say.
  void talk() {
    for (int round = 0; round < 20; ++round) {
      wl_display_flush(client);
      wl_event_loop_dispatch(wl_display_get_event_loop(server_), 0);
      wl_display_flush_clients(server_);
      pollfd readable{wl_display_get_fd(client), POLLIN, 0};
      if (poll(&readable, 1, 0) > 0) wl_display_dispatch(client);
    }
  }

  void tellAnotherDescription() {
    wp_color_management_output_v1_send_image_description_changed(managedOutput_);
  }

  wl_display* client = nullptr;
  std::uint32_t most = 812;
  std::uint32_t screenMost = 0;
  int questions = 0;

 private:
  template <const wl_interface* Interface>
  static void bind(wl_client* client, void*, std::uint32_t version, std::uint32_t id) {
    wl_resource_create(client, Interface, int(version), id);
  }

  static void destroy(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

  template <typename Implementation>
  static wl_resource* make(wl_client* client, const wl_interface& interface, std::uint32_t id,
                           const Implementation* implementation, void* host) {
    wl_resource* made = wl_resource_create(client, &interface, 1, id);
    wl_resource_set_implementation(made, implementation, host, nullptr);
    return made;
  }

  static FakeHost& host(wl_resource* of) {
    return *static_cast<FakeHost*>(wl_resource_get_user_data(of));
  }

  static void bindManager(wl_client* client, void* host, std::uint32_t, std::uint32_t id) {
    static const auto kImplementation = [] {
      struct wp_color_manager_v1_interface requests{};
      requests.destroy = destroy;
      requests.get_output = manageOutput;
      return requests;
    }();
    make(client, wp_color_manager_v1_interface, id, &kImplementation, host);
  }

  static void manageOutput(wl_client* client, wl_resource* manager, std::uint32_t id,
                           wl_resource*) {
    static constexpr struct wp_color_management_output_v1_interface kImplementation{
        .destroy = destroy, .get_image_description = describe};
    host(manager).managedOutput_ =
        make(client, wp_color_management_output_v1_interface, id, &kImplementation, &host(manager));
  }

  static void describe(wl_client* client, wl_resource* output, std::uint32_t id) {
    static constexpr struct wp_image_description_v1_interface kImplementation{
        .destroy = destroy, .get_information = inform};
    ++host(output).questions;
    wp_image_description_v1_send_ready(
        make(client, wp_image_description_v1_interface, id, &kImplementation, &host(output)), 7);
  }

  static void inform(wl_client* client, wl_resource* description, std::uint32_t id) {
    wl_resource* info = wl_resource_create(client, &wp_image_description_info_v1_interface, 1, id);
    const FakeHost& self = host(description);
    wp_image_description_info_v1_send_primaries_named(info, 1);
    wp_image_description_info_v1_send_luminances(info, 50, self.most, 203);
    if (self.screenMost > 0)
      wp_image_description_info_v1_send_target_luminance(info, 50, self.screenMost);
    wp_image_description_info_v1_send_done(info);
    wl_resource_destroy(info);
  }

  wl_display* server_ = wl_display_create();
  wl_resource* managedOutput_ = nullptr;
};

wl_output* bindOutput(FakeHost& host, wl_registry* registry) {
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
  host.talk();
  return output;
}

TEST(WaylandHeadroom, AsksTheHostAndFollowsWhatItSays) {
  FakeHost host;
  wl_registry* registry = wl_display_get_registry(host.client);
  wl_output* output = bindOutput(host, registry);
  int changes = 0;
  {
    WaylandHeadroom headroom(host.client, [&] { ++changes; });
    EXPECT_EQ(headroom.of(output).potential, 1);
    host.talk();
    EXPECT_EQ(headroom.of(output).potential, 4);
    EXPECT_EQ(changes, 1);

    host.tellAnotherDescription();
    host.talk();
    EXPECT_EQ(host.questions, 2);
    EXPECT_EQ(changes, 1) << "nothing is other than before";

    host.screenMost = 1015;
    host.tellAnotherDescription();
    host.talk();
    EXPECT_EQ(headroom.of(output), (ScreenHeadroom{5, 5}));
    EXPECT_EQ(changes, 2);
    host.tellAnotherDescription();
    headroom.forget(output);
    host.talk();
  }
  host.talk();
  wl_output_destroy(output);
  wl_registry_destroy(registry);
}

}  // namespace tromelo::testing
