#pragma once

#include <QJsonObject>
#include <QString>
#include <string>
#include <vector>

#include "settings/RgbaColor.h"
#include "settings/SubtitleBorderStyle.h"

namespace tromelo {

/// What a person can prefer, a row each; all that is said of one is said here:
///
///   ROW(type, name, setter's name, what holds until they do, limits, announced by, part of,
///       engine property, its value)
///
/// Limits are a function that takes what makes no sense to the nearest that does. Part of
/// "subtitles" is what resetSubtitleStyle() puts back. The engine's property follows from it, as
/// the text that the function makes; those that hang on the border style are in kBorderRows.
#define TROMELO_PREFERENCES(ROW)                                                                  \
  /* Idle seconds after which the player's controls hide; 0 is never. */                          \
  ROW(double, autoHideDelay, AutoHideDelay, 2.0, keptAutoHideDelay, autoHideDelayChanged,         \
      controls, nullptr, noText)                                                                  \
  /* A family; the nearest one where it is missing. */                                            \
  ROW(QString, subtitleFont, SubtitleFont, QStringLiteral("Helvetica Neue"), asItIs, changed,     \
      subtitles, "sub-font", mpvText)                                                             \
  /* In the engine's unit. */                                                                     \
  ROW(double, subtitleSize, SubtitleSize, 44.0, keptSubtitleSize, changed, subtitles,             \
      "sub-font-size", mpvText)                                                                   \
  ROW(tromelo::RgbaColor, subtitleColor, SubtitleColor, RgbaColor(1, 1, 1), asItIs, changed,      \
      subtitles, "sub-color", mpvText)                                                            \
  ROW(tromelo::RgbaColor, subtitleOutlineColor, SubtitleOutlineColor, RgbaColor(0, 0, 0), asItIs, \
      changed, subtitles, nullptr, noText)                                                        \
  ROW(tromelo::SubtitleBorderStyle, subtitleBorderStyle, SubtitleBorderStyle,                     \
      SubtitleBorderStyle::outline, asItIs, changed, subtitles, nullptr, noText)                  \
  ROW(bool, subtitleBold, SubtitleBold, false, asItIs, changed, subtitles, "sub-bold", mpvText)   \
  /* Also where the subtitles bring a style of their own. */                                      \
  ROW(bool, subtitleOverridesStyled, SubtitleOverridesStyled, false, asItIs, changed, subtitles,  \
      "sub-ass-override", forceOrScale)

/// The values, with what holds until a person prefers something else.
struct PlayerPreferences {
#define TROMELO_FIELD(type, name, setter, initial, ...) type name = initial;
  TROMELO_PREFERENCES(TROMELO_FIELD)
#undef TROMELO_FIELD

  friend bool operator==(const PlayerPreferences&, const PlayerPreferences&) = default;
};

/// Stored values that are missing or of another type give the default, each for itself. Numbers
/// that make no sense are taken to the nearest that does.
PlayerPreferences preferencesOf(const QJsonObject& stored);

/// All of them, to be stored.
QJsonObject storedPreferences(const PlayerPreferences& preferences);

/// 0 to a day; the default for what is no number.
double keptAutoHideDelay(double seconds);

/// A size that the engine takes; the default for what nobody could read.
double keptSubtitleSize(double size);

/// Any value does.
template <typename T>
T asItIs(T value) {
  return value;
}

/// One write to the engine.
struct EngineProperty {
  std::string name;
  std::string value;

  friend bool operator==(const EngineProperty&, const EngineProperty&) = default;
};

/// All that makes the engine follow the preferences, in the order in which it has to be written.
std::vector<EngineProperty> engineProperties(const PlayerPreferences& preferences);

}  // namespace tromelo
