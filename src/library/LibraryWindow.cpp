#include "library/LibraryWindow.h"

#include <malloc.h>

#include <QCoreApplication>
#include <QEvent>
#include <QQmlComponent>

#include "platform/Timeline.h"
#include "playback/PlaybackModel.h"
#include "player/Commands.h"
#include "player/LostScene.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

constexpr QSize kContentSize(1100, 720);  // points
constexpr QSize kLeastSize(760, 480);

// By then the window has come up, and what played before is gone.
constexpr std::chrono::milliseconds kSettled = std::chrono::seconds(3);

/// Memory that the start, the scene and the films have freed is of no use to what comes next.
void giveFreedMemoryBack() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

}  // namespace

LibraryWindow::LibraryWindow(QQmlEngine& engine, PlaybackModel& playback,
                             PlayerWindowController& player, Commands& commands,
                             UserDefaults& defaults, const ReducedMotion& reducedMotion)
    : engine_(engine),
      playback_(playback),
      player_(player),
      commands_(commands),
      reducedMotion_(reducedMotion),
      frame_(defaults, QStringLiteral("TromeloLibrary")),
      sidebarWidth_(defaults) {
  settled_.setSingleShot(true);
  settled_.setInterval(kSettled);
  connect(&settled_, &QTimer::timeout, this, [this] {
    if (isVisible()) giveFreedMemoryBack();
  });
  connect(&fileManager_, &FileManager::failed, &playback, &PlaybackModel::tell);
}

LibraryWindow::~LibraryWindow() { saveFrame(); }

void LibraryWindow::make() {
  window_ = std::make_unique<QQuickWindow>();
  window_->setTitle(QCoreApplication::translate("LibraryWindow", "Tromelo"));
  window_->setColor(Qt::transparent);
  window_->setMinimumSize(kLeastSize);
  endWhereSceneIsLost(*window_);
  QQmlComponent component(&engine_, QStringLiteral("Tromelo.Library"),
                          QStringLiteral("LibraryScene"));
  scene_.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
      {{QStringLiteral("parent"), QVariant::fromValue(window_->contentItem())},
       {QStringLiteral("playback"), QVariant::fromValue(&playback_)},
       {QStringLiteral("player"), QVariant::fromValue(&player_)},
       {QStringLiteral("commands"), QVariant::fromValue(&commands_)},
       {QStringLiteral("sidebarWidth"), QVariant::fromValue(&sidebarWidth_)},
       {QStringLiteral("fileManager"), QVariant::fromValue(&fileManager_)}})));
  if (!scene_) qFatal("%s", qPrintable(component.errorString()));
  fade_ = std::make_unique<WindowFade>(*scene_, reducedMotion_);
  fade_->setOpacity(opacity_);
  window_->setGeometry(frame_.restored(kContentSize, kLeastSize));
  // Hidden, which it is while a film plays, it keeps no graphics memory.
  window_->setPersistentSceneGraph(false);
  window_->setPersistentGraphics(false);
  window_->installEventFilter(this);
}

bool LibraryWindow::isVisible() const {
  if (!window_) return isComing_;
  return window_->isVisible() && !(window_->windowStates() & Qt::WindowMinimized);
}

void LibraryWindow::setOpacity(double opacity) {
  opacity_ = opacity;
  if (fade_) fade_->setOpacity(opacity);
}

void LibraryWindow::fadeTo(double opacity, std::chrono::milliseconds duration,
                           QEasingCurve::Type curve, std::function<void()> completed) {
  if (isComing_ && opacity > 0) present();
  if (!window_ && opacity == 0) {
    isComing_ = false;
    opacity_ = 0;
    if (completed) QMetaObject::invokeMethod(this, std::move(completed), Qt::QueuedConnection);
    return;
  }
  if (!window_) make();
  fade_->start(opacity, duration, curve, std::move(completed));
}

void LibraryWindow::makeKeyAndOrderFront() {
  isComing_ = true;
  if (window_) return present();
  QMetaObject::invokeMethod(this, &LibraryWindow::comeUp, Qt::QueuedConnection);
}

/// What is to be done for a film that is on its way, the library gives way to.
void LibraryWindow::comeUp() {
  if (!player_.isAwaitingVideo()) return present();
  QMetaObject::invokeMethod(this, &LibraryWindow::present, Qt::QueuedConnection);
}

void LibraryWindow::present() {
  if (!isComing_) return;
  isComing_ = false;
  if (!window_) make();
  Timeline::note("library made");
  // Not show(), which also undoes a maximised window.
  if (window_->windowStates() & Qt::WindowMinimized)
    window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
  window_->setVisible(true);
  settled_.start();
  window_->raise();
  window_->requestActivate();
  Timeline::note("library shown");
}

void LibraryWindow::orderOut() {
  isComing_ = false;
  if (!window_) return;
  saveFrame();
  window_->hide();
  QMetaObject::invokeMethod(this, &giveFreedMemoryBack, Qt::QueuedConnection);
}

void LibraryWindow::saveFrame() {
  if (window_ && window_->visibility() == QWindow::Windowed) frame_.save(window_->geometry());
}

bool LibraryWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != window_.get() || event->type() != QEvent::Close)
    return ControlledWindow::eventFilter(watched, event);
  event->ignore();
  orderOut();
  Q_EMIT closed();
  return true;
}

}  // namespace tromelo
