#include "overlay/TrackModel.h"

#include <algorithm>

namespace tromelo {

void TrackModel::setTracks(const QList<MediaTrack>& tracks) {
  replace(tracks_, tracks,
          [](const MediaTrack& one, const MediaTrack& other) { return one.id == other.id; });
  Q_EMIT tracksChanged();
}

bool TrackModel::hasSelection() const {
  return std::ranges::any_of(tracks_, &MediaTrack::isSelected);
}

}  // namespace tromelo
