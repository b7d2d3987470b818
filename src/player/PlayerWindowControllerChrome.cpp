#include <algorithm>
#include <cmath>

#include "platform/FilePath.h"
#include "playback/PlaybackModel.h"
#include "player/Format.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

using namespace std::chrono_literals;

constexpr auto kToast = 1400ms;
constexpr auto kOffer = 8s;
constexpr auto kInfoRefresh = 1000ms;
constexpr double kLongestDelay = 24 * 60 * 60;  // seconds; a timer can't count to everything

constexpr double kLiftGap = 10;      // points between the controls and subtitles
constexpr double kHighestLift = 45;  // percent
constexpr double kLiftStep = 0.25;   // lifts nearer to each other look the same; percent

/// By how much subtitles have to rise to clear controls whose top edge is `controlsTop` points
/// above the bottom of a picture of `height` points (above 0): percent of the height.
double subtitleLift(double controlsTop, double height) {
  return std::min((controlsTop + kLiftGap) / height * 100, kHighestLift);
}

}  // namespace

void PlayerWindowController::followState() {
  connect(&playback_, &PlaybackModel::isPausedChanged, this, [this] {
    if (window_) playback_.isPaused() ? showChrome() : scheduleChromeHide();
  });
  connect(&chrome_, &PlayerChrome::panelChanged, this, [this] {
    // There is room for a menu only.
    if (chrome_.panel() && chrome_.panel() != PlayerPanel::menu) leaveMini();
    if (window_) chrome_.panel() ? showChrome() : scheduleChromeHide();
    updatePositionShown();
  });
  connect(&chrome_, &PlayerChrome::isMiniChanged, this, [this] { updateSubtitleLift(); });
  connect(&playback_, &PlaybackModel::hasPlacesChanged, this, [this] {
    // Its button is gone, and there is nothing to be seen in it.
    if (!playback_.hasPlaces()) chrome_.close(PlayerPanel::chapters);
  });
  connect(&playback_, &PlaybackModel::resumed, this, [this](double position) {
    resumedAt_ = position;
    tellOfResuming();
  });
  connect(&chrome_, &PlayerChrome::showsInfoChanged, this, [this] {
    if (chrome_.showsInfo()) leaveMini();
    setInfoRefresh(chrome_.showsInfo());
    updatePositionShown();
  });
  connect(
      &playback_.settings(), &PlayerSettings::autoHideDelayChanged, this,
      [this] {
        if (window_) scheduleChromeHide();
      },
      Qt::QueuedConnection);
}

void PlayerWindowController::showChrome() {
  if (chromeVisible_) return;
  chromeVisible_ = true;
  if (overlay_) overlay_->setChromeVisible(true, true);
  updateSubtitleLift();
  updatePositionShown();
}

void PlayerWindowController::hideChrome() {
  if (!chromeVisible_ || !window_ || !(window_->isKey() || window_->isFullscreen())) return;
  chromeVisible_ = false;
  if (overlay_) overlay_->setChromeVisible(false, true);
  updateSubtitleLift();
  updatePositionShown();
  window_->hidePointer();
}

void PlayerWindowController::updatePositionShown() {
  playback_.setPositionShown(chromeVisible_ || chrome_.panel() || chrome_.showsInfo());
}

void PlayerWindowController::toggleChrome() {
  if (chromeVisible_) return hideChrome();
  showChrome();
  scheduleChromeHide();
}

void PlayerWindowController::scheduleChromeHide() {
  hideTimer_.reset();
  const double delay = playback_.settings().autoHideDelay();
  if (!(delay > 0)) return;
  const std::chrono::duration<double> seconds(std::min(delay, kLongestDelay));
  hideTimer_ = clock_.after(std::chrono::ceil<std::chrono::milliseconds>(seconds),
                            [this] { mayHideChrome() ? hideChrome() : scheduleChromeHide(); });
}

bool PlayerWindowController::mayHideChrome() const {
  return !playback_.isPaused() && !playback_.isScrubbing() && !chrome_.panel() &&
         !chrome_.showsSpeeds() && !(overlay_ && overlay_->isMouseInsideChrome());
}

void PlayerWindowController::handleActivity() {
  showChrome();
  scheduleChromeHide();
}

void PlayerWindowController::setInfoRefresh(bool shown) {
  infoTimer_.reset();
  if (!shown) return;
  updateDisplay();
  infoTimer_ = clock_.every(kInfoRefresh, [this] { updateDisplay(); });
}

void PlayerWindowController::updateDisplay() {
  playback_.updateDisplay(window_ ? window_->screenHeadroom() : std::nullopt);
}

void PlayerWindowController::showToast(const QString& text) {
  chrome_.setToast(text);
  toastTimer_ = clock_.after(kToast, [this] { chrome_.setToast(std::nullopt); });
}

void PlayerWindowController::tellOfResuming() {
  if (!resumedAt_ || !isRevealed_) return;
  showToast(tr("Resumed at %1").arg(Format::clock(*resumedAt_)));
  resumedAt_.reset();
  offer(PlayerChrome::Offer::startOver);
}

void PlayerWindowController::showKeptPicture(const QUrl& picture) {
  keptPicture_ = picture;
  showToast(tr("Picture kept: %1").arg(lastPathComponent(picture)));
  offer(PlayerChrome::Offer::showPicture);
}

void PlayerWindowController::offer(PlayerChrome::Offer offer) {
  chrome_.setOffer(offer);
  offerTimer_ = clock_.after(kOffer, [this] { chrome_.setOffer(PlayerChrome::Offer::none); });
}

void PlayerWindowController::showPicture() {
  fileManager_.show(keptPicture_);
  chrome_.setOffer(PlayerChrome::Offer::none);
}

void PlayerWindowController::startOver() {
  playback_.startOver();
  chrome_.setOffer(PlayerChrome::Offer::none);
  showToast(tr("From the beginning"));
}

void PlayerWindowController::updateSubtitleLift() {
  const bool covered = overlay_ && chromeVisible_ && !chrome_.isMini() && overlay_->height() > 0;
  const double lift = covered ? subtitleLift(overlay_->controlsTop(), overlay_->height()) : 0;
  if (std::abs(lift - playback_.subtitleLift()) <= kLiftStep) return;
  playback_.setSubtitleLift(lift);
}

}  // namespace tromelo
