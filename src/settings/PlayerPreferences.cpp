#include "settings/PlayerPreferences.h"

#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

const QString kAutoHideDelay = QStringLiteral("autoHideDelay");
const QString kFont = QStringLiteral("subtitleFont");
const QString kSize = QStringLiteral("subtitleSize");
const QString kColor = QStringLiteral("subtitleColor");
const QString kOutlineColor = QStringLiteral("subtitleOutlineColor");
const QString kBorderStyle = QStringLiteral("subtitleBorderStyle");
const QString kBold = QStringLiteral("subtitleBold");
const QString kOverridesStyled = QStringLiteral("subtitleOverridesStyled");

}  // namespace

double keptAutoHideDelay(double seconds) {
  constexpr double kDay = 86'400;
  return std::isnan(seconds) ? PlayerPreferences().autoHideDelay : std::clamp(seconds, 0.0, kDay);
}

double keptSubtitleSize(double size) {
  constexpr double kEngineLeast = 1;
  constexpr double kEngineMost = 9000;
  return size >= kEngineLeast ? std::min(size, kEngineMost) : SubtitleStyle().size;
}

PlayerPreferences preferencesOf(const QJsonObject& stored) {
  PlayerPreferences p;
  SubtitleStyle& s = p.subtitles;
  p.autoHideDelay = keptAutoHideDelay(stored.value(kAutoHideDelay).toDouble(p.autoHideDelay));
  s.font = stored.value(kFont).toString(s.font);
  s.size = keptSubtitleSize(stored.value(kSize).toDouble(s.size));
  s.color = color(stored.value(kColor)).value_or(s.color);
  s.outlineColor = color(stored.value(kOutlineColor)).value_or(s.outlineColor);
  s.borderStyle = borderStyleOf(stored.value(kBorderStyle).toString()).value_or(s.borderStyle);
  s.bold = stored.value(kBold).toBool(s.bold);
  s.overridesStyled = stored.value(kOverridesStyled).toBool(s.overridesStyled);
  return p;
}

QJsonObject storedPreferences(const PlayerPreferences& preferences) {
  const SubtitleStyle& s = preferences.subtitles;
  return {{kAutoHideDelay, preferences.autoHideDelay},
          {kFont, s.font},
          {kSize, s.size},
          {kColor, storedColor(s.color)},
          {kOutlineColor, storedColor(s.outlineColor)},
          {kBorderStyle, rawValue(s.borderStyle)},
          {kBold, s.bold},
          {kOverridesStyled, s.overridesStyled}};
}

}  // namespace tromelo
