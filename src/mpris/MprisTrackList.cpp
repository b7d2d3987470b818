#include "mpris/MprisTrackList.h"

#include <QDBusMetaType>
#include <algorithm>

#include "mpris/MprisProperties.h"
#include "mpris/MprisValues.h"
#include "platform/FilePath.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

/// The one entry that `longer` has more, if that is all that they differ by.
std::optional<qsizetype> oneMore(const QueueOrder& longer, const QueueOrder& shorter) {
  if (longer.size() != shorter.size() + 1) return {};
  const auto [more, rest] = std::ranges::mismatch(longer, shorter);
  if (!std::equal(more + 1, longer.end(), rest, shorter.end())) return {};
  return more - longer.begin();
}

}  // namespace

MprisTrackList::MprisTrackList(const QDBusConnection& bus, PlaybackModel& playback,
                               QObject* exported)
    : QDBusAbstractAdaptor(exported),
      bus_(bus),
      playback_(playback),
      told_(orderOf(toldTracks(playback.queue()))) {
  qDBusRegisterMetaType<QList<QVariantMap>>();
}

QList<QDBusObjectPath> MprisTrackList::tracks() const {
  return trackIds(toldTracks(playback_.queue()));
}

void MprisTrackList::announce() {
  const PlayQueue tracks = toldTracks(playback_.queue());
  const QueueOrder now = orderOf(tracks);
  const QueueOrder before = std::exchange(told_, now);
  if (now == before) return;
  if (const auto added = oneMore(now, before)) {
    Q_EMIT TrackAdded(trackMetadata(playback_, tracks[*added]),
                      *added > 0 ? trackId(now[*added - 1]) : noTrack());
  } else if (const auto removed = oneMore(before, now)) {
    Q_EMIT TrackRemoved(trackId(before[*removed]));
  } else {
    Q_EMIT TrackListReplaced(trackIds(tracks), trackId(playback_));
  }
  bus_.send(MprisProperties::changed(*this, {}, {QStringLiteral("Tracks")}));
}

QList<QVariantMap> MprisTrackList::GetTracksMetadata(const QList<QDBusObjectPath>& TrackIds) {
  const PlayQueue queue = playback_.queue();
  QList<QVariantMap> told;
  for (const QDBusObjectPath& track : TrackIds)
    if (const auto index = trackIndex(queue, track))
      told.append(trackMetadata(playback_, queue[*index]));
  return told;
}

void MprisTrackList::AddTrack(const QString& Uri, const QDBusObjectPath& AfterTrack,
                              bool SetAsCurrent, const QDBusMessage& message) {
  const QUrl url(Uri, QUrl::StrictMode);
  if (!url.isLocalFile()) return refuseUri(bus_, message);
  const PlayQueue queue = playback_.queue();
  const auto after = trackIndex(queue, AfterTrack);
  const qsizetype end = AfterTrack == noTrack() ? 0 : queue.size();
  playback_.insert({url}, after ? *after + 1 : end, SetAsCurrent);
}

void MprisTrackList::RemoveTrack(const QDBusObjectPath& TrackId) {
  const PlayQueue queue = playback_.queue();
  const auto index = trackIndex(queue, TrackId);
  if (index && !queue[*index].isCurrent) playback_.removeQueueItem(*index);
}

void MprisTrackList::GoTo(const QDBusObjectPath& TrackId) {
  if (const auto index = trackIndex(playback_.queue(), TrackId)) playback_.playQueueItem(*index);
}

}  // namespace tromelo
