#include "player/PlayerStage.h"

#include <QGuiApplication>
#include <algorithm>

#include "platform/Timeline.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

constexpr double kUnknownRefresh = 60;  // Hz; some hosts report none

}  // namespace

PlayerStage::PlayerStage(PrivateDisplay& display, QQmlEngine& engine,
                         const ReducedMotion& reducedMotion, PlayerOverlayFactory overlayFactory)
    : display_(display),
      engine_(engine),
      reducedMotion_(reducedMotion),
      overlayFactory_(std::move(overlayFactory)) {
  connect(&display_, &PrivateDisplay::windowAdded, this,
          [this](EngineWindow* window) { add(*window); });
  connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, [this](QScreen* screen) {
    if (!screen_) followScreen(screen);
  });
  followScreen(QGuiApplication::primaryScreen());
}

PlayerStage::~PlayerStage() = default;

QList<VideoWindow*> PlayerStage::videoWindows() const {
  QList<VideoWindow*> windows;
  for (const auto& window : windows_) windows.append(window.get());
  return windows;
}

QSize PlayerStage::hostPixelSize() const {
  return windows_.empty() ? QSize() : windows_.back()->host().pixelSize();
}

void PlayerStage::prepareWindow(PlaybackModel& playback, PlayerWindowController& controller) {
  if (!windows_.empty()) return;  // the engine was faster
  prepareHost();
  spareHost_->keepOverlay(overlayFactory_(spareHost_->scene(), playback, controller));
  // It shows the model, which goes before us.
  connect(&playback, &PlaybackModel::isShuttingDownChanged, this, [this] {
    if (spareHost_) spareHost_->takeOverlay();
  });
}

void PlayerStage::prepareHost() {
  if (!spareHost_) spareHost_ = std::make_unique<PlayerHostWindow>(engine_, reducedMotion_);
}

void PlayerStage::add(EngineWindow& engineWindow) {
  Timeline::note("engine's window there");
  prepareHost();
  auto window = std::make_unique<PlayerWindow>(engineWindow, std::move(spareHost_), overlayFactory_,
                                               headroom_);
  PlayerWindow* const added = window.get();
  windows_.push_back(std::move(window));
  connect(added, &PlayerWindow::stateChanged, this, &WindowSystem::windowsChanged);
  connect(added, &PlayerWindow::finished, this, [this, added] { retire(added); });
  connect(&added->host(), &QWindow::widthChanged, this, &PlayerStage::hostResized);
  connect(&added->host(), &QWindow::heightChanged, this, &PlayerStage::hostResized);
  connect(&added->host(), &QWindow::screenChanged, this, &PlayerStage::followScreen);
  connect(&added->host().video(), &EngineWindowItem::pictureRefused, this, [this] {
    if (display_.withdrawDmabufs()) Q_EMIT dmabufsWithdrawn();
  });
  connect(&added->host().video(), &EngineWindowItem::refusedByHost, this,
          &PlayerStage::refusedByHost);
  followScreen(added->host().screen());
  Q_EMIT windowsChanged();
}

void PlayerStage::retire(PlayerWindow* window) {
  const auto found =
      std::ranges::find_if(windows_, [window](const auto& held) { return held.get() == window; });
  if (found == windows_.end()) return;
  window->host().disconnect(this);
  window->host().video().disconnect(this);
  auto host = window->takeHost();
  if (!spareHost_) spareHost_ = std::move(host);
  if (host) host.release()->deleteLater();
  // It may be one of its own signals that brings us here.
  found->release()->deleteLater();
  windows_.erase(found);
  Q_EMIT windowsChanged();
}

PrivateDisplay::Output PlayerStage::outputOf(const QScreen& screen) {
  const double refresh = screen.refreshRate() > 0 ? screen.refreshRate() : kUnknownRefresh;
  return {(QSizeF(screen.size()) * screen.devicePixelRatio()).toSize(), qRound(refresh * 1000)};
}

void PlayerStage::followScreen(QScreen* screen) {
  if (!screen || screen == screen_) return;
  if (screen_) screen_->disconnect(this);
  screen_ = screen;
  const auto tell = [this] {
    if (screen_) display_.setOutput(outputOf(*screen_));
  };
  connect(screen, &QScreen::geometryChanged, this, tell);
  connect(screen, &QScreen::physicalDotsPerInchChanged, this, tell);
  connect(screen, &QScreen::refreshRateChanged, this, tell);
  tell();
}

}  // namespace tromelo
