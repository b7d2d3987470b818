#pragma once

#include <QtQml/qqmlregistration.h>
#include <QKeySequence>
#include <QObject>
#include <utility>
#include <vector>

#include "player/KeyPress.h"

namespace tromelo {

class PlaybackModel;
class PlayerWindowController;

/// Everything that keys do, in one table. A row says what a key does and what is said then, how the
/// list of keys writes it, and how a button that does the same is called. Main thread only.
class PlayerActions : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(double seekStep READ seekStep CONSTANT)
  Q_PROPERTY(double volumeStep READ volumeStep CONSTANT)
  Q_PROPERTY(double delayStep READ delayStep CONSTANT)

 public:
  using QObject::QObject;

  static constexpr double seekStep() { return 10; }     // seconds
  static constexpr double volumeStep() { return 5; }    // percent
  static constexpr double delayStep() { return 0.05; }  // seconds

  /// What a button that does the same as a key tells where the pointer rests on it.
  enum Tip {
    Play,
    Pause,
    Back,
    Forward,
    Speed,
    Next,
    Previous,
    Chapters,
    Queue,
    Shuffle,
    RepeatAll,
    SaveQueue,
    OpenVideo,
    OpenVideos,
    Mute,
    Unmute,
    Tracks,
    EnterFullScreen,
    ExitFullScreen,
    ClosePlayer,
    ClosePanel,
    Info,
    StartOver,
  };
  Q_ENUM(Tip)

  /// What the program as a whole does, whichever of its windows has the keyboard; see Commands.
  enum class Program { no, open, quit, settings, library };

  /// Whether a key that stays down does it again. What goes in small steps goes on; what opens,
  /// closes or switches would flap for as long as the key is held, or run through a whole queue.
  enum class Held {
    once,
    again,
    // Steps that wait for the frames that they go to: the engine plays for each, so that it isn't
    // paused until it is there.
    whenPaused,
  };

  /// Presses of one key, or of whichever keys type one of some characters.
  struct Key {
    Qt::Key key = Qt::Key_unknown;
    QStringView characters = {};
    Qt::KeyboardModifiers modifiers = {};  // all of these are down,
    Qt::KeyboardModifiers anyway = {};     // and of others only these may be

    bool matches(const KeyPress& press) const;
  };

  /// Does it, and returns a toast; empty where there is nothing to say.
  using Act = QString(PlayerWindowController&, PlaybackModel&);

  struct Action {
    std::vector<Key> keys;
    Act* act = nullptr;  // none for what the whole program does
    Held held = Held::once;
    bool withoutWindow = false;  // also for a file that has no window, in the library
    Program program = Program::no;
    std::vector<std::pair<Tip, const char*>> tips = {};
    Act* release = nullptr;  // when the key comes up again
  };

  /// A line in the list of keys, with the actions that it stands for; none where it is the hand's.
  struct Line {
    const char* keys;
    const char* meaning;
    std::vector<Action> actions;
  };
  struct Group {
    const char* title;  // none: the list leaves these out
    std::vector<Line> lines;
  };

  /// In the list's order. Texts are the fixed ones, which tr() translates.
  static const std::vector<Group> groups;

  /// What the player does with this press; null where that is nothing.
  static const Action* find(const KeyPress& press);
  /// Returns a toast, or nothing. A press of a key that is held may do nothing.
  static QString perform(const Action& action, bool isRepeat, PlayerWindowController& player,
                         PlaybackModel& playback);
  static QKeySequence programKey(Program command);
  /// "Mute (M)", as people read it.
  Q_INVOKABLE static QString tip(tromelo::PlayerActions::Tip tip);
  static QString volumeText(const PlaybackModel& playback);
};

}  // namespace tromelo
