#include "player/PlayerWindowController.h"

#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

using namespace std::chrono_literals;

constexpr auto kRevealFallback = 1500ms;
constexpr auto kFullscreenExitFallback = 2000ms;
constexpr auto kFadeIn = 320ms;
constexpr auto kFadeOut = 240ms;
constexpr QSize kMinimumSize(520, 300);  // points

}  // namespace

PlayerWindowController::PlayerWindowController(PlaybackModel& playback, WindowSystem& windows,
                                               Clock& clock)
    : playback_(playback), windows_(windows), clock_(clock) {
  connect(&windows_, &WindowSystem::windowsChanged, this, &PlayerWindowController::scanWindows);
  connect(&playback_, &PlaybackModel::isLoadedChanged, this, [this] {
    isStopping_ = false;
    resumedAt_.reset();
    chrome_.setOffer(PlayerChrome::Offer::none);
    if (!playback_.isLoaded()) endReplacing();
    Q_EMIT playsWithoutWindowChanged();
  });
  connect(this, &PlayerWindowController::windowStateChanged, this,
          &PlayerWindowController::playsWithoutWindowChanged);
  connect(&fileManager_, &FileManager::failed, &playback_, &PlaybackModel::tell);
  followState();
}

PlayerWindowController::~PlayerWindowController() = default;

void PlayerWindowController::setAwaitingVideo(bool awaiting) {
  if (awaitingVideo_ == awaiting) return;
  awaitingVideo_ = awaiting;
  // What closes would stop the file that is opened next.
  if (awaiting && isClosing_ && window_) return stopAndTearDown();
  Q_EMIT windowStateChanged();
}

void PlayerWindowController::setVideoReady(bool ready) { videoReady_ = ready; }

bool PlayerWindowController::playsWithoutWindow() const {
  return playback_.isLoaded() && !window_ && !awaitingVideo_ && !isStopping_ && !isReplacing_;
}

void PlayerWindowController::stopPlayback() { playback_.stop(); }

void PlayerWindowController::scanWindows() {
  if (isTerminating_) return;
  if (window_ && !isClosing_ && !window_->isVisible() && !window_->isMinimized()) {
    tearDownWindowState();
    if (!awaitingVideo_ && !isReplacing_) showLibrary();
  }
  for (VideoWindow* window : windows_.videoWindows()) {
    if (!window->isVisible() || !window->hasDrawingSurface()) continue;
    if (!adoptedWindows_.contains(window)) adopt(*window);
  }
}

void PlayerWindowController::adopt(VideoWindow& window) {
  adoptedWindows_.insert(&window);
  if (window_) tearDownWindowState();
  window.setOpacity(0);
  window.dress(kMinimumSize);
  window.setStaysOnTop(staysOnTop_);
  window_ = &window;
  isRevealed_ = false;
  isClosing_ = false;
  isFadingOut_ = false;
  isReplacing_ = false;
  installOverlay(window);
  window.setKeyMonitor([this](const KeyPress& press) { return handleKey(press); });
  observe(window);
  updateDisplay();
  Q_EMIT windowStateChanged();
  if (videoReady_)
    reveal();
  else
    revealFallback_ = clock_.after(kRevealFallback, [this] { reveal(); });
}

void PlayerWindowController::installOverlay(VideoWindow& window) {
  overlay_ = window.installOverlay(playback_, *this);
  overlay_->onActivity = [this] { handleActivity(); };
  overlay_->onClick = [this] { toggleChrome(); };
  overlay_->onDoubleClick = [this] { chrome_.isMini() ? leaveMini() : toggleFullscreen(); };
  overlay_->onLayout = [this] { updateSubtitleLift(); };
  overlay_->onScroll = [this](double steps) { adjustVolume(steps); };
  overlay_->onControlScroll = [this](double steps) { resizeSubtitles(steps); };
  overlay_->onDropFiles = [this](const QList<QUrl>& urls) { handleDroppedFiles(urls); };
  chromeVisible_ = true;
  overlay_->setChromeVisible(true, false);
  updateSubtitleLift();
  updatePositionShown();
}

void PlayerWindowController::observe(VideoWindow& window) {
  forgetWhenDestroyed(window);
  connect(&window, &VideoWindow::closeRequested, this, &PlayerWindowController::close);
  connect(&window, &VideoWindow::screenChanged, this, &PlayerWindowController::updateDisplay);
  connect(&window, &VideoWindow::leftFullscreen, this, [this] {
    if (fullscreenExitFallback_) finishClose();
    Q_EMIT windowStateChanged();
  });
}

void PlayerWindowController::forgetWhenDestroyed(VideoWindow& window) {
  connect(&window, &QObject::destroyed, this,
          [this](QObject* gone) { adoptedWindows_.remove(gone); });
}

