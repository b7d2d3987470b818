#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>
#include <optional>

#include "player/KeyPress.h"

namespace tromelo {

class PlaybackModel;
class PlayerWindowController;

/// Something that can be done with the film, in the menu over the picture.
class MenuEntry {
  Q_GADGET
  QML_VALUE_TYPE(menuEntry)
  Q_PROPERTY(QString text MEMBER text CONSTANT)
  Q_PROPERTY(QString keys MEMBER keys CONSTANT)
  Q_PROPERTY(QString value MEMBER value CONSTANT)
  Q_PROPERTY(bool isSwitch MEMBER isSwitch CONSTANT)
  Q_PROPERTY(bool isOn MEMBER isOn CONSTANT)
  Q_PROPERTY(bool isStepped MEMBER isStepped CONSTANT)
  Q_PROPERTY(QString why MEMBER why CONSTANT)
  Q_PROPERTY(int row MEMBER row CONSTANT)

 public:
  QString text;
  QString keys;           // that do the same
  QString value;          // as it is now, or empty
  bool isSwitch = false;  // it is on or off
  bool isOn = false;
  bool isStepped = false;  // its value goes back and forth, and the menu stays open
  QString why;             // it can't be done now: a sentence; else empty
  int row = -1;            // in the menu's table
};

class MenuGroup {
  Q_GADGET
  QML_VALUE_TYPE(menuGroup)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QList<tromelo::MenuEntry> entries MEMBER entries CONSTANT)

 public:
  QString title;
  QList<MenuEntry> entries;
};

/// The menu over the picture. What its entries do is in PlayerActions, by their keys, or in the
/// table of adjustments. Main thread only.
class PlayerMenu : public QObject {
  Q_OBJECT

 public:
  /// As things are now, in the person's language.
  static QList<MenuGroup> groups(const PlaybackModel& playback,
                                 const PlayerWindowController* player);
  static MenuEntry entry(const PlaybackModel& playback, const PlayerWindowController* player,
                         int row);
  /// The key that does what the entry in this row of the table is for; none where it has none.
  static std::optional<KeyPress> press(int row);
  /// Does what has no key, and returns a toast, or nothing.
  static QString choose(PlaybackModel& playback, int row);
  /// Goes so many steps on.
  static void step(PlaybackModel& playback, int row, int steps);
};

}  // namespace tromelo
