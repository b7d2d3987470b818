#pragma once

#include <QString>
#include <Qt>
#include <functional>

class QKeyEvent;

namespace tromelo {

/// A key that went down, as the player's table of keys sees it. Keys of the keypad are their plain
/// twins, and a key that picks another character (AltGr) shows in the character alone.
struct KeyPress {
  Qt::Key key = Qt::Key_unknown;
  Qt::KeyboardModifiers modifiers;  // Shift, Control, Alt and Meta
  /// What the keyboard's layout types with this key, whatever Control, Alt, Meta and Caps Lock make
  /// of it. A key with a letter of another script has the Latin one that is printed beside it.
  QString characters;
  bool isRepeat = false;  // the key is held

  static KeyPress from(const QKeyEvent& event);
};

/// True for a key that was handled, which then is nobody else's.
using KeyMonitor = std::function<bool(const KeyPress&)>;

}  // namespace tromelo
