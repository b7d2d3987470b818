#pragma once

#include <QDBusObjectPath>
#include <QString>
#include <QVariantMap>
#include <optional>

namespace tromelo {

class PlaybackState;

/// The state in the words of the desktop's media controls (MPRIS 2.2).

QString playbackStatus(const PlaybackState& state);  // "Playing", "Paused" or "Stopped"
QString loopStatus(const PlaybackState& state);      // "None" or "Track"

/// Stays with a file for as long as it is in the queue.
QDBusObjectPath trackId(const PlaybackState& state);

/// Empty while no file is loaded.
QVariantMap trackMetadata(const PlaybackState& state);

bool canSeek(const PlaybackState& state);

/// Where a client wants to be in a file, seconds. None where it speaks of another file than the one
/// that plays, or of a place outside of it.
std::optional<double> wantedPosition(const PlaybackState& state, const QDBusObjectPath& track,
                                     qint64 microseconds);

qint64 microsecondsFrom(double seconds);
double secondsFrom(qint64 microseconds);

/// Between 0 to 1 and the model's 0 to 100; the model does the clamping.
double volumeForDesktop(double volume);
double volumeFromDesktop(double volume);

}  // namespace tromelo
