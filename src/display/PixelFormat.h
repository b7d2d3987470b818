#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace tromelo {

inline constexpr int kBytesPerPixel = 4;

// Layouts of a GPU's buffer.
inline constexpr std::uint64_t kLinearModifier = 0;
inline constexpr std::uint64_t kImplicitModifier = 0x00ffffffffffffff;  // only its driver knows

/// An 8-bit format that a scene can sample; named by its DRM FourCC.
struct PixelFormat {
  std::uint32_t fourcc = 0;
  bool hasAlpha = false;   // else the fourth byte means nothing
  bool blueFirst = false;  // byte order in memory: B, G, R, A; else R, G, B, A

  friend bool operator==(const PixelFormat&, const PixelFormat&) = default;
};

// The scene announces these. Deeper formats are left out on purpose: the engine would pick them
// wherever they are offered, and an 8-bit window would truncate what it drew.
inline constexpr std::array<PixelFormat, 4> kPixelFormats{{
    {0x34325241, true, true},    // AR24
    {0x34325258, false, true},   // XR24
    {0x34324241, true, false},   // AB24
    {0x34324258, false, false},  // XB24
}};

constexpr std::optional<PixelFormat> pixelFormat(std::uint32_t fourcc) {
  for (const PixelFormat& format : kPixelFormats)
    if (format.fourcc == fourcc) return format;
  return std::nullopt;
}

}  // namespace tromelo
