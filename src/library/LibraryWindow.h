#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <memory>

#include "library/SidebarWidth.h"
#include "library/WindowFrame.h"
#include "platform/FileManager.h"
#include "player/ControlledWindow.h"
#include "player/WindowFade.h"

namespace tromelo {

class Commands;
class PlaybackModel;
class PlayerWindowController;

/// The program's home. Closing it only hides it. The first time it comes on the screen when the
/// event loop runs: a file that is opened together with it is with the engine by then. Main thread
/// only.
class LibraryWindow : public ControlledWindow {
  Q_OBJECT

 public:
  /// All outlive it.
  LibraryWindow(QQmlEngine& engine, PlaybackModel& playback, PlayerWindowController& player,
                Commands& commands, UserDefaults& defaults, const ReducedMotion& reducedMotion);
  ~LibraryWindow() override;

  bool isVisible() const override;
  void setOpacity(double opacity) override;
  void fadeTo(double opacity, std::chrono::milliseconds duration, QEasingCurve::Type curve,
              std::function<void()> completed) override;
  void makeKeyAndOrderFront() override;
  void orderOut() override;

 Q_SIGNALS:
  /// The person closed it; it is hidden by now.
  void closed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void make();
  void comeUp();
  void present();
  void saveFrame();

  QQmlEngine& engine_;
  PlaybackModel& playback_;
  PlayerWindowController& player_;
  Commands& commands_;
  const ReducedMotion& reducedMotion_;
  WindowFrame frame_;
  SidebarWidth sidebarWidth_;
  FileManager fileManager_;
  bool isComing_ = false;
  QTimer settled_;
  double opacity_ = 1;
  std::unique_ptr<QQuickWindow> window_;
  std::unique_ptr<QQuickItem> scene_;
  std::unique_ptr<WindowFade> fade_;
};

}  // namespace tromelo
