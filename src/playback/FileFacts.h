#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>

#include "engine/MpvProperty.h"

namespace tromelo {

namespace detail {
template <MpvFormat>
struct FactType;
template <>
struct FactType<MpvFormat::string> {
  using Type = std::string;  // bytes
};
template <>
struct FactType<MpvFormat::flag> {
  using Type = bool;
};
template <>
struct FactType<MpvFormat::int64> {
  using Type = std::int64_t;
};
template <>
struct FactType<MpvFormat::number> {
  using Type = double;
};
}  // namespace detail

/// What the engine has told of the file that plays: a field for each of its properties that is
/// marked as a fact, none until it was told. An empty one is where each file starts from.
struct FileFacts {
#define TROMELO_KEEP_fact(name, format) \
  std::optional<detail::FactType<MpvFormat::format>::Type> name = {};
#define TROMELO_KEEP_state(name, format)
#define TROMELO_KEEP(name, engineName, format, lifetime, target) TROMELO_KEEP_##target(name, format)
  TROMELO_MPV_PROPERTIES(TROMELO_KEEP)
#undef TROMELO_KEEP
#undef TROMELO_KEEP_state
#undef TROMELO_KEEP_fact

  /// It has a picture whose size is known.
  bool hasPicture() const { return width.value_or(0) > 0 && height.value_or(0) > 0; }

  friend bool operator==(const FileFacts&, const FileFacts&) = default;
};

// The same for people; none where there is nothing to say. Independent of the locale.

/// "1920 × 1080"
std::optional<QString> videoSizeText(const FileFacts& facts);

/// "25 fps": what the container says, else what was measured; none unless that is above 0.
std::optional<QString> frameRateText(const FileFacts& facts);

/// The engine's name for the video's codec, in upper case.
std::optional<QString> codecText(const FileFacts& facts);

/// The first of the comma-separated names by which the engine knows the format, in upper case.
std::optional<QString> containerText(const FileFacts& facts);

}  // namespace tromelo
