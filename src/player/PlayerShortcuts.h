#pragma once

#include <QFont>
#include <QList>
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

/// What people are told of the keys in PlayerActions.
namespace PlayerShortcuts {

/// The fixed texts.
QList<ShortcutGroup> groups();

/// The same in the person's language, with the keys' names on this platform.
QList<ShortcutGroup> shownGroups();

/// How much of a column the keys take, the same for all groups: `least`, or more where their names
/// are longer, but at most half of the column. Lengths in points.
double keysWidth(const QList<ShortcutGroup>& groups, const QFont& font, double least,
                 double column);

}  // namespace PlayerShortcuts

}  // namespace tromelo
