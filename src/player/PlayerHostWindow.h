#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>
#include <memory>
#include <optional>

#include "display/EngineWindowItem.h"
#include "player/EdgeResize.h"
#include "player/KeyPress.h"
#include "player/PlayerOverlay.h"
#include "player/PlayerSceneItem.h"
#include "player/WindowFade.h"

namespace tromelo {

/// The frameless host window in which an engine window is shown, with its scene. It is kept for the
/// next file when a file ends, since a scene's graphics take long to make. Main thread only.
class PlayerHostWindow : public QQuickWindow {
  Q_OBJECT

 public:
  /// Both outlive it.
  PlayerHostWindow(QQmlEngine& engine, const ReducedMotion& reducedMotion);
  ~PlayerHostWindow() override;

  EngineWindowItem& video() { return scene_->video(); }
  QQuickItem& scene() { return *scene_; }
  WindowFade& fade() { return *fade_; }

  /// An overlay that was made in its scene before there is a window to install it in.
  void keepOverlay(std::unique_ptr<PlayerOverlay> overlay) { overlay_ = std::move(overlay); }
  std::unique_ptr<PlayerOverlay> takeOverlay() { return std::move(overlay_); }

  /// Its size in device pixels.
  QSize pixelSize() const;
  /// Gives the window `pixels`, kept on its screen and round the same centre where the host lets us
  /// place windows.
  void resizeToPixels(QSize pixels);
  /// Of its screen for a window, in device pixels.
  QSize pixelRoom() const;
  /// Small, in the corner where the host lets us place windows; then as it was.
  void setMini(bool isMini);
  void setStaysOnTop(bool stays) { setFlag(Qt::WindowStaysOnTopHint, stays); }
  /// What a hand that resizes the window keeps to; in any unit.
  void setPictureAspect(QSize picture) { edgeResize_.setAspect(picture); }

  /// Keys that it doesn't handle go on to what has the focus in the window. While that is something
  /// to type into, the monitor is asked after it; while it is a menu, not at all.
  void setKeyMonitor(KeyMonitor monitor) { keyMonitor_ = std::move(monitor); }

  /// Mapped, so that its graphics get ready, but with nothing to be seen or clicked.
  void showUnseen();
  void present();

  /// Until it next moves over the window.
  void hidePointer();
  void showPointer();

 Q_SIGNALS:
  void closeRequested();
  void devicePixelRatioChanged();
  /// The host has told which state the window is in, which may be long after it was asked for.
  void stateReported(Qt::WindowStates states);

 protected:
  bool event(QEvent* event) override;

 private:
  QSize roomFor(QSize picture) const;
  void fillWindow();
  void center(QPoint middle);
  bool handlePointer(QEvent& event);
  bool handleKey(QKeyEvent& event);
  bool askMonitor(const QKeyEvent& event);
  void letGo();
  bool isTypedInto() const;
  bool isInPopup() const;
  void followPointer(const QSinglePointEvent& event);
  void updateCursor();

  std::unique_ptr<PlayerSceneItem> scene_;
  std::unique_ptr<PlayerOverlay> overlay_;
  std::unique_ptr<WindowFade> fade_;
  EdgeResize edgeResize_{*this};
  KeyMonitor keyMonitor_;
  HeldKey heldKey_;
  QTimer letsGo_;                 // the key has come up, unless it is held
  std::optional<KeyPress> down_;  // the last that the monitor took, while it is down
  Qt::Edges edgesUnderPointer_;
  QPointF pointer_;  // on the screen, where it was last seen
  bool pointerHidden_ = false;
  struct Shape {
    QSize minimum;
    QRect frame;
  };
  std::optional<Shape> beforeMini_;
};

}  // namespace tromelo
