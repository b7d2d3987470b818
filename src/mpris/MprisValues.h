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

/// The position that a client asks for, in seconds. None where it means another file than the one
/// that plays, or a position outside it.
std::optional<double> wantedPosition(const PlaybackState& state, const QDBusObjectPath& track,
                                     qint64 microseconds);

qint64 microsecondsFrom(double seconds);
double secondsFrom(qint64 microseconds);

/// From the bus's 0 to 1 to the model's 0 to 100 and back; the model does the clamping.
double volumeForDesktop(double volume);
double volumeFromDesktop(double volume);

}  // namespace tromelo
