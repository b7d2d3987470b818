#pragma once

#include <QRect>
#include <QString>

#include "platform/UserDefaults.h"

namespace tromelo {

/// A window's place on the screen, remembered under a name. Points.
class WindowFrame {
 public:
  /// `defaults` outlives it.
  WindowFrame(UserDefaults& defaults, const QString& name);

  /// The remembered frame, if it still lies on a screen that can show it; else `size` in the middle
  /// of the primary screen. No smaller than `least`, and no larger than the screen.
  QRect restored(QSize size, QSize least = {}) const;
  void save(const QRect& frame);

 private:
  UserDefaults& defaults_;
  QString key_;
};

}  // namespace tromelo
