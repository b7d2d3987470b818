#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>

namespace tromelo {

namespace subtitle_border_style {
Q_NAMESPACE

/// How subtitles are set off from the picture, in the order in which people are offered it.
enum class SubtitleBorderStyle { outline, shadow, box };
Q_ENUM_NS(SubtitleBorderStyle)

}  // namespace subtitle_border_style

using subtitle_border_style::SubtitleBorderStyle;

/// As it is stored: "outline", "shadow" or "box".
QString rawValue(SubtitleBorderStyle style);

/// None for any other text.
std::optional<SubtitleBorderStyle> borderStyleOf(const QString& rawValue);

/// The name for people, in their language.
QString label(SubtitleBorderStyle style);

/// The names of all, in order.
QStringList borderStyleLabels();

}  // namespace tromelo
