#include "app/Commands.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>
#include <algorithm>

namespace tromelo {

Commands::Commands(std::vector<Command> commands) : commands_(std::move(commands)) {
  qApp->installEventFilter(this);
}

bool Commands::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWindowType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  // The keypad's keys are as good as their twins.
  const QKeyCombination pressed(key->modifiers() & ~Qt::KeypadModifier, Qt::Key(key->key()));
  const auto command = std::ranges::find_if(
      commands_, [&](const Command& candidate) { return candidate.key == QKeySequence(pressed); });
  if (command == commands_.end()) return false;
  if (!key->isAutoRepeat()) command->action();
  return true;
}

}  // namespace tromelo
