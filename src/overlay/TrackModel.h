#pragma once

#include <algorithm>

#include "overlay/RecordModel.h"
#include "playback/MediaTrack.h"

namespace tromelo {

/// The rows of the tracks of one kind.
class TrackModel : public RecordModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QList<tromelo::MediaTrack> tracks READ tracks WRITE setTracks NOTIFY tracksChanged)
  Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY tracksChanged)

 public:
  explicit TrackModel(QObject* parent = nullptr)
      : RecordModel(MediaTrack::staticMetaObject, parent) {}

  const QList<MediaTrack>& tracks() const { return tracks_; }
  void setTracks(const QList<MediaTrack>& tracks) {
    replace(tracks_, tracks,
            [](const MediaTrack& one, const MediaTrack& other) { return one.id == other.id; });
    Q_EMIT tracksChanged();
  }
  bool hasSelection() const { return std::ranges::any_of(tracks_, &MediaTrack::isSelected); }
  Q_INVOKABLE qint64 idAt(int row) const { return tracks_[row].id; }
  int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(tracks_.size()); }

 Q_SIGNALS:
  void tracksChanged();

 protected:
  const void* recordAt(int row) const override { return &tracks_[row]; }

 private:
  QList<MediaTrack> tracks_;
};

}  // namespace tromelo
