#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QList>
#include <QVariantMap>

#include "playback/QueueItem.h"

namespace tromelo {

class PlaybackModel;

/// org.mpris.MediaPlayer2.TrackList on the bus: of the queue what has played last, what plays and
/// what comes next, which is all of a queue that isn't long. Tracks are known by the paths that the
/// player gives them, too. `playback` outlives it.
class MprisTrackList : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.TrackList")
  Q_PROPERTY(QList<QDBusObjectPath> Tracks READ tracks)
  Q_PROPERTY(bool CanEditTracks READ canEditTracks)

 public:
  MprisTrackList(const QDBusConnection& bus, PlaybackModel& playback, QObject* exported);

  QList<QDBusObjectPath> tracks() const;
  bool canEditTracks() const { return true; }

  /// The queue may have changed: tells what has.
  void announce();

 public Q_SLOTS:
  QList<QVariantMap> GetTracksMetadata(const QList<QDBusObjectPath>& TrackIds);
  void AddTrack(const QString& Uri, const QDBusObjectPath& AfterTrack, bool SetAsCurrent,
                const QDBusMessage& message);
  void RemoveTrack(const QDBusObjectPath& TrackId);
  void GoTo(const QDBusObjectPath& TrackId);

 Q_SIGNALS:
  void TrackListReplaced(const QList<QDBusObjectPath>& Tracks, const QDBusObjectPath& CurrentTrack);
  void TrackAdded(const QVariantMap& Metadata, const QDBusObjectPath& AfterTrack);
  void TrackRemoved(const QDBusObjectPath& TrackId);

 private:
  QDBusConnection bus_;
  PlaybackModel& playback_;
  QueueOrder told_;
};

}  // namespace tromelo
