#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>

#include "overlay/ChromeGroup.h"
#include "overlay/PointerWatch.h"
#include "player/PlayerOverlay.h"

namespace tromelo {

class PlaybackModel;
class PlayerOverlayInput;
class PlayerWindowController;
class ReducedMotion;

/// PlayerOverlayView.qml on a player's scene.
class QuickPlayerOverlay : public QObject, public PlayerOverlay {
  Q_OBJECT

 public:
  /// Fills `scene`, above everything else there. `scene`, which has a window, and the others
  /// outlive it.
  QuickPlayerOverlay(QQmlEngine& engine, QQuickItem& scene, PlaybackModel& playback,
                     PlayerWindowController& player, const ReducedMotion& reducedMotion,
                     Clock& clock, PointerWatch::Place pointer = &PointerWatch::onScreen);
  ~QuickPlayerOverlay() override;

  bool isMouseInsideChrome() const override;
  void setChromeVisible(bool visible, bool animated) override;
  double height() const override { return view_->height(); }
  double controlsTop() const override { return view_->height() - controls_->y(); }

 private:
  void connectInput(PlayerOverlayInput& input);
  void followLayout();
  void fillScene();
  void scheduleLayout();

  QQuickItem& scene_;
  std::unique_ptr<QQuickItem> view_;
  QQuickItem* controls_ = nullptr;
  std::unique_ptr<ChromeGroup> chrome_;
  PointerWatch pointer_;
  bool layoutScheduled_ = false;
};

}  // namespace tromelo
