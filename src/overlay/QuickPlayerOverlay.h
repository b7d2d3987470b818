#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>

#include "overlay/ChromeGroup.h"
#include "overlay/PointerWatch.h"
#include "player/PlayerOverlay.h"

namespace tromelo {

class PictureSource;
class PlaybackModel;
class PlayerOverlayInput;
class PlayerOverlayItem;
class PlayerWindowController;
class ReducedMotion;

/// PlayerOverlayView.qml on a player's scene.
class QuickPlayerOverlay : public QObject, public PlayerOverlay {
  Q_OBJECT

 public:
  /// Fills `scene`, above everything else there. `scene`, which has a window, and the others
  /// outlive it. Without `pictures` the slider shows none.
  QuickPlayerOverlay(QQmlEngine& engine, QQuickItem& scene, PlaybackModel& playback,
                     PlayerWindowController& player, const ReducedMotion& reducedMotion,
                     Clock& clock, PointerWatch::Place pointer = &PointerWatch::onScreen,
                     PictureSource* pictures = nullptr);
  ~QuickPlayerOverlay() override;

  bool isMouseInsideChrome() const override;
  void setChromeVisible(bool visible, bool animated) override;
  double height() const override;
  double controlsTop() const override;

 private:
  void connectInput(PlayerOverlayInput& input);
  void followLayout();
  void fillScene();
  void scheduleLayout();

  QQuickItem& scene_;
  std::unique_ptr<PlayerOverlayItem> view_;
  std::unique_ptr<ChromeGroup> chrome_;
  PointerWatch pointer_;
  bool layoutScheduled_ = false;
};

}  // namespace tromelo
