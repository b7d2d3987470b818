#include "windows/ProgramWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>

#include "platform/KeptInside.h"
#include "player/LostScene.h"

namespace tromelo {

ProgramWindow::ProgramWindow(QQmlEngine& engine, const char* type, QVariantMap properties)
    : engine_(engine), type_(type), properties_(std::move(properties)) {}

ProgramWindow::~ProgramWindow() = default;

QQuickWindow& ProgramWindow::show() {
  if (!window_) make();
  window_->show();
  window_->raise();
  window_->requestActivate();
  return *window_;
}

void ProgramWindow::make() {
  QQmlComponent component(&engine_, QStringLiteral("Tromelo.Windows"), QString::fromLatin1(type_));
  window_.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(properties_)));
  if (!window_) qFatal("%s", qPrintable(component.errorString()));
  window_->installEventFilter(this);
  endWhereSceneIsLost(*window_);
  if (QWindow* active = QGuiApplication::focusWindow()) placeOver(*active);
}

void ProgramWindow::placeOver(QWindow& active) {
  QRect frame(QPoint(), window_->size());
  frame.moveCenter(active.geometry().center());
  window_->setPosition(keptInside(frame, active.screen()->availableGeometry()).topLeft());
  // Desktops keep other windows behind one that fills the screen.
  if (active.visibility() == QWindow::FullScreen) window_->setTransientParent(&active);
}

bool ProgramWindow::eventFilter(QObject* watched, QEvent* event) {
  // One of its own handlers may have closed it, so it goes later.
  if (watched == window_.get() && event->type() == QEvent::Close) window_.release()->deleteLater();
  return QObject::eventFilter(watched, event);
}

}  // namespace tromelo
