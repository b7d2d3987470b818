#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

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
};

}  // namespace tromelo
