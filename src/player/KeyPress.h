#pragma once

#include <QKeyEvent>
#include <QString>
#include <functional>

namespace tromelo {

/// A key that went down, or comes up again, as the player's table of keys sees it. Keys of the
/// keypad are their plain twins, and a key that picks another character (AltGr) shows in the
/// character alone.
struct KeyPress {
  static constexpr auto kModifiers =
      Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

  Qt::Key key = Qt::Key_unknown;
  Qt::KeyboardModifiers modifiers;  // of kModifiers
  /// What the keyboard's layout types with this key, whatever Control, Alt, Meta and Caps Lock make
  /// of it. A key with a letter of another script has the Latin one that is printed beside it.
  QString characters;
  bool isRepeat = false;  // the key is held
  bool isUp = false;      // it is let go of

  static KeyPress from(const QKeyEvent& event);
};

/// True for a key that was handled, which then is nobody else's.
using KeyMonitor = std::function<bool(const KeyPress&)>;

/// Tells a key that is held from one that is pressed again. X11 lets go of a held key and presses
/// it at the same moment, which Qt takes for a repeat only if the press has come by then.
class HeldKey {
 public:
  void release(const QKeyEvent& event) {
    code_ = event.nativeScanCode();
    released_ = event.timestamp();
  }
  bool isRepeatedBy(const QKeyEvent& press) const {
    return press.isAutoRepeat() ||
           (released_ != 0 && press.nativeScanCode() == code_ && press.timestamp() == released_);
  }

 private:
  quint32 code_ = 0;
  quint64 released_ = 0;  // when, in milliseconds; 0 before the first
};

}  // namespace tromelo
