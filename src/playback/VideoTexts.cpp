#include "playback/VideoTexts.h"

#include <format>

#include "platform/FilePath.h"

namespace tromelo {

std::optional<QString> videoSizeText(std::optional<std::int64_t> width,
                                     std::optional<std::int64_t> height) {
  if (!width || !height || *width < 1 || *height < 1) return {};
  return QStringLiteral("%1 × %2").arg(*width).arg(*height);
}

std::optional<QString> frameRateText(std::optional<double> containerFps,
                                     std::optional<double> estimatedFps) {
  const double rate = containerFps ? *containerFps : estimatedFps.value_or(0);
  if (!(rate > 0)) return {};
  return QString::fromStdString(std::format("{:.3g} fps", rate));
}

std::optional<QString> codecText(std::string_view videoFormat) {
  return QString::fromUtf8(videoFormat).toUpper();
}

std::optional<QString> containerText(std::string_view fileFormat) {
  const auto first = fileFormat.find_first_not_of(',');
  if (first == std::string_view::npos) return {};
  const auto end = fileFormat.find(',', first);
  return QString::fromUtf8(fileFormat.substr(first, end - first)).toUpper();
}

std::optional<QString> mediaTitleText(std::string_view mediaTitle) {
  if (mediaTitle.empty()) return {};
  return withoutLastPathExtension(QString::fromUtf8(mediaTitle));
}

}  // namespace tromelo
