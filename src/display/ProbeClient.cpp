#include "display/ProbeClient.h"

#include <sys/mman.h>
#include <wayland-client.h>

#include <cstring>

#include "display/UniqueFd.h"
#include "linux-dmabuf-v1-client-protocol.h"

namespace tromelo {

namespace {

constexpr std::uint32_t feedbackVersion = 4;

/// An entry of the protocol's format table.
struct TableEntry {
  std::uint32_t fourcc;
  std::uint32_t padding;
  std::uint64_t modifier;
};
static_assert(sizeof(TableEntry) == 16);

class Probe {
 public:
  explicit Probe(wl_display* display) : display_(display) {}

  DisplayFacts run();

 private:
  void bind(wl_registry* registry, std::uint32_t name, const std::string& interface);
  void askForFeedback();
  void addTranche(const wl_array& indices);

  wl_display* display_;
  DisplayFacts facts_;
  wl_output* output_ = nullptr;
  zwp_linux_dmabuf_v1* dmabuf_ = nullptr;
  std::vector<TableEntry> table_;
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
  if (dmabuf_) askForFeedback();
  wl_display_roundtrip(display_);
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
        wl_registry_bind(registry, name, &zwp_linux_dmabuf_v1_interface, feedbackVersion));
  }
}

void Probe::askForFeedback() {
  static constexpr zwp_linux_dmabuf_feedback_v1_listener listener{
      .done = [](void*, zwp_linux_dmabuf_feedback_v1*) {},
      .format_table =
          [](void* self, zwp_linux_dmabuf_feedback_v1*, int descriptor, std::uint32_t size) {
            const UniqueFd fd(descriptor);
            void* memory = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd.get(), 0);
            if (memory == MAP_FAILED) return;
            const auto* entries = static_cast<const TableEntry*>(memory);
            static_cast<Probe*>(self)->table_.assign(entries, entries + size / sizeof *entries);
            munmap(memory, size);
          },
      .main_device =
          [](void* self, zwp_linux_dmabuf_feedback_v1*, wl_array* device) {
            auto& dmabuf = static_cast<Probe*>(self)->facts_.dmabuf.emplace(DisplayFacts::Dmabuf{});
            if (device->size == sizeof(dev_t))
              std::memcpy(&dmabuf.mainDevice, device->data, sizeof(dev_t));
          },
      .tranche_done = [](void*, zwp_linux_dmabuf_feedback_v1*) {},
      .tranche_target_device = [](void*, zwp_linux_dmabuf_feedback_v1*, wl_array*) {},
      .tranche_formats = [](void* self, zwp_linux_dmabuf_feedback_v1*,
                            wl_array* indices) { static_cast<Probe*>(self)->addTranche(*indices); },
      .tranche_flags = [](void*, zwp_linux_dmabuf_feedback_v1*, std::uint32_t) {},
  };
  zwp_linux_dmabuf_feedback_v1* feedback = zwp_linux_dmabuf_v1_get_default_feedback(dmabuf_);
  zwp_linux_dmabuf_feedback_v1_add_listener(feedback, &listener, this);
  wl_display_roundtrip(display_);
  zwp_linux_dmabuf_feedback_v1_destroy(feedback);
}

void Probe::addTranche(const wl_array& indices) {
  const auto* first = static_cast<const std::uint16_t*>(indices.data);
  for (const auto* index = first; index != first + indices.size / sizeof *first; ++index)
    if (*index < table_.size() && facts_.dmabuf)
      facts_.dmabuf->formats.push_back({table_[*index].fourcc, table_[*index].modifier});
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
