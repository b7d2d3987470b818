#include "TestClient.h"

#include <poll.h>

#include <cerrno>

namespace tromelo::testing {

TestClient::TestClient(const QByteArray& socketPath)
    : display(wl_display_connect(socketPath.constData())) {
  if (!display) return;
  static constexpr wl_registry_listener listener{
      .global = [](void* self, wl_registry*, std::uint32_t name, const char* interface,
                   std::uint32_t) { static_cast<TestClient*>(self)->bind(name, interface); },
      .global_remove = [](void*, wl_registry*, std::uint32_t) {},
  };
  registry.reset(wl_display_get_registry(display.get()));
  wl_registry_add_listener(registry.get(), &listener, this);
  roundtrip();
}

void TestClient::bind(std::uint32_t name, const std::string& interface) {
  const auto take = [&](auto& proxy, const wl_interface& wanted, std::uint32_t version) {
    if (interface != wanted.name) return;
    using Pointer = std::remove_reference_t<decltype(proxy)>::pointer;
    proxy.reset(static_cast<Pointer>(wl_registry_bind(registry.get(), name, &wanted, version)));
  };
  take(compositor, wl_compositor_interface, 6);
  take(shm, wl_shm_interface, 1);
  take(shell, xdg_wm_base_interface, 6);
  take(viewporter, wp_viewporter_interface, 1);
  take(presentation, wp_presentation_interface, 1);
  take(colorManager, wp_color_manager_v1_interface, 1);
  take(syncManager, wp_linux_drm_syncobj_manager_v1_interface, 1);
  take(dmabuf, zwp_linux_dmabuf_v1_interface, 3);
}

void TestClient::dispatch() {
  wl_display_flush(display.get());
  while (wl_display_prepare_read(display.get()) != 0)
    if (wl_display_dispatch_pending(display.get()) < 0) return;
  pollfd readable{wl_display_get_fd(display.get()), POLLIN, 0};
  if (poll(&readable, 1, 0) > 0)
    wl_display_read_events(display.get());
  else
    wl_display_cancel_read(display.get());
  wl_display_dispatch_pending(display.get());
}

std::string TestClient::faultyInterface() const {
  const wl_interface* interface = nullptr;
  if (wl_display_get_error(display.get()) != EPROTO) return {};
  wl_display_get_protocol_error(display.get(), &interface, nullptr);
  return interface ? interface->name : "";
}

}  // namespace tromelo::testing
