#include "player/PlayerWindow.h"

#include <QGuiApplication>
#include <cstdlib>
#include <utility>

namespace tromelo {

namespace {

// The engine rounds the size that it is asked for to its picture's aspect.
constexpr int kRounding = 2;
constexpr std::size_t kMostRequests = 64;

bool nearlyEqual(QSize a, QSize b) {
  return std::abs(a.width() - b.width()) <= kRounding &&
         std::abs(a.height() - b.height()) <= kRounding;
}

}  // namespace

PlayerWindow::PlayerWindow(EngineWindow& engineWindow, std::unique_ptr<PlayerHostWindow> host,
                           const PlayerOverlayFactory& overlayFactory, HostHeadroom& headroom)
    : engineWindow_(&engineWindow),
      host_(std::move(host)),
      overlayFactory_(overlayFactory),
      headroom_(headroom) {
  connect(&headroom_, &HostHeadroom::changed, this, &VideoWindow::screenChanged);
  host_->fade().setOpacity(0);
  host_->video().setEngineWindow(&engineWindow);
  followHost();
  followEngine();
  adoptTitle();
}

PlayerWindow::~PlayerWindow() = default;

void PlayerWindow::followHost() {
  connect(host_.get(), &PlayerHostWindow::closeRequested, this, &VideoWindow::closeRequested);
  connect(host_.get(), &QWindow::visibilityChanged, this, &PlayerWindow::handleVisibility);
  connect(host_.get(), &PlayerHostWindow::stateReported, this, &PlayerWindow::handleReport);
  connect(host_.get(), &QWindow::widthChanged, this, &PlayerWindow::scheduleHostState);
  connect(host_.get(), &QWindow::heightChanged, this, &PlayerWindow::scheduleHostState);
  connect(host_.get(), &QWindow::activeChanged, this, &PlayerWindow::scheduleHostState);
  connect(host_.get(), &QQuickWindow::sceneGraphInitialized, this, &PlayerWindow::scheduleHostState,
          Qt::QueuedConnection);
  connect(host_.get(), &PlayerHostWindow::devicePixelRatioChanged, this,
          &PlayerWindow::scheduleHostState);
  connect(host_.get(), &QWindow::screenChanged, this, &VideoWindow::screenChanged);
  connect(host_.get(), &PlayerHostWindow::devicePixelRatioChanged, this,
          &VideoWindow::screenChanged);
}

void PlayerWindow::followEngine() {
  connect(engineWindow_, &EngineWindow::sizeChanged, this, &PlayerWindow::adoptEngineSize);
  connect(engineWindow_, &EngineWindow::stateChanged, this, &PlayerWindow::stateChanged);
  connect(engineWindow_, &EngineWindow::takenDown, this, &PlayerWindow::handleTakenDown);
  connect(engineWindow_, &EngineWindow::titleChanged, this, &PlayerWindow::adoptTitle);
  connect(engineWindow_, &EngineWindow::fullscreenRequested, this, [this](bool fullscreen) {
    // Never shows a window that was given up meanwhile.
    host_->setWindowState(fullscreen ? Qt::WindowFullScreen : Qt::WindowNoState);
  });
}

bool PlayerWindow::isVisible() const { return engineWindow_ && engineWindow_->isVisible(); }

bool PlayerWindow::isMinimized() const {
  return isVisible() && host_->visibility() == QWindow::Minimized;
}

bool PlayerWindow::isFullscreen() const { return asksForFullscreen() || fullscreenOnHost_; }

bool PlayerWindow::asksForFullscreen() const { return host_->visibility() == QWindow::FullScreen; }

bool PlayerWindow::hasDrawingSurface() const {
  return engineWindow_ && engineWindow_->hasDrawingSurface();
}

bool PlayerWindow::isKey() const { return host_->isActive(); }

std::optional<ScreenHeadroom> PlayerWindow::screenHeadroom() const {
  if (!host_->screen()) return {};
  return headroom_.of(host_->screen());
}

void PlayerWindow::setOpacity(double opacity) { host_->fade().setOpacity(opacity); }

void PlayerWindow::fadeTo(double opacity, std::chrono::milliseconds duration,
                          QEasingCurve::Type curve, std::function<void()> completed) {
  host_->fade().start(opacity, duration, curve, std::move(completed));
}

void PlayerWindow::makeKeyAndOrderFront() { host_->present(); }

void PlayerWindow::orderOut() {
  host_->hide();
  if (!isVisible()) Q_EMIT finished();
}

void PlayerWindow::dress(QSize minimumSize) {
  host_->setMinimumSize(minimumSize);
  adoptEngineSize();
  if (engineWindow_ && engineWindow_->isFullscreen()) host_->setWindowState(Qt::WindowFullScreen);
  host_->showUnseen();
}

std::unique_ptr<PlayerOverlay> PlayerWindow::installOverlay(PlaybackModel& playback,
                                                            PlayerWindowController& controller) {
  if (auto made = host_->takeOverlay()) return made;
  return overlayFactory_(host_->scene(), playback, controller);
}

void PlayerWindow::setKeyMonitor(KeyMonitor monitor) { host_->setKeyMonitor(std::move(monitor)); }

void PlayerWindow::showPictureIn(QSize pixels) {
  if (chosenSize_.isEmpty() || asksForFullscreen()) return;
  const bool isUpright = chosenSize_.width() < chosenSize_.height();
  if (isUpright != (pixels.width() < pixels.height())) pixels.transpose();  // a film on its side
  const QSize wanted = chosenSize_.scaled(pixels, Qt::KeepAspectRatioByExpanding);
  const QSize room = host_->pixelRoom();
  const bool fits = wanted.boundedTo(room) == wanted;
  host_->resizeToPixels(fits ? wanted : chosenSize_.scaled(room, Qt::KeepAspectRatio));
}

void PlayerWindow::fitScreen() { showPictureIn(host_->pixelRoom()); }

void PlayerWindow::hidePointer() { host_->hidePointer(); }

void PlayerWindow::showPointer() { host_->showPointer(); }

void PlayerWindow::adoptTitle() {
  const QString title = engineWindow_->title();
  host_->setTitle(title.isEmpty() ? QGuiApplication::applicationDisplayName() : title);
}

void PlayerWindow::adoptEngineSize() {
  const QSize pixels = engineWindow_ ? engineWindow_->size() : QSize();
  if (pixels.isEmpty() || answersRequest(pixels)) return;
  chosenSize_ = pixels;
  host_->setPictureAspect(pixels);
  if (!asksForFullscreen()) host_->resizeToPixels(pixels);
  scheduleHostState();
}

bool PlayerWindow::answersRequest(QSize pixels) {
  const auto asked = std::ranges::find_if(
      requestedSizes_, [&](QSize requested) { return nearlyEqual(requested, pixels); });
  if (asked == requestedSizes_.end()) return false;
  // The newest stays: the engine may commit the same size again.
  requestedSizes_.erase(requestedSizes_.begin(), asked);
  return true;
}

void PlayerWindow::scheduleHostState() {
  // Several things change at once when a window changes its state; the engine hears of the result.
  if (std::exchange(hostStateScheduled_, true)) return;
  QMetaObject::invokeMethod(this, &PlayerWindow::sendHostState, Qt::QueuedConnection);
}

void PlayerWindow::sendHostState() {
  hostStateScheduled_ = false;
  if (!engineWindow_ || chosenSize_.isEmpty()) return;
  const QSize pixels = host_->pixelSize();
  EngineWindow::HostState state;
  state.fullscreen = asksForFullscreen();
  state.size = state.fullscreen ? pixels : chosenSize_.scaled(pixels, Qt::KeepAspectRatio);
  if (nearlyEqual(state.size, chosenSize_) && !state.fullscreen) state.size = chosenSize_;
  state.activated = host_->isActive();
  state.shown = host_->isVisible() && host_->visibility() != QWindow::Minimized;
  if (requestedSizes_.empty() || requestedSizes_.back() != state.size) {
    requestedSizes_.push_back(state.size);
    if (requestedSizes_.size() > kMostRequests) requestedSizes_.pop_front();
  }
  engineWindow_->setHostState(state);
}

void PlayerWindow::handleVisibility() {
  scheduleHostState();
  updateFullscreen();
  Q_EMIT stateChanged();
}

void PlayerWindow::handleReport(Qt::WindowStates states) {
  fullscreenOnHost_ = states.testFlag(Qt::WindowFullScreen);
  updateFullscreen();
}

void PlayerWindow::updateFullscreen() {
  const bool fullscreen = isFullscreen();
  if (std::exchange(wasFullscreen_, fullscreen) && !fullscreen) Q_EMIT leftFullscreen();
}

void PlayerWindow::handleTakenDown() {
  engineWindow_ = nullptr;
  Q_EMIT stateChanged();
  // What is on the screen goes when the player's rules say so: it may be fading out.
  if (host_ && !host_->isVisible()) Q_EMIT finished();
}

std::unique_ptr<PlayerHostWindow> PlayerWindow::takeHost() {
  if (engineWindow_) engineWindow_->disconnect(this);
  engineWindow_ = nullptr;
  host_->disconnect(this);
  host_->hide();
  host_->fade().setOpacity(0);
  host_->video().setEngineWindow(nullptr);
  host_->setPictureAspect({});
  host_->setMini(false);
  host_->setKeyMonitor({});
  if (host_->windowStates() != Qt::WindowNoState) host_->setWindowState(Qt::WindowNoState);
  return std::move(host_);
}

}  // namespace tromelo
