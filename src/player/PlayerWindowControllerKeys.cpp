#include <cmath>

#include "playback/PlaybackModel.h"
#include "player/CharacterKeys.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

constexpr double kVolumeStep = 5;  // percent

/// Seconds.
double seekStep(Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::AltModifier)) return 60;
  return modifiers.testFlag(Qt::ShiftModifier) ? 3 : 10;
}

}  // namespace

void PlayerWindowController::installKeyMonitor() {
  window_->setKeyMonitor([this](const KeyPress& press) { return handleKey(press); });
}

bool PlayerWindowController::handleKey(const KeyPress& press) {
  const bool isCommand = press.modifiers == Qt::ControlModifier;
  const bool isPlain = !(press.modifiers & (Qt::ControlModifier | Qt::MetaModifier));
  if (!(isCommand && handleCommandKey(press)) && !(isPlain && handlePlainKey(press))) return false;
  handleActivity();
  return true;
}

// A key that is held does in small steps what it does, and only once what opens, closes or switches
// something.

bool PlayerWindowController::handleCommandKey(const KeyPress& press) {
  switch (press.key) {
    case Qt::Key_Left:
      if (!press.isRepeat) playback_.playPrevious();
      return true;
    case Qt::Key_Right:
      if (!press.isRepeat) playback_.playNext();
      return true;
    case Qt::Key_Down:
      adjustVolume(-kVolumeStep);
      return true;
    case Qt::Key_Up:
      adjustVolume(kVolumeStep);
      return true;
    default:
      if (press.characters != u"w") return false;
      if (!press.isRepeat) close();
      return true;
  }
}

bool PlayerWindowController::handlePlainKey(const KeyPress& press) {
  switch (press.key) {
    case Qt::Key_Space:
      if (!press.isRepeat) playback_.togglePlayback();
      return true;
    case Qt::Key_Escape:
      if (!press.isRepeat) escape();
      return true;
    case Qt::Key_Left:
      playback_.seekBy(-seekStep(press.modifiers));
      return true;
    case Qt::Key_Right:
      playback_.seekBy(seekStep(press.modifiers));
      return true;
    case Qt::Key_Down:
      adjustVolume(-kVolumeStep);
      return true;
    case Qt::Key_Up:
      adjustVolume(kVolumeStep);
      return true;
    default:
      return !press.modifiers.testFlag(Qt::AltModifier) &&
             handleCharacter(press.characters, press.isRepeat);
  }
}

bool PlayerWindowController::handleCharacter(const QString& characters, bool isRepeat) {
  return actOnCharacters(characters, isRepeat, *this, playback_);
}

void PlayerWindowController::escape() {
  if (chrome_.showsSpeeds()) return chrome_.setShowsSpeeds(false);
  if (chrome_.panel()) return chrome_.setPanel(std::nullopt);
  if (!window_ || !window_->isFullscreen()) return close();
  playback_.setFullscreen(false);
}

void PlayerWindowController::adjustVolume(double percent) {
  playback_.setVolume(playback_.volume() + percent);
  showToast(volumeText());
}

QString PlayerWindowController::volumeText() const {
  return tr("Volume %1%").arg(std::lround(playback_.volume()));
}

}  // namespace tromelo
