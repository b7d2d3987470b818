#pragma once

#include <QtQml/qqmlregistration.h>
#include <QFont>
#include <QList>
#include <QObject>
#include <QString>

namespace tromelo {

/// A row in the list of the player's keys.
class Shortcut {
  Q_GADGET
  QML_VALUE_TYPE(shortcut)
  Q_PROPERTY(QString keys MEMBER keys CONSTANT)
  Q_PROPERTY(QString action MEMBER action CONSTANT)

 public:
  QString keys;    // as they are written
  QString action;  // what they do

  friend bool operator==(const Shortcut&, const Shortcut&) = default;
};

/// Titles are distinct, as are the keys within a group.
class ShortcutGroup {
  Q_GADGET
  QML_VALUE_TYPE(shortcutGroup)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QList<tromelo::Shortcut> items MEMBER items CONSTANT)

 public:
  QString title;
  QList<Shortcut> items;

  friend bool operator==(const ShortcutGroup&, const ShortcutGroup&) = default;
};

/// What people are told of the keys in PlayerActions.
class PlayerShortcuts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QList<tromelo::ShortcutGroup> groups READ groups CONSTANT)

 public:
  using QObject::QObject;

  /// In the person's language, with the keys' names on this platform.
  static QList<ShortcutGroup> groups();

  /// How much of a column the keys take, the same for all groups: `least`, or more where their
  /// names are longer, but at most half of the column. Lengths in points.
  Q_INVOKABLE static double keysWidth(const QList<tromelo::ShortcutGroup>& groups,
                                      const QFont& font, double least, double column);
};

}  // namespace tromelo
