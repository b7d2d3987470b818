#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <optional>

#include "player/PlayerActions.h"

namespace tromelo {
Q_NAMESPACE
QML_NAMED_ELEMENT(PlayerPanel)

/// The player's side panels.
enum class PlayerPanel {
  tracks,  // audio and subtitle tracks, with the subtitle style
  chapters,
  queue,
  shortcuts,
  goTo,   // a time that is typed
  lines,  // of the subtitles
  menu,   // over the picture
};
Q_ENUM_NS(PlayerPanel)

/// A panel that opens above the control bar: above a button of its own there, if it has one, else
/// above the middle.
class BarPanel {
  Q_GADGET
  QML_VALUE_TYPE(barPanel)
  Q_PROPERTY(tromelo::PlayerPanel panel MEMBER panel CONSTANT)
  Q_PROPERTY(QString body MEMBER body CONSTANT)
  Q_PROPERTY(QString button MEMBER button CONSTANT)
  Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
  Q_PROPERTY(QString name READ shownName CONSTANT)
  Q_PROPERTY(QString tip READ buttonTip CONSTANT)
  Q_PROPERTY(bool needsPlaces MEMBER needsPlaces CONSTANT)

 public:
  QString shownName() const { return QCoreApplication::translate("PlayerPanels", name); }
  QString buttonTip() const { return tip ? PlayerActions::tip(*tip) : shownName(); }

  PlayerPanel panel = {};
  QString body;         // a view that takes the model; a signal finished() of it closes the panel
  QString button = {};  // the object's name; empty: it has none
  QString symbol = {};
  const char* name = "";                       // as people read it, to be translated
  std::optional<PlayerActions::Tip> tip = {};  // of the key that does the same, if there is one
  bool needsPlaces = false;  // the button is there only for a file with chapters or bookmarks
};

/// In the order of their buttons.
inline QList<BarPanel> barPanels() {
  return {
      {.panel = PlayerPanel::chapters,
       .body = QStringLiteral("ChaptersPanel"),
       .button = QStringLiteral("chaptersButton"),
       .symbol = QStringLiteral("list.bullet.rectangle"),
       .name = QT_TRANSLATE_NOOP("PlayerPanels", "Chapters"),
       .tip = PlayerActions::Chapters,
       .needsPlaces = true},
      {.panel = PlayerPanel::tracks,
       .body = QStringLiteral("TracksPanel"),
       .button = QStringLiteral("tracksButton"),
       .symbol = QStringLiteral("captions.bubble"),
       .name = QT_TRANSLATE_NOOP("PlayerPanels", "Subtitles and audio"),
       .tip = PlayerActions::Tracks},
      {.panel = PlayerPanel::queue,
       .body = QStringLiteral("QueuePanel"),
       .button = QStringLiteral("queueButton"),
       .symbol = QStringLiteral("list.and.film"),
       .name = QT_TRANSLATE_NOOP("PlayerPanels", "Queue"),
       .tip = PlayerActions::Queue},
      {.panel = PlayerPanel::goTo,
       .body = QStringLiteral("GoToPanel"),
       .name = QT_TRANSLATE_NOOP("PlayerPanels", "Go to time")},
      {.panel = PlayerPanel::lines,
       .body = QStringLiteral("LinesPanel"),
       .name = QT_TRANSLATE_NOOP("PlayerPanels", "Subtitle lines")},
  };
}

}  // namespace tromelo
