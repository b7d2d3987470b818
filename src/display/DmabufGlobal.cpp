#include "display/DmabufGlobal.h"

#include <algorithm>
#include <utility>

#include "display/PixelFormat.h"

namespace tromelo {

namespace {

constexpr std::uint32_t kDmabufVersion = 4;

bool announces(const DmabufSupport& support, const wlr_dmabuf_attributes& attributes) {
  for (const DmabufSupport::Tranche& tranche : support.tranches)
    for (const auto& [fourcc, modifiers] : tranche.formats)
      if (fourcc == attributes.format &&
          // Clients that know no modifiers use it wherever there is the format.
          (attributes.modifier == kImplicitModifier ||
           std::ranges::find(modifiers, attributes.modifier) != modifiers.end()))
        return true;
  return false;
}

/// The layout of the memory is what was announced, as far as that can be told from outside.
bool accepts(const DmabufSupport& support, const wlr_dmabuf_attributes& attributes) {
  if (!announces(support, attributes)) return false;
  const auto format = pixelFormat(attributes.format);
  if (!format) return true;
  if (attributes.modifier == kImplicitModifier) return attributes.n_planes == 1;
  const bool hasWholeLines =
      attributes.stride[0] / unsigned(format->bytesPerPixel()) >= std::uint32_t(attributes.width);
  return attributes.modifier != kLinearModifier || (attributes.n_planes == 1 && hasWholeLines);
}

void addTranche(wlr_linux_dmabuf_feedback_v1& feedback, const DmabufSupport::Tranche& announced) {
  auto* tranche = wlr_linux_dmabuf_feedback_add_tranche(&feedback);
  if (!tranche) return;
  tranche->target_device = announced.device;
  tranche->flags = announced.flags;
  for (const DmabufSupport::Format& format : announced.formats)
    for (const std::uint64_t modifier : format.modifiers)
      wlr_drm_format_set_add(&tranche->formats, format.fourcc, modifier);
}

}  // namespace

DmabufGlobal::DmabufGlobal(wl_display* display, DmabufSupport support)
    : support_(std::move(support)) {
  wlr_linux_dmabuf_feedback_v1 feedback{};
  feedback.main_device = support_.mainDevice;
  for (const DmabufSupport::Tranche& tranche : support_.tranches) addTranche(feedback, tranche);
  global_ = wlr_linux_dmabuf_v1_create(display, kDmabufVersion, &feedback);
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

}  // namespace tromelo
