#pragma once

#include <QPoint>
#include <QSize>
#include <QString>
#include <memory>

namespace tromelo::testing {

/// A person's pointer, keyboard and view of the windows on a Wayland host that is built on wlroots.
/// Each call returns when the host has taken it.
class WaylandHand {
 public:
  /// Of the host that WAYLAND_DISPLAY names.
  WaylandHand();
  ~WaylandHand();

  void move(QPoint place, QSize screen);
  /// As X11 numbers them; 4 and 5 are one step of the wheel, up and down.
  void setButton(int button, bool down);
  /// "ctrl+shift+l", in X11's names.
  void setKeys(const QString& keys, bool down);

  /// Whether there is a window whose title matches; `active`: that has the keyboard.
  bool hasWindow(const QString& titlePattern, bool active = false);
  void activate(const QString& titlePattern);

 private:
  struct Host;
  std::unique_ptr<Host> host_;
};

}  // namespace tromelo::testing
