#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>

#include "player/PlayerOverlay.h"

namespace tromelo {

/// PlayerOverlayView.qml on a player's scene.
class QuickPlayerOverlay : public QObject, public PlayerOverlay {
  Q_OBJECT

 public:
  /// Fills `scene`, above everything else there. `scene` outlives it.
  QuickPlayerOverlay(QQmlEngine& engine, QQuickItem& scene);
  ~QuickPlayerOverlay() override;

  bool isMouseInsideChrome() const override { return false; }
  void setChromeVisible(bool, bool) override {}
  double height() const override { return view_->height(); }
  double controlsTop() const override { return 0; }

 private Q_SLOTS:
  void reportDoubleClick();
  void reportDrop(const QList<QUrl>& urls);

 private:
  void fillScene();

  QQuickItem& scene_;
  std::unique_ptr<QQuickItem> view_;
};

}  // namespace tromelo
