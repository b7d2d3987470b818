#include "player/Commands.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace tromelo {

Commands::Commands(Actions actions) : actions_(std::move(actions)) {
  qApp->installEventFilter(this);
}

bool Commands::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Quit && watched == qApp) {
    // The session ends, or somebody else asks; our windows don't decide.
    actions_.quit();
    event->ignore();
    return true;
  }
  if (event->type() != QEvent::KeyPress || !watched->isWindowType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  // The keypad's keys are as good as their twins.
  const QKeySequence pressed(
      QKeyCombination(key->modifiers() & ~Qt::KeypadModifier, Qt::Key(key->key())));
  const std::array withKeys{open(), quit(), settings(), library()};
  const auto command = std::ranges::find(withKeys, pressed, &Command::key);
  if (command == withKeys.end()) return false;
  if (!key->isAutoRepeat()) command->run();
  return true;
}

}  // namespace tromelo
