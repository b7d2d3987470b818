#include "mpris/MprisValues.h"

#include <algorithm>
#include <cmath>

#include "playback/PlaybackState.h"

namespace tromelo {

namespace {

constexpr double kMicroseconds = 1e6;     // in a second
constexpr double kLongestSeconds = 9e12;  // that a number of microseconds can hold
constexpr double kFullVolume = 100;

}  // namespace

QString playbackStatus(const PlaybackState& state) {
  if (!state.isLoaded()) return QStringLiteral("Stopped");
  return state.isPaused() ? QStringLiteral("Paused") : QStringLiteral("Playing");
}

QString loopStatus(const PlaybackState& state) {
  return state.isLooping() ? QStringLiteral("Track") : QStringLiteral("None");
}

QDBusObjectPath trackId(const PlaybackState& state) {
  const PlayQueue queue = state.queue();
  const auto current = currentIndex(queue);
  if (!state.isLoaded() || !current || queue[*current].entry < 0)
    return QDBusObjectPath(QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
  return QDBusObjectPath(
      QStringLiteral("/org/tromelo/Tromelo/track/%1").arg(queue[*current].entry));
}

QVariantMap trackMetadata(const PlaybackState& state) {
  if (!state.isLoaded()) return {};
  QVariantMap told{
      {QStringLiteral("mpris:trackid"), QVariant::fromValue(trackId(state))},
      {QStringLiteral("xesam:title"), state.title()},
  };
  if (state.duration() > 0)
    told.insert(QStringLiteral("mpris:length"), microsecondsFrom(state.duration()));
  if (!state.lastURL().isEmpty())
    told.insert(QStringLiteral("xesam:url"), state.lastURL().toString(QUrl::FullyEncoded));
  return told;
}

bool canSeek(const PlaybackState& state) { return state.isLoaded() && state.duration() > 0; }

std::optional<double> wantedPosition(const PlaybackState& state, const QDBusObjectPath& track,
                                     qint64 microseconds) {
  if (!canSeek(state) || track != trackId(state)) return {};
  if (microseconds < 0 || microseconds > microsecondsFrom(state.duration())) return {};
  return secondsFrom(microseconds);
}

qint64 microsecondsFrom(double seconds) {
  return std::llround(std::clamp(seconds, -kLongestSeconds, kLongestSeconds) * kMicroseconds);
}

double secondsFrom(qint64 microseconds) {
  return static_cast<double>(microseconds) / kMicroseconds;
}

double volumeForDesktop(double volume) { return volume / kFullVolume; }
double volumeFromDesktop(double volume) { return volume * kFullVolume; }

}  // namespace tromelo
