#pragma once

#include <QList>

#include "playback/MediaTrack.h"

namespace tromelo {

// Which track comes next when a person goes through them one after the other. Null where none does;
// the pointers live as long as the list.

/// After the last subtitle track come none, and after that the first.
const MediaTrack* nextSubtitle(const QList<MediaTrack>& tracks);

/// After the last audio track comes the first.
const MediaTrack* nextAudio(const QList<MediaTrack>& tracks);

}  // namespace tromelo
