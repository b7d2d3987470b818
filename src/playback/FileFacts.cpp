#include "playback/FileFacts.h"

#include <format>

namespace tromelo {

std::optional<QString> videoSizeText(const FileFacts& facts) {
  if (!facts.hasPicture()) return {};
  return QStringLiteral("%1 × %2").arg(facts.width.value_or(0)).arg(facts.height.value_or(0));
}

std::optional<QString> frameRateText(const FileFacts& facts) {
  const double rate = facts.containerFps ? *facts.containerFps : facts.estimatedFps.value_or(0);
  if (!(rate > 0)) return {};
  return QString::fromStdString(std::format("{:.3g} fps", rate));
}

std::optional<QString> codecText(const FileFacts& facts) {
  if (!facts.videoFormat) return {};
  return QString::fromUtf8(*facts.videoFormat).toUpper();
}

std::optional<QString> containerText(const FileFacts& facts) {
  const std::string names = facts.fileFormat.value_or("");
  const auto first = names.find_first_not_of(',');
  if (first == std::string::npos) return {};
  return QString::fromStdString(names.substr(first, names.find(',', first) - first)).toUpper();
}

}  // namespace tromelo
