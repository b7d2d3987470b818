#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace tromelo {

/// What the host's EGL device can import without a copy.
struct DmabufSupport {
  struct Format {
    std::uint32_t fourcc = 0;
    std::vector<std::uint64_t> modifiers;
    friend bool operator==(const Format&, const Format&) = default;
  };

  dev_t mainDevice = 0;  // the render node of Qt's EGL device
  std::vector<Format> formats;

  friend bool operator==(const DmabufSupport&, const DmabufSupport&) = default;

  /// Asks the EGL display that Qt has opened. None when it can't import or has no DRM device. Main
  /// thread, after the application object.
  static std::optional<DmabufSupport> query();

  /// Makes Mesa's Vulkan drivers present through shared memory, where query() gave none. Before the
  /// engine starts.
  static void presentThroughSharedMemory();
};

}  // namespace tromelo
