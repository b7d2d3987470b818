#include "playback/TrackCycle.h"

#include <algorithm>

namespace tromelo {

namespace {

/// The position behind the first selected track; the first where none is selected.
qsizetype behindSelected(const QList<MediaTrack>& tracks) {
  const auto selected = std::ranges::find_if(tracks, &MediaTrack::isSelected);
  return selected == tracks.end() ? 0 : selected - tracks.begin() + 1;
}

}  // namespace

const MediaTrack* nextSubtitle(const QList<MediaTrack>& tracks) {
  const qsizetype next = behindSelected(tracks);
  return next < tracks.size() ? &tracks[next] : nullptr;
}

const MediaTrack* nextAudio(const QList<MediaTrack>& tracks) {
  if (tracks.isEmpty()) return nullptr;
  return &tracks[behindSelected(tracks) % tracks.size()];
}

}  // namespace tromelo
