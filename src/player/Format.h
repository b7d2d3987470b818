#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "playback/Chapter.h"

namespace tromelo {

/// How people read what plays. Times are in seconds.
class Format : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// Those that are offered.
  Q_PROPERTY(QList<double> speeds READ speeds CONSTANT)

 public:
  using QObject::QObject;

  /// "1:02", from an hour on "1:00:00"; what isn't a time is "0:00". Whole seconds, cut off.
  Q_INVOKABLE static QString clock(double seconds);

  /// "-1:02": how long playback goes on from `shown`.
  Q_INVOKABLE static QString remaining(double duration, double shown);

  /// "1×", "1.25×": a speed factor with at most two decimals.
  Q_INVOKABLE static QString speed(double speed);
  Q_INVOKABLE static bool isSameSpeed(double one, double other);
  static QList<double> speeds();

  /// "+50 ms", "-100 ms", "0 ms": a finite delay, rounded to milliseconds, halves away from zero.
  Q_INVOKABLE static QString delay(double seconds);

  /// The picture on the mute button; `volume` from 0 to 100.
  Q_INVOKABLE static QString volumeSymbol(double volume, bool isMuted);

  /// Empty for a position that isn't in the list.
  Q_INVOKABLE static QString chapterTitle(const QList<tromelo::Chapter>& chapters, int position);

  /// Of the chapter that a moment is in, or empty.
  Q_INVOKABLE static QString chapterAt(const QList<tromelo::Chapter>& chapters, double seconds);
};

}  // namespace tromelo
