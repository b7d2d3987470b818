#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "playback/AbLoop.h"
#include "playback/Bookmarks.h"
#include "playback/Chapter.h"

namespace tromelo {

/// Where the middle of a slider's knob is, on a slider `width` points wide.
class SliderTravel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// For a value between 0 and 1.
  static double place(double value, double width);

  /// The value, between 0 and 1, whose knob is at `place`.
  static double valueAt(double place, double width);

  /// Where chapters begin. The first begins with the file and has no mark. `duration` in seconds.
  Q_INVOKABLE static QList<double> marks(const QList<tromelo::Chapter>& chapters, double duration,
                                         double width);

  Q_INVOKABLE static QList<double> bookmarkMarks(const QList<tromelo::FilmBookmark>& bookmarks,
                                                 double duration, double width);

  /// Of a loop, as many as it has so far.
  Q_INVOKABLE static QList<double> loopMarks(const tromelo::AbLoop& loop, double duration,
                                             double width);
};

}  // namespace tromelo