void PlayerWindowController::replaceWindow() {
  isReplacing_ = window_ && !isClosing_;
  setVideoReady(false);
}

void PlayerWindowController::restartVideo() {
  replaceWindow();
  playback_.restartVideoOutput();
}

void PlayerWindowController::reveal() {
  if (!window_) readoptOrShowLibrary();
  if (!window_ || isClosing_) return;
  if (isRevealed_) {
    if (std::exchange(awaitingVideo_, false)) window_->makeKeyAndOrderFront();
    return;
  }
  isRevealed_ = true;
  awaitingVideo_ = false;
  revealFallback_.reset();
  window_->makeKeyAndOrderFront();
  updateDisplay();
  const QPointer<VideoWindow> revealed = window_;
  window_->fadeTo(1, kFadeIn, QEasingCurve::OutQuad, [this, revealed] {
    if (!isRevealed_ || isClosing_ || !revealed || window_ != revealed) return;
    if (libraryWindow_) libraryWindow_->orderOut();
    scheduleChromeHide();
  });
  if (libraryWindow_ && libraryWindow_->isVisible())
    libraryWindow_->fadeTo(0, kFadeIn, QEasingCurve::OutQuad, {});
  Q_EMIT windowStateChanged();
  tellOfResuming();
}

/// The library, which stays away while a window goes and another comes, is needed where none does.
void PlayerWindowController::endReplacing() {
  if (std::exchange(isReplacing_, false) && !window_ && !awaitingVideo_) showLibrary();
}

void PlayerWindowController::readoptOrShowLibrary() {
  if (videoReady_) endReplacing();
  if (!awaitingVideo_ || isTerminating_) return;
  // A file that is opened right after a close can come up in the window that was just given up,
  // since the engine had no time to take it down.
  for (VideoWindow* window : windows_.videoWindows())
    if (window->isVisible() && window->hasDrawingSurface()) return adopt(*window);
  if (!videoReady_) return;
  setAwaitingVideo(false);
  showLibrary();
}

void PlayerWindowController::bringToFront() {
  if (window_ && isRevealed_ && !isClosing_) window_->makeKeyAndOrderFront();
}

void PlayerWindowController::showLibrary() {
  if (!libraryWindow_) return;
  if (!libraryWindow_->isVisible()) {
    libraryWindow_->setOpacity(0);
    libraryWindow_->makeKeyAndOrderFront();
  }
  libraryWindow_->fadeTo(1, kFadeIn, QEasingCurve::OutQuad, {});
}

void PlayerWindowController::close() {
  if (!window_ || isClosing_) return;
  isClosing_ = true;
  awaitingVideo_ = false;
  playback_.pauseWhatComes();
  hideTimer_.reset();
  if (!window_->isFullscreen()) return finishClose();
  playback_.setFullscreen(false);
  fullscreenExitFallback_ = clock_.after(kFullscreenExitFallback, [this] { finishClose(); });
}

void PlayerWindowController::finishClose() {
  if (!isClosing_ || isFadingOut_ || !window_) return;
  isFadingOut_ = true;
  fullscreenExitFallback_.reset();
  showLibrary();
  const QPointer<VideoWindow> fading = window_;
  window_->fadeTo(0, kFadeOut, QEasingCurve::InQuad, [this, fading] {
    if (fading && window_ == fading) stopAndTearDown();
  });
}

void PlayerWindowController::stopAndTearDown() {
  playback_.stop();
  isStopping_ = true;
  tearDownWindowState();
}

void PlayerWindowController::tearDownWindowState() {
  hideTimer_.reset();
  revealFallback_.reset();
  fullscreenExitFallback_.reset();
  leaveMini();
  overlay_.reset();
  const QPointer<VideoWindow> window = window_;
  window_ = nullptr;
  isRevealed_ = false;
  isClosing_ = false;
  isFadingOut_ = false;
  chrome_.setShowsInfo(false);
  chrome_.setPanel(std::nullopt);
  chrome_.setShowsSpeeds(false);
  chrome_.setOffer(PlayerChrome::Offer::none);
  chrome_.setToast(std::nullopt);
  updateSubtitleLift();
  if (window) giveUp(*window);
  Q_EMIT windowStateChanged();
}

void PlayerWindowController::giveUp(VideoWindow& window) {
  window.disconnect(this);
  forgetWhenDestroyed(window);
  window.setKeyMonitor({});
  window.showPointer();
  window.orderOut();
}

void PlayerWindowController::prepareForTermination() {
  isTerminating_ = true;
  tearDownWindowState();
}

}  // namespace tromelo
