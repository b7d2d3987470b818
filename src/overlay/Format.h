#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "player/PlayerFormats.h"

namespace tromelo {

/// The texts of times for the views.
class Format : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  Q_INVOKABLE QString clock(double seconds) const { return formatClock(seconds); }
  Q_INVOKABLE static QString delay(double seconds) { return formatDelay(seconds); }
};

}  // namespace tromelo
