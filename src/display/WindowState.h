#pragma once

#include <QSize>
#include <QString>

namespace tromelo {

/// What the display's thread tells the main thread of one engine window.
struct WindowState {
  bool visible = false;
  bool minimized = false;
  bool fullscreen = false;  // as the engine last asked
  QString title;
  QSize size;

  friend bool operator==(const WindowState&, const WindowState&) = default;
};

}  // namespace tromelo
