#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace tromelo {

/// The letter that runs an entry of a menu: the one after "&" in its text, where "&&" is an "&".
class Mnemonic : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// A capital; empty without one.
  Q_INVOKABLE static QString letter(const QString& text);
  Q_INVOKABLE static QString plainText(const QString& text);
  /// As styled text, with the letter underlined where that is wanted.
  Q_INVOKABLE static QString markedText(const QString& text, bool underlined);
};

}  // namespace tromelo
