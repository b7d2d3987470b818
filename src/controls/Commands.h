#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "controls/Command.h"

namespace tromelo {

/// What the program as a whole can be told to do, for menus, and by its keys whichever of our
/// windows has the keyboard. Main thread only.
class Commands : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program has one.")
  Q_PROPERTY(tromelo::Command open READ open CONSTANT)
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
    Action quit;
    Action showSettings;
    Action showLibrary;
    Action showShortcuts;
    Action showAbout;
  };

  /// Listens to the application object from now on.
  explicit Commands(Actions actions);

  Command open() const { return {Qt::CTRL | Qt::Key_O, actions_.open}; }
  Command quit() const { return {Qt::CTRL | Qt::Key_Q, actions_.quit}; }
  Command settings() const { return {Qt::CTRL | Qt::Key_Comma, actions_.showSettings}; }
  Command library() const { return {Qt::CTRL | Qt::SHIFT | Qt::Key_L, actions_.showLibrary}; }
  Command shortcuts() const { return {{}, actions_.showShortcuts}; }
  Command about() const { return {{}, actions_.showAbout}; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const Actions actions_;
};

}  // namespace tromelo
