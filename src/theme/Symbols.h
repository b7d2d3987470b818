#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace tromelo {

/// The pictures on buttons: glyphs of the Material Icons font, by the names that the views use.
class Symbols : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QString family READ family CONSTANT)

 public:
  using QObject::QObject;

  static QString family();
  /// Empty for a name that isn't in the table, with a warning.
  Q_INVOKABLE static QString glyph(const QString& name);
};

}  // namespace tromelo
