#include "library/LibraryWindow.h"

#include <QEvent>
#include <QQmlComponent>

#include "playback/PlaybackModel.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

constexpr QSize kContentSize(1100, 720);  // points

}  // namespace

LibraryWindow::LibraryWindow(QQmlEngine& engine, PlaybackModel& playback,
                             PlayerWindowController& player, UserDefaults& defaults)
    : frame_(defaults, QStringLiteral("TromeloLibrary")) {
  QQmlComponent component(&engine, QStringLiteral("Tromelo.Library"),
                          QStringLiteral("LibraryWindow"));
  window_.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
      {{QStringLiteral("playback"), QVariant::fromValue(&playback)},
       {QStringLiteral("player"), QVariant::fromValue(&player)}})));
  if (!window_) qFatal("%s", qPrintable(component.errorString()));
  fade_ = std::make_unique<WindowFade>(
      *window_->findChild<QQuickItem*>(QStringLiteral("libraryScene")));
  window_->setGeometry(frame_.restored(kContentSize));
  window_->installEventFilter(this);
}

LibraryWindow::~LibraryWindow() = default;

bool LibraryWindow::isVisible() const { return window_->isVisible(); }

void LibraryWindow::setOpacity(double opacity) { fade_->setOpacity(opacity); }

void LibraryWindow::fadeTo(double opacity, std::chrono::milliseconds duration,
                           QEasingCurve::Type curve, std::function<void()> completed) {
  fade_->start(opacity, duration, curve, std::move(completed));
}

void LibraryWindow::makeKeyAndOrderFront() {
  window_->show();
  window_->raise();
  window_->requestActivate();
}

void LibraryWindow::orderOut() {
  if (window_->visibility() == QWindow::Windowed) frame_.save(window_->geometry());
  window_->hide();
}

bool LibraryWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != window_.get() || event->type() != QEvent::Close)
    return HostWindow::eventFilter(watched, event);
  event->ignore();
  orderOut();
  Q_EMIT closed();
  return true;
}

}  // namespace tromelo
