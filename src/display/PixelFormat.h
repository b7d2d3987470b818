#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace tromelo {

// Layouts of a GPU's buffer.
inline constexpr std::uint64_t kLinearModifier = 0;
inline constexpr std::uint64_t kImplicitModifier = 0x00ffffffffffffff;  // only its driver knows

/// A format that a scene can sample; named by its DRM FourCC.
struct PixelFormat {
  enum class Depth { bits8, bits10, half };

  std::uint32_t fourcc = 0;
  bool hasAlpha = false;   // else the fourth channel means nothing
  bool blueFirst = false;  // order in memory: B, G, R, A; else R, G, B, A
  Depth depth = Depth::bits8;

  constexpr int bytesPerPixel() const { return depth == Depth::half ? 8 : 4; }

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

// A host that shows the engine's own buffers loses nothing of these.
inline constexpr std::array<PixelFormat, 6> kDeepPixelFormats{{
    {0x30335241, true, true, PixelFormat::Depth::bits10},    // AR30
    {0x30335258, false, true, PixelFormat::Depth::bits10},   // XR30
    {0x30334241, true, false, PixelFormat::Depth::bits10},   // AB30
    {0x30334258, false, false, PixelFormat::Depth::bits10},  // XB30
    {0x48344241, true, false, PixelFormat::Depth::half},     // AB4H
    {0x48344258, false, false, PixelFormat::Depth::half},    // XB4H
}};

constexpr std::optional<PixelFormat> pixelFormat(std::uint32_t fourcc) {
  for (const PixelFormat& format : kPixelFormats)
    if (format.fourcc == fourcc) return format;
  for (const PixelFormat& format : kDeepPixelFormats)
    if (format.fourcc == fourcc) return format;
  return std::nullopt;
}

/// wl_shm has numbers of its own for the first two.
constexpr std::uint32_t shmNumber(std::uint32_t fourcc) {
  if (fourcc == kPixelFormats[0].fourcc) return 0;
  if (fourcc == kPixelFormats[1].fourcc) return 1;
  return fourcc;
}

}  // namespace tromelo
