#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "platform/PlatformWording.h"

namespace tromelo {

/// The words of views, as a person reads or hears them.
class Wording : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// Only for the program's own texts: what people named stays as they wrote it.
  Q_INVOKABLE static QString shown(const QString& text) { return platformWording(text); }
  Q_INVOKABLE static QString withoutKey(const QString& tooltip) {
    return platformWording(tromelo::withoutKey(tooltip));
  }
  /// A title or message with a space in place of each line break.
  Q_INVOKABLE static QString onOneLine(const QString& text);
};

}  // namespace tromelo
