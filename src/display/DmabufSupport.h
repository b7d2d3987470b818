#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace tromelo {

/// Which dmabufs the private display announces, and on whose behalf.
struct DmabufSupport {
  struct Format {
    std::uint32_t fourcc = 0;
    std::vector<std::uint64_t> modifiers;
    friend bool operator==(const Format&, const Format&) = default;
  };
  /// What one device takes.
  struct Tranche {
    dev_t device = 0;
    std::uint32_t flags = 0;  // zwp_linux_dmabuf_feedback_v1.tranche_flags
    std::vector<Format> formats;
    friend bool operator==(const Tranche&, const Tranche&) = default;
  };

  dev_t mainDevice = 0;           // the engine is to draw with it
  std::vector<Tranche> tranches;  // the preferred first

  friend bool operator==(const DmabufSupport&, const DmabufSupport&) = default;

  /// What the EGL display that Qt has opened imports without a copy, on its render node. None when
  /// it can't import or has no DRM device. For scenes that are drawn with OpenGL. Main thread,
  /// after the application object.
  static std::optional<DmabufSupport> query();

  /// A layout of memory as EGL lists it for one format.
  struct ListedModifier {
    std::uint64_t modifier = 0;
    bool externalOnly = false;  // only for a kind of texture that the scene's materials don't know
  };
  /// Those that the engine may use; none where the scene can't sample the format at all.
  static std::vector<std::uint64_t> announced(const std::vector<ListedModifier>& listed);
};

}  // namespace tromelo
