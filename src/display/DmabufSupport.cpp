#include "display/DmabufSupport.h"

#include <sys/stat.h>

#include <algorithm>

#include "display/EglDevice.h"
#include "display/PixelFormat.h"

namespace tromelo {

namespace {

std::optional<dev_t> deviceOf(EGLDisplay display) {
  struct stat status{};
  const QByteArray path = drmNodePath(display);
  if (path.isEmpty() || stat(path.constData(), &status) != 0 || !S_ISCHR(status.st_mode))
    return std::nullopt;
  return status.st_rdev;
}

std::vector<EGLint> importableFormats(EGLDisplay display) {
  const auto query = eglFunction<PFNEGLQUERYDMABUFFORMATSEXTPROC>("eglQueryDmaBufFormatsEXT");
  EGLint count = 0;
  if (!query || !query(display, 0, nullptr, &count)) return {};
  std::vector<EGLint> formats(std::size_t(std::max(count, 0)));
  if (!query(display, count, formats.data(), &count)) return {};
  return formats;
}

std::vector<DmabufSupport::ListedModifier> listedModifiers(EGLDisplay display, EGLint format) {
  const auto query = eglFunction<PFNEGLQUERYDMABUFMODIFIERSEXTPROC>("eglQueryDmaBufModifiersEXT");
  EGLint count = 0;
  if (!query || !query(display, format, 0, nullptr, nullptr, &count)) return {};
  std::vector<EGLuint64KHR> modifiers(std::size_t(std::max(count, 0)));
  std::vector<EGLBoolean> externalOnly(modifiers.size());
  if (!query(display, format, count, modifiers.data(), externalOnly.data(), &count)) return {};
  std::vector<DmabufSupport::ListedModifier> listed;
  for (std::size_t i = 0; i < std::size_t(count); ++i)
    listed.push_back({modifiers[i], externalOnly[i] == EGL_TRUE});
  return listed;
}

}  // namespace

std::optional<DmabufSupport> DmabufSupport::query() {
  const EGLDisplay display = platformEglDisplay();
  if (display == EGL_NO_DISPLAY || !hasEglExtension(display, "EGL_EXT_image_dma_buf_import") ||
      !hasEglExtension(display, "EGL_EXT_image_dma_buf_import_modifiers"))
    return std::nullopt;
  const auto device = deviceOf(display);
  if (!device) return std::nullopt;
  DmabufSupport::Tranche tranche{*device, 0, {}};
  const auto importable = importableFormats(display);
  for (const PixelFormat& format : kPixelFormats) {
    const auto fourcc = EGLint(format.fourcc);
    if (std::ranges::find(importable, fourcc) == importable.end()) continue;
    auto modifiers = announced(listedModifiers(display, fourcc));
    if (!modifiers.empty()) tranche.formats.push_back({format.fourcc, std::move(modifiers)});
  }
  if (tranche.formats.empty()) return std::nullopt;
  return DmabufSupport{*device, {std::move(tranche)}};
}

std::vector<std::uint64_t> DmabufSupport::announced(const std::vector<ListedModifier>& listed) {
  // A driver older than modifiers lists none.
  if (listed.empty()) return {kImplicitModifier, kLinearModifier};
  std::vector<std::uint64_t> modifiers;
  for (const auto& [modifier, externalOnly] : listed)
    if (!externalOnly) modifiers.push_back(modifier);
  const bool listsLinear =
      std::ranges::find(listed, kLinearModifier, &ListedModifier::modifier) != listed.end();
  if (!modifiers.empty() && !listsLinear) modifiers.push_back(kLinearModifier);
  return modifiers;
}

}  // namespace tromelo
