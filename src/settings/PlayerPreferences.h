#pragma once

#include <QJsonObject>
#include <QString>
#include <string>
#include <vector>

#include "settings/RgbaColor.h"
#include "settings/SubtitleBorderStyle.h"

namespace tromelo {

/// The preferences, one row each. All there is to say about one is said here:
///
///   ROW(type, name, setter's name, default, limits, announced by, part of,
///       engine property, its value)
///
/// "Limits" is a function that takes a senseless value to the nearest sensible one. What is part of
/// "subtitles" is put back by resetSubtitleStyle(). The engine's property gets the text that the
/// last function makes; properties that depend on the border style are in kBorderRows.
#define TROMELO_PREFERENCES(ROW)                                                                  \
  /* Idle seconds after which the player's controls hide; 0 is never. */                          \
  ROW(double, autoHideDelay, AutoHideDelay, 2.0, keptAutoHideDelay, autoHideDelayChanged,         \
      controls, nullptr, noText)                                                                  \
  /* Films go on where they were left. */                                                         \
  ROW(bool, resumesFilms, ResumesFilms, true, asItIs, changed, controls, nullptr, noText)         \
  /* At the end of the queue. */                                                                  \
  ROW(bool, goesOnInFolder, GoesOnInFolder, false, asItIs, changed, controls, nullptr, noText)    \
  /* A family; where it is missing, the nearest one. */                                           \
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
      "sub-ass-override", forceOrScale)                                                           \
  /* The engine's name for where sound goes; "auto" is the desktop's choice. */                   \
  ROW(QString, audioDevice, AudioDevice, QStringLiteral("auto"), asItIs, changed, controls,       \
      "audio-device", mpvText)                                                                    \
  /* What a receiver decodes goes to it as it is, where the device takes that. */                 \
  ROW(bool, passesSoundThrough, PassesSoundThrough, false, asItIs, changed, controls,             \
      "audio-spdif", receiverFormats)

/// The values of all preferences.
struct PlayerPreferences {
#define TROMELO_FIELD(type, name, setter, initial, ...) type name = initial;
  TROMELO_PREFERENCES(TROMELO_FIELD)
#undef TROMELO_FIELD

  friend bool operator==(const PlayerPreferences&, const PlayerPreferences&) = default;
};

/// A preference whose stored value is missing or of another type has its default. Numbers that make
/// no sense are taken to the nearest that does.
PlayerPreferences preferencesOf(const QJsonObject& stored);

/// All of them, to be stored.
QJsonObject storedPreferences(const PlayerPreferences& preferences);

/// 0 to a day; the default for what isn't a number.
double keptAutoHideDelay(double seconds);

/// A size that the engine takes; the default for what nobody could read.
double keptSubtitleSize(double size);

/// Any value will do.
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
