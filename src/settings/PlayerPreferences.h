#pragma once

#include <QJsonObject>

#include "settings/SubtitleStyle.h"

namespace tromelo {

/// What a person can prefer, with what holds until they do.
struct PlayerPreferences {
  double autoHideDelay = 2.0;  // idle seconds after which the player's controls hide; 0 is never
  SubtitleStyle subtitles;

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

}  // namespace tromelo
