#pragma once

#include <QList>
#include <QSize>
#include <memory>
#include <optional>

#include "platform/ScreenHeadroom.h"
#include "player/ControlledWindow.h"
#include "player/KeyPress.h"
#include "player/PlayerOverlay.h"

namespace tromelo {

class PlaybackModel;
class PlayerWindowController;

/// A window that the engine has opened, with the host's window that shows it, as the controller
/// sees the two. It begins transparent and off the screen, and stays alive until the engine has
/// taken it down and it is ordered out.
class VideoWindow : public ControlledWindow {
  Q_OBJECT

 public:
  using ControlledWindow::ControlledWindow;

  /// The engine wants it on the screen; false once the engine has taken it down.
  bool isVisible() const override = 0;
  virtual bool isMinimized() const = 0;
  /// It was asked to be, or the host hasn't ended it yet.
  virtual bool isFullscreen() const = 0;
  virtual bool hasDrawingSurface() const = 0;
  /// It has the keyboard.
  virtual bool isKey() const = 0;
  /// Of the screen that it is on; none while it is on no screen.
  virtual std::optional<ScreenHeadroom> screenHeadroom() const = 0;

  /// Dark, borderless, black behind the picture, no smaller than `minimumSize` (points); the scene
  /// is made ready, still transparent.
  virtual void dress(QSize minimumSize) = 0;
  virtual std::unique_ptr<PlayerOverlay> installOverlay(PlaybackModel& playback,
                                                        PlayerWindowController& controller) = 0;
  /// Is asked first about every key that goes down in the window, in place of the one before it.
  virtual void setKeyMonitor(KeyMonitor monitor) = 0;
  /// So large that the picture is shown in `pixels` of the screen, or as large as the screen has
  /// room for; nothing in full screen.
  virtual void showPictureIn(QSize pixels) = 0;
  /// As large as the screen has room for.
  virtual void fitScreen() = 0;
  /// A small window in the screen's corner, where windows may be placed; then back as it was.
  virtual void setMini(bool isMini) = 0;
  /// Above other windows, where the host allows that.
  virtual void setStaysOnTop(bool stays) = 0;
  /// Until the pointer next moves.
  virtual void hidePointer() = 0;
  virtual void showPointer() = 0;

 Q_SIGNALS:
  /// The host has ended it.
  void leftFullscreen();
  /// It is on another screen, or its screen shows another range.
  void screenChanged();
  /// The person asked the window manager to close it.
  void closeRequested();
};

/// All of them, in the order in which they came. Main thread only.
class WindowSystem : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual QList<VideoWindow*> videoWindows() const = 0;

 Q_SIGNALS:
  /// A window came or went, or one of them became visible, hidden or minimised.
  void windowsChanged();
};

}  // namespace tromelo
