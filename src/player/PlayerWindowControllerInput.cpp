#include "playback/PlaybackModel.h"
#include "player/DraggedFiles.h"
#include "player/PlayerActions.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

bool PlayerWindowController::handleKey(const KeyPress& press) {
  const PlayerActions::Action* action = PlayerActions::find(press);
  if (!action) return false;
  const QString toast = PlayerActions::perform(*action, press.isRepeat, *this, playback_);
  if (!toast.isEmpty()) showToast(toast);
  handleActivity();
  return true;
}

QList<MenuGroup> PlayerWindowController::menu() const { return PlayerMenu::groups(playback_); }

void PlayerWindowController::chooseFromMenu(int row) {
  chrome_.close(PlayerPanel::menu);  // what is chosen may open another
  handleKey(PlayerMenu::press(row));
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
  if (!window_ || !window_->isFullscreen()) return close();
  playback_.setFullscreen(false);
}

void PlayerWindowController::toggleFullscreen() {
  if (!window_) return;
  playback_.setFullscreen(!window_->isFullscreen());
}

void PlayerWindowController::adjustVolume(double percent) {
  playback_.setVolume(playback_.volume() + percent);
  showToast(PlayerActions::volumeText(playback_));
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
