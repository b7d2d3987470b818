#include "settings/SubtitleBorderStyle.h"

#include <algorithm>
#include <array>

namespace tromelo {

namespace {

struct Row {
  SubtitleBorderStyle style;
  QLatin1StringView raw;
  QLatin1StringView label;
};

constexpr std::array kRows{
    Row{SubtitleBorderStyle::outline, QLatin1StringView("outline"), QLatin1StringView("Outline")},
    Row{SubtitleBorderStyle::shadow, QLatin1StringView("shadow"), QLatin1StringView("Shadow")},
    Row{SubtitleBorderStyle::box, QLatin1StringView("box"), QLatin1StringView("Box")},
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

QString label(SubtitleBorderStyle style) { return row(style).label; }

QStringList borderStyleLabels() {
  QStringList labels;
  for (const Row& row : kRows) labels << row.label;
  return labels;
}

}  // namespace tromelo
