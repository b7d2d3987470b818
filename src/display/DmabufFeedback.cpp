#include "display/DmabufFeedback.h"

#include <sys/mman.h>
#include <wayland-client.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "display/HostProxy.h"
#include "linux-dmabuf-v1-client-protocol.h"
#include "platform/UniqueFd.h"

namespace tromelo {

namespace {

constexpr std::uint32_t kFeedbackVersion = 4;

dev_t deviceIn(const wl_array& array) {
  dev_t device = 0;
  if (array.size == sizeof device) std::memcpy(&device, array.data, sizeof device);
  return device;
}

}  // namespace

void DmabufFeedback::listen(zwp_linux_dmabuf_v1* global) {
  static constexpr zwp_linux_dmabuf_v1_listener kBefore{
      .format = ignore<zwp_linux_dmabuf_v1*, std::uint32_t>,
      .modifier =
          [](void* data, auto*, std::uint32_t fourcc, std::uint32_t high, std::uint32_t low) {
            add(static_cast<DmabufFeedback*>(data)->tranche_, fourcc,
                std::uint64_t(high) << 32 | low);
          },
  };
  zwp_linux_dmabuf_v1_add_listener(global, &kBefore, this);
}

void DmabufFeedback::ask(zwp_linux_dmabuf_v1* global) {
  static constexpr zwp_linux_dmabuf_feedback_v1_listener kListener{
      .done =
          [](void* data, auto* feedback) {
            static_cast<DmabufFeedback*>(data)->feedback_ = nullptr;
            zwp_linux_dmabuf_feedback_v1_destroy(feedback);
          },
      .format_table =
          [](void* data, auto*, int descriptor, std::uint32_t size) {
            static_cast<DmabufFeedback*>(data)->readTable(descriptor, size);
          },
      .main_device =
          [](void* data, auto*, wl_array* device) {
            static_cast<DmabufFeedback*>(data)->mainDevice_ = deviceIn(*device);
          },
      .tranche_done =
          [](void* data, auto*) {
            auto& self = *static_cast<DmabufFeedback*>(data);
            self.tranches_.push_back(std::exchange(self.tranche_, {}));
          },
      .tranche_target_device =
          [](void* data, auto*, wl_array* device) {
            static_cast<DmabufFeedback*>(data)->tranche_.device = deviceIn(*device);
          },
      .tranche_formats =
          [](void* data, auto*, wl_array* indices) {
            static_cast<DmabufFeedback*>(data)->addFormats(*indices);
          },
      .tranche_flags =
          [](void* data, auto*, std::uint32_t flags) {
            static_cast<DmabufFeedback*>(data)->tranche_.flags = flags;
          },
  };
  if (zwp_linux_dmabuf_v1_get_version(global) < kFeedbackVersion) return;
  feedback_ = zwp_linux_dmabuf_v1_get_default_feedback(global);
  zwp_linux_dmabuf_feedback_v1_add_listener(feedback_, &kListener, this);
}

std::optional<DmabufSupport> DmabufFeedback::take(std::optional<dev_t> fallbackDevice) {
  if (feedback_) zwp_linux_dmabuf_feedback_v1_destroy(std::exchange(feedback_, nullptr));
  const auto device = mainDevice_ ? mainDevice_ : fallbackDevice;
  if (!device) return std::nullopt;
  if (!tranche_.formats.empty()) {
    tranche_.device = *device;
    tranches_.push_back(std::exchange(tranche_, {}));
  }
  if (tranches_.empty()) return std::nullopt;
  return DmabufSupport{*device, std::move(tranches_)};
}

void DmabufFeedback::readTable(int descriptor, std::uint32_t size) {
  const UniqueFd fd(descriptor);
  void* memory = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd.get(), 0);
  if (memory == MAP_FAILED) return;
  const auto* entries = static_cast<const TableEntry*>(memory);
  table_.assign(entries, entries + size / sizeof *entries);
  munmap(memory, size);
}

void DmabufFeedback::addFormats(const wl_array& indices) {
  const auto* first = static_cast<const std::uint16_t*>(indices.data);
  for (const auto* index = first; index != first + indices.size / sizeof *first; ++index)
    if (*index < table_.size()) add(tranche_, table_[*index].fourcc, table_[*index].modifier);
}

void DmabufFeedback::add(DmabufSupport::Tranche& tranche, std::uint32_t fourcc,
                         std::uint64_t modifier) {
  auto found = std::ranges::find(tranche.formats, fourcc, &DmabufSupport::Format::fourcc);
  if (found == tranche.formats.end())
    found = tranche.formats.insert(found, DmabufSupport::Format{fourcc, {}});
  found->modifiers.push_back(modifier);
}

}  // namespace tromelo
