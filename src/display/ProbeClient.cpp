#include "display/ProbeClient.h"

#include <wayland-client.h>

#include "display/DmabufFeedback.h"
#include "linux-dmabuf-v1-client-protocol.h"

namespace tromelo {

namespace {

constexpr std::uint32_t kFeedbackVersion = 4;

class Probe {
 public:
  explicit Probe(wl_display* display) : display_(display) {}

  DisplayFacts run();

 private:
  void bind(wl_registry* registry, std::uint32_t name, const std::string& interface);

  wl_display* display_;
  DisplayFacts facts_;
  wl_output* output_ = nullptr;
  zwp_linux_dmabuf_v1* dmabuf_ = nullptr;
};

DisplayFacts Probe::run() {
  static constexpr wl_registry_listener listener{
      .global =
          [](void* self, wl_registry* registry, std::uint32_t name, const char* interface,
             std::uint32_t version) {
            auto& probe = *static_cast<Probe*>(self);
            probe.facts_.globals.emplace_back(interface, version);
            probe.bind(registry, name, interface);
          },
      .global_remove = [](void*, wl_registry*, std::uint32_t) {},
  };
  wl_registry* registry = wl_display_get_registry(display_);
  wl_registry_add_listener(registry, &listener, this);
  wl_display_roundtrip(display_);
  DmabufFeedback feedback;
  if (dmabuf_) feedback.ask(dmabuf_);
  wl_display_roundtrip(display_);
  facts_.dmabuf = feedback.take();
  if (dmabuf_) zwp_linux_dmabuf_v1_destroy(dmabuf_);
  if (output_) wl_output_destroy(output_);
  wl_registry_destroy(registry);
  return facts_;
}

void Probe::bind(wl_registry* registry, std::uint32_t name, const std::string& interface) {
  static constexpr wl_output_listener listener{
      .geometry = [](void*, wl_output*, int, int, int, int, int, const char*, const char*, int) {},
      .mode =
          [](void* self, wl_output*, std::uint32_t, int width, int height, int refresh) {
            auto& facts = static_cast<Probe*>(self)->facts_;
            facts.screen = QSize(width, height);
            facts.refreshMillihertz = refresh;
          },
      .done = nullptr,
      .scale = nullptr,
      .name = nullptr,
      .description = nullptr,
  };
  if (interface == wl_output_interface.name) {
    output_ = static_cast<wl_output*>(wl_registry_bind(registry, name, &wl_output_interface, 1));
    wl_output_add_listener(output_, &listener, this);
  } else if (interface == zwp_linux_dmabuf_v1_interface.name) {
    dmabuf_ = static_cast<zwp_linux_dmabuf_v1*>(
        wl_registry_bind(registry, name, &zwp_linux_dmabuf_v1_interface, kFeedbackVersion));
  }
}

}  // namespace

std::optional<DisplayFacts> probeDisplay(const QByteArray& socketPath) {
  wl_display* display = wl_display_connect(socketPath.constData());
  if (!display) return std::nullopt;
  std::optional<DisplayFacts> facts = Probe(display).run();
  if (wl_display_get_error(display) != 0) facts.reset();
  wl_display_disconnect(display);
  return facts;
}

}  // namespace tromelo
