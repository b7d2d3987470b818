#include "TestClient.h"

#include <poll.h>

#include <cerrno>

namespace tromelo::testing {

TestClient::TestClient(const QByteArray& socketPath)
    : display_(wl_display_connect(socketPath.constData())) {
  if (!display_) return;
  static constexpr wl_registry_listener registryListener{
      .global =
          [](void* self, wl_registry* registry, std::uint32_t name, const char* interface,
             std::uint32_t version) {
            auto& client = *static_cast<TestClient*>(self);
            client.versions_[interface] = version;
            client.bind(registry, name, interface);
          },
      .global_remove = [](void*, wl_registry*, std::uint32_t) {},
  };
  registry_.reset(wl_display_get_registry(display_.get()));
  wl_registry_add_listener(registry_.get(), &registryListener, this);
  if (!roundtrip()) return;
  listen();
  roundtrip();
}

void TestClient::bind(wl_registry* registry, std::uint32_t name, const std::string& interface) {
  const auto take = [&](auto& proxy, const wl_interface& wanted, std::uint32_t version) {
    if (interface != wanted.name) return;
    using Pointer = std::remove_reference_t<decltype(proxy)>::pointer;
    proxy.reset(static_cast<Pointer>(wl_registry_bind(registry, name, &wanted, version)));
  };
  take(compositor_, wl_compositor_interface, 6);
  take(subcompositor_, wl_subcompositor_interface, 1);
  take(shm_, wl_shm_interface, 1);
  take(output_, wl_output_interface, 4);
  take(seat_, wl_seat_interface, 5);
  take(shell_, xdg_wm_base_interface, 6);
  take(viewporter_, wp_viewporter_interface, 1);
  take(presentation_, wp_presentation_interface, 1);
  take(dmabuf_, zwp_linux_dmabuf_v1_interface, 3);
}

void TestClient::listen() {
  static constexpr wl_shm_listener shmListener{
      .format = [](void* self, wl_shm*, std::uint32_t format) {
        static_cast<TestClient*>(self)->shmFormats_.push_back(format);
      }};
  static constexpr wl_seat_listener seatListener{
      .capabilities =
          [](void* self, wl_seat*, std::uint32_t value) {
            static_cast<TestClient*>(self)->seatCapabilities_ = value;
          },
      .name = [](void*, wl_seat*, const char*) {},
  };
  static constexpr wl_output_listener outputListener{
      .geometry = [](void*, wl_output*, int, int, int, int, int, const char*, const char*, int) {},
      .mode =
          [](void* self, wl_output*, std::uint32_t flags, int width, int height, int refresh) {
            if (!(flags & WL_OUTPUT_MODE_CURRENT)) return;
            auto& screen = static_cast<TestClient*>(self)->screen_;
            screen.size = QSize(width, height);
            screen.refresh = refresh;
          },
      .done = [](void*, wl_output*) {},
      .scale = [](void* self, wl_output*,
                  int factor) { static_cast<TestClient*>(self)->screen_.scale = factor; },
      .name = [](void*, wl_output*, const char*) {},
      .description = [](void*, wl_output*, const char*) {},
  };
  wl_shm_add_listener(shm_.get(), &shmListener, this);
  wl_seat_add_listener(seat_.get(), &seatListener, this);
  wl_output_add_listener(output_.get(), &outputListener, this);
}

void TestClient::dispatch() {
  wl_display_flush(display_.get());
  while (wl_display_prepare_read(display_.get()) != 0)
    if (wl_display_dispatch_pending(display_.get()) < 0) return;
  pollfd readable{wl_display_get_fd(display_.get()), POLLIN, 0};
  if (poll(&readable, 1, 0) > 0)
    wl_display_read_events(display_.get());
  else
    wl_display_cancel_read(display_.get());
  wl_display_dispatch_pending(display_.get());
}

std::string TestClient::faultyInterface() const {
  const wl_interface* interface = nullptr;
  std::uint32_t id = 0;
  if (wl_display_get_error(display_.get()) != EPROTO) return {};
  wl_display_get_protocol_error(display_.get(), &interface, &id);
  return interface ? interface->name : "";
}

std::uint32_t TestClient::faultCode() const {
  const wl_interface* interface = nullptr;
  std::uint32_t id = 0;
  return wl_display_get_protocol_error(display_.get(), &interface, &id);
}

}  // namespace tromelo::testing
