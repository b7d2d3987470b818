#pragma once

#include <QList>
#include <QString>

#include "playback/DynamicRange.h"

namespace tromelo {

class Chapter;

// What the control bar and the badge show, from what plays. Times are in seconds.

/// On the mute button; `volume` from 0 to 100.
QString volumeSymbol(double volume, bool isMuted);

/// "-1:02": how long playback goes on from `shown`.
QString remainingText(double duration, double shown);

/// Where chapters begin along a slider `width` points wide: the middles of their marks. The first
/// begins with the file and has none.
QList<double> chapterMarks(const QList<Chapter>& chapters, double duration, double width);

/// "HDR10"; empty where there is nothing special about the signal.
QString rangeTag(DynamicRange::Kind range);

/// Empty for a position that isn't in the list.
QString chapterTitle(const QList<Chapter>& chapters, int position);

}  // namespace tromelo
