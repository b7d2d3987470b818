#include "mpris/MprisValues.h"

#include <algorithm>
#include <cmath>

#include "platform/FilePath.h"
#include "playback/PlaybackState.h"

namespace tromelo {

namespace {

constexpr double kMicroseconds = 1e6;     // in a second
constexpr double kLongestSeconds = 9e12;  // that a number of microseconds can hold
constexpr double kFullVolume = 100;
constexpr qsizetype kToldBefore = 50;  // tracks before the one that plays
constexpr qsizetype kTold = 200;       // tracks

}  // namespace

QString playbackStatus(const PlaybackState& state) {
  if (!state.isLoaded()) return QStringLiteral("Stopped");
  return state.isPaused() ? QStringLiteral("Paused") : QStringLiteral("Playing");
}

QString loopStatus(const PlaybackState& state) {
  if (state.isLooping()) return QStringLiteral("Track");
  return state.isRepeatingAll() ? QStringLiteral("Playlist") : QStringLiteral("None");
}

QString mprisObjectPath() { return QStringLiteral("/org/mpris/MediaPlayer2"); }

QDBusObjectPath noTrack() {
  return QDBusObjectPath(QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
}

QDBusObjectPath trackId(qint64 entry) {
  return QDBusObjectPath(QStringLiteral("/org/tromelo/Tromelo/track/%1").arg(entry));
}

QDBusObjectPath trackId(const PlaybackState& state) {
  const PlayQueue queue = state.queue();
  const auto current = currentIndex(queue);
  if (!state.isLoaded() || !current || queue[*current].entry < 0) return noTrack();
  return trackId(queue[*current].entry);
}

QList<QDBusObjectPath> trackIds(const PlayQueue& queue) {
  QList<QDBusObjectPath> ids;
  for (const QueueItem& item : queue) ids.append(trackId(item.entry));
  return ids;
}

std::optional<qsizetype> trackIndex(const PlayQueue& queue, const QDBusObjectPath& track) {
  bool isNumber = false;
  const QString name = track.path();
  const qint64 entry = QStringView(name).sliced(name.lastIndexOf(u'/') + 1).toLongLong(&isNumber);
  if (!isNumber || entry < 0 || track != trackId(entry)) return {};
  const auto item = std::ranges::find(queue, entry, &QueueItem::entry);
  if (item == queue.end()) return {};
  return item - queue.begin();
}

PlayQueue toldTracks(const PlayQueue& queue) {
  const qsizetype first = std::max<qsizetype>(currentIndex(queue).value_or(0) - kToldBefore, 0);
  return queue.sliced(first, std::min(queue.size() - first, kTold));
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

QVariantMap trackMetadata(const PlaybackState& state, const QueueItem& item) {
  const QDBusObjectPath id = trackId(item.entry);
  if (id == trackId(state)) return trackMetadata(state);
  return {{QStringLiteral("mpris:trackid"), QVariant::fromValue(id)},
          {QStringLiteral("xesam:title"), item.title},
          {QStringLiteral("xesam:url"), fileUrlFromPath(item.file).toString(QUrl::FullyEncoded)}};
}

void refuseUri(QDBusConnection bus, const QDBusMessage& message) {
  message.setDelayedReply(true);
  bus.send(message.createErrorReply(QDBusError::NotSupported,
                                    QStringLiteral("Tromelo plays local files only.")));
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
