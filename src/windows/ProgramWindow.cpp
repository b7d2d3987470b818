#include "windows/ProgramWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>

#include "platform/KeptInside.h"
#include "player/LostScene.h"

namespace tromelo {

namespace {

QWindow& mainWindowOf(QWindow& window) {
  QWindow* main = &window;
  while (QWindow* above = main->transientParent()) main = above;
  return *main;
}

}  // namespace

ProgramWindow::ProgramWindow(QQmlEngine& engine, const char* type, QVariantMap properties)
    : engine_(engine), type_(type), properties_(std::move(properties)) {}

ProgramWindow::~ProgramWindow() = default;

QQuickWindow& ProgramWindow::show() {
  if (!window_) make();
  if (QWindow* active = QGuiApplication::focusWindow()) follow(mainWindowOf(*active));
  bringForward();
  return *window_;
}

void ProgramWindow::bringForward() {
  window_->show();
  window_->raise();
  window_->requestActivate();
}

void ProgramWindow::make() {
  QQmlComponent component(&engine_, QStringLiteral("Tromelo.Windows"), QString::fromLatin1(type_));
  window_.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(properties_)));
  if (!window_) qFatal("%s", qPrintable(component.errorString()));
  window_->installEventFilter(this);
  // Who has gone on to another window doesn't want this one before it.
  connect(window_.get(), &QWindow::activeChanged, this, [this] {
    if (window_ && !window_->isActive()) disconnect(mainIsShown_);
  });
  endWhereSceneIsLost(*window_);
  if (QWindow* active = QGuiApplication::focusWindow()) placeOver(*active);
}

void ProgramWindow::placeOver(QWindow& active) {
  QRect frame(QPoint(), window_->size());
  frame.moveCenter(active.geometry().center());
  window_->setPosition(keptInside(frame, active.screen()->availableGeometry()).topLeft());
}

/// Full screen may have been asked for already, and begin only now.
void ProgramWindow::follow(QWindow& main) {
  if (&main == window_.get()) return;
  if (main.visibility() == QWindow::FullScreen) stayAbove(main);
  disconnect(mainIsShown_);
  mainIsShown_ = connect(&main, &QWindow::visibilityChanged, window_.get(),
                         [this, &main](QWindow::Visibility visibility) {
                           if (!window_ || visibility != QWindow::FullScreen) return;
                           stayAbove(main);
                           bringForward();
                         });
}

/// Desktops keep other windows behind one that fills the screen, and some give it the keyboard when
/// it begins to.
void ProgramWindow::stayAbove(QWindow& main) {
  if (&main == window_->transientParent()) return;
  window_->hide();  // the desktop is told when a window is shown
  window_->setTransientParent(&main);
}

bool ProgramWindow::eventFilter(QObject* watched, QEvent* event) {
  // One of its own handlers may have closed it, so it goes later.
  if (watched == window_.get() && event->type() == QEvent::Close) window_.release()->deleteLater();
  return QObject::eventFilter(watched, event);
}

}  // namespace tromelo
