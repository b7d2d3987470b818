#include "adjustments/MirrorShader.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string_view>

namespace tromelo {

namespace {

constexpr std::string_view kShader =
    "//!HOOK MAIN\n"
    "//!BIND HOOKED\n"
    "//!DESC mirror\n"
    "vec4 hook() { return HOOKED_tex(vec2(1.0 - HOOKED_pos.x, HOOKED_pos.y)); }\n";

}  // namespace

const std::string& mirrorShader() {
  // Never closed: the engine may open it until it is gone.
  static const std::string path = [] {
    const int file = memfd_create("mirror.glsl", MFD_CLOEXEC);
    if (file < 0) return std::string();
    const auto written = write(file, kShader.data(), kShader.size());
    return written == std::ssize(kShader) ? "/proc/self/fd/" + std::to_string(file) : std::string();
  }();
  return path;
}

}  // namespace tromelo
