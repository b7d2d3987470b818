#include "playback/PlaybackModel.h"
#include "player/DraggedFiles.h"
#include "player/EdgeResize.h"
#include "player/PlayerActions.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

bool PlayerWindowController::handleKey(const KeyPress& press) {
  const PlayerActions::Action* action = PlayerActions::find(press);
  if (!action) return false;
  if (press.isUp) {
    if (action->release) action->release(*this, playback_);
    return true;
  }
  const QString toast = PlayerActions::perform(*action, press.isRepeat, *this, playback_);
  if (!toast.isEmpty()) showToast(toast);
  handleActivity();
  return true;
}

QList<MenuGroup> PlayerWindowController::menu() const {
  playback_.lookAround();
  return PlayerMenu::groups(playback_, this);
}

void PlayerWindowController::chooseFromMenu(int row) {
  chrome_.close(PlayerPanel::menu);  // what is chosen may open another
  if (const auto press = PlayerMenu::press(row)) {
    handleKey(*press);
  } else if (const QString toast = PlayerMenu::choose(playback_, row); !toast.isEmpty()) {
    showToast(toast);
  }
}

void PlayerWindowController::stepFromMenu(int row, int steps) {
  PlayerMenu::step(playback_, row, steps);
}

MenuEntry PlayerWindowController::menuEntry(int row) const {
  return PlayerMenu::entry(playback_, this, row);
}

bool PlayerWindowController::handleLibraryKey(int key, int modifiers, bool isRepeat) {
  const Qt::KeyboardModifiers held(modifiers);
  const PlayerActions::Action* action =
      PlayerActions::find({Qt::Key(key), held & KeyPress::kModifiers, {}, isRepeat});
  if (!action || !action->withoutWindow || !playsWithoutWindow()) return false;
  PlayerActions::perform(*action, isRepeat, *this, playback_);
  return true;
}

void PlayerWindowController::escape() {
  if (playsWithoutWindow()) return stopPlayback();
  if (chrome_.showsSpeeds()) return chrome_.setShowsSpeeds(false);
  if (chrome_.panel()) return chrome_.setPanel(std::nullopt);
  if (chrome_.isMini()) return leaveMini();
  if (!window_ || !window_->isFullscreen()) return close();
  playback_.setFullscreen(false);
}

void PlayerWindowController::toggleFullscreen() {
  if (!window_) return;
  leaveMini();
  playback_.setFullscreen(!window_->isFullscreen());
}

QString PlayerWindowController::resizePicture(double scale) {
  if (!window_) return {};
  if (window_->isFullscreen()) return tr("Not in full screen");
  leaveMini();
  playback_.withPictureSize([this, scale](QSize picture) {
    if (window_) window_->showPictureIn(picture * scale);
  });
  return {};
}

QString PlayerWindowController::fitScreen() {
  if (!window_) return {};
  if (window_->isFullscreen()) return tr("Not in full screen");
  leaveMini();
  window_->fitScreen();
  return {};
}

void PlayerWindowController::toggleMini() {
  if (!window_) return;
  if (chrome_.isMini()) return leaveMini();
  if (window_->isFullscreen()) return showToast(tr("Not in full screen"));
  chrome_.setMini(true);
  window_->setMini(true);
}

void PlayerWindowController::leaveMini() {
  if (!chrome_.isMini()) return;
  chrome_.setMini(false);
  if (window_) window_->setMini(false);
}

QString PlayerWindowController::toggleStaysOnTop() {
  if (!canPlaceWindows()) return tr("This desktop lets no program keep its window on top");
  staysOnTop_ = !staysOnTop_;
  if (window_) window_->setStaysOnTop(staysOnTop_);
  return staysOnTop_ ? tr("Stays on top") : tr("No longer stays on top");
}

void PlayerWindowController::adjustVolume(double percent) {
  playback_.setVolume(playback_.volume() + percent);
  showToast(PlayerActions::volumeText(playback_));
}

void PlayerWindowController::resizeSubtitles(double steps) {
  playback_.stepAdjustment(Adjustment::subtitleScale, static_cast<int>(steps));
  showToast(playback_.adjustmentToast(Adjustment::subtitleScale));
}

void PlayerWindowController::handleDroppedFiles(const QList<QUrl>& addresses) {
  playback_.withLocalFiles(addresses, [this](const QList<QUrl>& files) { takeDropped(files); });
}

void PlayerWindowController::takeDropped(const QList<QUrl>& dropped) {
  const DroppedFiles files = DroppedFiles::sort(dropped);
  for (const QUrl& subtitle : files.subtitles) playback_.addSubtitle(subtitle);
  playback_.enqueue(files.videos);
  if (const QString toast = files.toast(); !toast.isEmpty()) showToast(toast);
}

}  // namespace tromelo
