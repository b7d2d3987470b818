#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace tromelo {

/// The words of views, as a person reads or hears them.
class Wording : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// As platformWording(). Only for the program's own texts: what people named stays as they
  /// wrote it.
  Q_INVOKABLE static QString shown(const QString& text);
  /// A tip without the key at its end: "Mute (M)" is "Mute".
  Q_INVOKABLE static QString withoutKey(const QString& tip);
  /// A title or message with a space in place of each line break.
  Q_INVOKABLE static QString onOneLine(const QString& text);
};

}  // namespace tromelo
