#pragma once

#include <QSize>
#include <memory>
#include <optional>

#include "platform/ScreenHeadroom.h"
#include "player/HostWindow.h"
#include "player/KeyPress.h"
#include "player/PlayerOverlay.h"

namespace tromelo {

class PlaybackModel;
class PlayerWindowController;

/// A window that the engine has opened, with the host window that shows it. It begins transparent
/// and off the screen, and stays alive until the engine has taken it down and it is ordered out.
class VideoWindow : public HostWindow {
  Q_OBJECT

 public:
  using HostWindow::HostWindow;

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

}  // namespace tromelo
