#pragma once

#include <QPointer>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "display/EngineWindow.h"
#include "platform/HostHeadroom.h"
#include "player/PlayerHostWindow.h"
#include "player/VideoWindow.h"

namespace tromelo {

/// Makes the overlay for a scene; see PlayerOverlay.
using PlayerOverlayFactory = std::function<std::unique_ptr<PlayerOverlay>(
    QQuickItem& scene, PlaybackModel& playback, PlayerWindowController& controller)>;

/// An engine window in a host window: keeps the two agreed on size, full screen and visibility.
class PlayerWindow : public VideoWindow {
  Q_OBJECT

 public:
  /// All outlive it but `engineWindow`, which may go at any time.
  PlayerWindow(EngineWindow& engineWindow, std::unique_ptr<PlayerHostWindow> host,
               const PlayerOverlayFactory& overlayFactory, HostHeadroom& headroom);
  ~PlayerWindow() override;

  bool isVisible() const override;
  bool isMinimized() const override;
  bool isFullscreen() const override;
  bool hasDrawingSurface() const override;
  bool isKey() const override;
  std::optional<ScreenHeadroom> screenHeadroom() const override;
  void setOpacity(double opacity) override;
  void fadeTo(double opacity, std::chrono::milliseconds duration, QEasingCurve::Type curve,
              std::function<void()> completed) override;
  void makeKeyAndOrderFront() override;
  void orderOut() override;
  void dress(QSize minimumSize) override;
  std::unique_ptr<PlayerOverlay> installOverlay(PlaybackModel& playback,
                                                PlayerWindowController& controller) override;
  void setKeyMonitor(KeyMonitor monitor) override;
  void showPictureIn(QSize pixels) override;
  void fitScreen() override;
  void setMini(bool isMini) override { host_->setMini(isMini); }
  void setStaysOnTop(bool stays) override { host_->setStaysOnTop(stays); }
  void hidePointer() override;
  void showPointer() override;

  PlayerHostWindow& host() { return *host_; }
  /// Hidden and without a picture, for the next engine window. This one is finished then.
  std::unique_ptr<PlayerHostWindow> takeHost();

 Q_SIGNALS:
  /// Visibility or minimised changed.
  void stateChanged();
  /// The engine's window is gone and nothing of it is on the screen any more.
  void finished();

 private:
  void followHost();
  void followEngine();
  void adoptEngineSize();
  bool answersRequest(QSize pixels);
  void scheduleHostState();
  void sendHostState();
  void adoptTitle();
  void handleVisibility();
  void handleReport(Qt::WindowStates states);
  void updateFullscreen();
  bool asksForFullscreen() const;
  void handleTakenDown();

  QPointer<EngineWindow> engineWindow_;
  std::unique_ptr<PlayerHostWindow> host_;
  const PlayerOverlayFactory& overlayFactory_;
  HostHeadroom& headroom_;
  QSize chosenSize_;  // by the engine, device pixels; gives the aspect
  // Sizes that the engine was asked for and has not answered yet, oldest first.
  std::deque<QSize> requestedSizes_;
  bool fullscreenOnHost_ = false;  // as the host last reported
  bool wasFullscreen_ = false;
  bool hostStateScheduled_ = false;
};

}  // namespace tromelo
