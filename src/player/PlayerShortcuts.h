#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

namespace tromelo {

/// A row in the list of the player's keys.
class Shortcut {
  Q_GADGET
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
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QList<tromelo::Shortcut> items MEMBER items CONSTANT)

 public:
  QString title;
  QList<Shortcut> items;

  friend bool operator==(const ShortcutGroup&, const ShortcutGroup&) = default;
};

/// What is told of the player's keys. It describes; what they do is decided where they are pressed.
class PlayerShortcuts {
  Q_DECLARE_TR_FUNCTIONS(PlayerShortcuts)

 public:
  PlayerShortcuts() = delete;

  /// The fixed texts.
  static const QList<ShortcutGroup> groups;
  /// The same in the person's language, with the keys' names on this platform.
  static QList<ShortcutGroup> shownGroups();
};

}  // namespace tromelo
