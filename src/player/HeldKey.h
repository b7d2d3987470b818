#pragma once

#include <QKeyEvent>

namespace tromelo {

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
