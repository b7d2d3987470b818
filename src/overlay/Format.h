#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "overlay/ControlBarValues.h"
#include "overlay/PopoverFrame.h"
#include "playback/Chapter.h"
#include "playback/SpeedLadder.h"
#include "player/PlayerFormats.h"

namespace tromelo {

/// How the views show what plays.
class Format : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QList<double> speeds READ speeds CONSTANT)

 public:
  using QObject::QObject;

  Q_INVOKABLE static QString clock(double seconds) { return formatClock(seconds); }
  Q_INVOKABLE static QString remaining(double duration, double shown) {
    return remainingText(duration, shown);
  }
  Q_INVOKABLE static QString delay(double seconds) { return formatDelay(seconds); }
  Q_INVOKABLE static QString speed(double speed) { return formatSpeed(speed); }
  Q_INVOKABLE static QString volumeSymbol(double volume, bool isMuted) {
    return tromelo::volumeSymbol(volume, isMuted);
  }
  Q_INVOKABLE static QString rangeTag(const tromelo::DynamicRange& range) {
    return tromelo::rangeTag(range.kind);
  }
  Q_INVOKABLE static QString chapterTitle(const QList<tromelo::Chapter>& chapters, int position) {
    return tromelo::chapterTitle(chapters, position);
  }
  Q_INVOKABLE static QList<double> chapterMarks(const QList<tromelo::Chapter>& chapters,
                                                double duration, double width) {
    return tromelo::chapterMarks(chapters, duration, width);
  }
  Q_INVOKABLE static QPointF placeAbove(QRectF anchor, QSizeF size, QSizeF room) {
    return tromelo::placeAbove(anchor, size, room);
  }
  Q_INVOKABLE static bool isSameSpeed(double one, double other) {
    return tromelo::isSameSpeed(one, other);
  }

 private:
  static QList<double> speeds() { return {speedLadder().begin(), speedLadder().end()}; }
};

}  // namespace tromelo
