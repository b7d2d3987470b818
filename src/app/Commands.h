#pragma once

#include <QKeySequence>
#include <QObject>
#include <functional>
#include <vector>

namespace tromelo {

/// A command of the program as a whole, with its key in every window.
struct Command {
  QString title;
  QKeySequence key;
  std::function<void()> action;
};

/// Runs commands by their keys, whichever of our windows has the keyboard. Main thread only.
class Commands : public QObject {
  Q_OBJECT

 public:
  /// Listens to the application object from now on.
  explicit Commands(std::vector<Command> commands);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<Command> commands_;
};

}  // namespace tromelo
