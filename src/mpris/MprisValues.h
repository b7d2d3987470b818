#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QString>
#include <QVariantMap>
#include <optional>

#include "playback/QueueItem.h"

namespace tromelo {

class PlaybackState;

/// The state in the words of the desktop's media controls (MPRIS 2.2).

QString playbackStatus(const PlaybackState& state);  // "Playing", "Paused" or "Stopped"
QString loopStatus(const PlaybackState& state);      // "None", "Track" or "Playlist"

QString mprisObjectPath();

/// Stands for none.
QDBusObjectPath noTrack();
/// Of the engine's number for a file: stays with it for as long as it is in the queue.
QDBusObjectPath trackId(qint64 entry);
/// Of what plays.
QDBusObjectPath trackId(const PlaybackState& state);
QList<QDBusObjectPath> trackIds(const PlayQueue& queue);
std::optional<qsizetype> trackIndex(const PlayQueue& queue, const QDBusObjectPath& track);

/// Of a queue, what lies around what plays: clients show all that they are told of.
PlayQueue toldTracks(const PlayQueue& queue);

/// Empty while no file is loaded.
QVariantMap trackMetadata(const PlaybackState& state);
QVariantMap trackMetadata(const PlaybackState& state, const QueueItem& item);

/// The answer to who asks for what is no local file.
void refuseUri(QDBusConnection bus, const QDBusMessage& message);

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
