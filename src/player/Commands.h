#pragma once

#include <QtQml/qqmlregistration.h>
#include <QKeySequence>
#include <QObject>
#include <functional>

#include "player/PlayerActions.h"

namespace tromelo {

/// Something that the program as a whole does, with its key in every window.
class Command {
  Q_GADGET
  QML_VALUE_TYPE(command)
  Q_PROPERTY(QString keys READ keys CONSTANT)

 public:
  QKeySequence key;  // none for what only menus offer
  std::function<void()> action;

  /// The key as people read it.
  QString keys() const { return key.toString(QKeySequence::NativeText); }
  Q_INVOKABLE void run() const { action(); }
};

/// What the program as a whole can be told to do, for menus, and by its keys whichever of our
/// windows has the keyboard. Main thread only.
class Commands : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program has one.")
  Q_PROPERTY(tromelo::Command open READ open CONSTANT)
  Q_PROPERTY(tromelo::Command privacy READ privacy CONSTANT)
  Q_PROPERTY(tromelo::Command quit READ quit CONSTANT)
  Q_PROPERTY(tromelo::Command settings READ settings CONSTANT)
  Q_PROPERTY(tromelo::Command library READ library CONSTANT)
  Q_PROPERTY(tromelo::Command shortcuts READ shortcuts CONSTANT)
  Q_PROPERTY(tromelo::Command about READ about CONSTANT)

 public:
  using Action = std::function<void()>;
  /// None may be empty.
  struct Actions {
    Action open;
    Action togglePrivacy;
    Action quit;
    Action showSettings;
    Action showLibrary;
    Action showShortcuts;
    Action showAbout;
  };

  /// Listens to the application object from now on.
  explicit Commands(Actions actions);

  Command open() const { return {key(Program::open), actions_.open}; }
  Command privacy() const { return {{}, actions_.togglePrivacy}; }
  Command quit() const { return {key(Program::quit), actions_.quit}; }
  Command settings() const { return {key(Program::settings), actions_.showSettings}; }
  Command library() const { return {key(Program::library), actions_.showLibrary}; }
  Command shortcuts() const { return {{}, actions_.showShortcuts}; }
  Command about() const { return {{}, actions_.showAbout}; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Program = PlayerActions::Program;
  static QKeySequence key(Program command) { return PlayerActions::programKey(command); }

  const Actions actions_;
};

}  // namespace tromelo
