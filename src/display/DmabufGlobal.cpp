#include "display/DmabufGlobal.h"

#include <algorithm>
#include <utility>

#include "display/PixelFormat.h"

namespace tromelo {

namespace {

constexpr std::uint32_t dmabufVersion = 4;

}  // namespace

DmabufGlobal::DmabufGlobal(wl_display* display, DmabufSupport support)
    : support_(std::move(support)) {
  wlr_linux_dmabuf_feedback_v1 feedback{};
  feedback.main_device = support_.mainDevice;
  if (auto* tranche = wlr_linux_dmabuf_feedback_add_tranche(&feedback)) {
    tranche->target_device = support_.mainDevice;
    for (const DmabufSupport::Format& format : support_.formats)
      for (const std::uint64_t modifier : format.modifiers)
        wlr_drm_format_set_add(&tranche->formats, format.fourcc, modifier);
    global_ = wlr_linux_dmabuf_v1_create(display, dmabufVersion, &feedback);
  }
  wlr_linux_dmabuf_feedback_v1_finish(&feedback);
  if (!global_) return;
  // Without a renderer wlroots would take any format, modifier and stride.
  const auto check = [](wlr_dmabuf_attributes* attributes, void* self) {
    return accepts(static_cast<DmabufGlobal*>(self)->support_, *attributes);
  };
  wlr_linux_dmabuf_v1_set_check_dmabuf_callback(global_, check, this);
}

void DmabufGlobal::withdraw() {
  if (wlr_linux_dmabuf_v1* global = std::exchange(global_, nullptr))
    wl_global_remove(global->global);
}

bool DmabufGlobal::accepts(const DmabufSupport& support, const wlr_dmabuf_attributes& attributes) {
  const auto format =
      std::ranges::find(support.formats, attributes.format, &DmabufSupport::Format::fourcc);
  if (format == support.formats.end()) return false;
  if (attributes.modifier == implicitModifier) return attributes.n_planes == 1;
  if (std::ranges::find(format->modifiers, attributes.modifier) == format->modifiers.end())
    return false;
  const bool hasWholeLines =
      attributes.stride[0] / bytesPerPixel >= std::uint32_t(attributes.width);
  return attributes.modifier != linearModifier || (attributes.n_planes == 1 && hasWholeLines);
}

}  // namespace tromelo
