#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QScreen>
#include <memory>
#include <vector>

#include "display/PrivateDisplay.h"
#include "platform/HostHeadroom.h"
#include "player/PlayerWindow.h"

namespace tromelo {

/// Gives each engine window of the private display a host window, and tells the display of the
/// screen that they are on. Main thread only.
class PlayerStage : public WindowSystem {
  Q_OBJECT

 public:
  /// All but the factory outlive it.
  PlayerStage(PrivateDisplay& display, QQmlEngine& engine, const ReducedMotion& reducedMotion,
              PlayerOverlayFactory overlayFactory);
  ~PlayerStage() override;

  QList<VideoWindow*> videoWindows() const override;

  /// The size in device pixels of the newest window's host; empty without one.
  QSize hostPixelSize() const;

  /// Makes the first window's host and overlay now, while the engine opens a file.
  void prepareWindow(PlaybackModel& playback, PlayerWindowController& controller);

  /// What the engine is told of `screen`.
  static PrivateDisplay::Output outputOf(const QScreen& screen);

 Q_SIGNALS:
  void hostResized();
  /// The scene can't show the engine's pictures out of the graphics card's memory. The display has
  /// them come through shared memory, as soon as the engine makes its output anew.
  void dmabufsWithdrawn();
  /// The host shows the engine's own buffers no more; the scene draws them.
  void refusedByHost();

 private:
  void add(EngineWindow& engineWindow);
  void prepareHost();
  void retire(PlayerWindow* window);
  void followScreen(QScreen* screen);

  PrivateDisplay& display_;
  QQmlEngine& engine_;
  const ReducedMotion& reducedMotion_;
  PlayerOverlayFactory overlayFactory_;
  std::unique_ptr<PlayerHostWindow> spareHost_;
  std::vector<std::unique_ptr<PlayerWindow>> windows_;
  QPointer<QScreen> screen_;
  HostHeadroom headroom_;
};

}  // namespace tromelo
