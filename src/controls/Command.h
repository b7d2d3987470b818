#pragma once

#include <QtQml/qqmlregistration.h>
#include <QKeySequence>
#include <QObject>
#include <functional>

namespace tromelo {

/// Something that the program as a whole does, with its key in every window.
class Command {
  Q_GADGET
  QML_VALUE_TYPE(command)
  Q_PROPERTY(QString keys READ keys CONSTANT)

 public:
  QKeySequence key;  // none for what only menus offer
  std::function<void()> action;

  /// The key as people read it.
  QString keys() const { return key.toString(QKeySequence::NativeText); }
  Q_INVOKABLE void run() const { action(); }
};

}  // namespace tromelo
