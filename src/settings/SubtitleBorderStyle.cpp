#include "settings/SubtitleBorderStyle.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace tromelo {

namespace {

struct Row {
  SubtitleBorderStyle style;
  QLatin1StringView raw;
  const char* label;
};

constexpr std::array kRows{
    Row{SubtitleBorderStyle::outline, QLatin1StringView("outline"),
        QT_TRANSLATE_NOOP("SubtitleBorderStyle", "Outline")},
    Row{SubtitleBorderStyle::shadow, QLatin1StringView("shadow"),
        QT_TRANSLATE_NOOP("SubtitleBorderStyle", "Shadow")},
    Row{SubtitleBorderStyle::box, QLatin1StringView("box"),
        QT_TRANSLATE_NOOP("SubtitleBorderStyle", "Box")},
};

const Row& row(SubtitleBorderStyle style) {
  const auto found = std::ranges::find(kRows, style, &Row::style);
  return found == kRows.end() ? kRows.front() : *found;
}

}  // namespace

QString rawValue(SubtitleBorderStyle style) { return row(style).raw; }

std::optional<SubtitleBorderStyle> borderStyleOf(const QString& rawValue) {
  const auto found = std::ranges::find(kRows, rawValue, &Row::raw);
  if (found == kRows.end()) return {};
  return found->style;
}

QString label(SubtitleBorderStyle style) {
  return QCoreApplication::translate("SubtitleBorderStyle", row(style).label);
}

QStringList borderStyleLabels() {
  QStringList labels;
  for (const Row& row : kRows) labels << label(row.style);
  return labels;
}

}  // namespace tromelo
