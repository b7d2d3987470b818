#pragma once

#include <QList>
#include <QObject>

#include "player/VideoWindow.h"

namespace tromelo {

/// The engine's windows, in the order in which they came. Main thread only.
class WindowSystem : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual QList<VideoWindow*> videoWindows() const = 0;

 Q_SIGNALS:
  /// A window came or went, or one of them became visible, hidden or minimised.
  void windowsChanged();
};

}  // namespace tromelo
