#pragma once

#include <QString>
#include <optional>
#include <string_view>

#include "engine/MpvValue.h"

namespace tromelo {

/// The text under `key`; none where there is none or it is of another kind. Undecodable bytes show
/// as U+FFFD.
inline std::optional<QString> nodeText(const MpvMap& map, std::string_view key) {
  const auto* bytes = mpvEntry<std::string>(map, key);
  return bytes ? std::optional(QString::fromUtf8(*bytes)) : std::nullopt;
}

}  // namespace tromelo
