#include "player/CharacterKeys.h"

#include <algorithm>
#include <cmath>

#include "playback/PlaybackModel.h"
#include "player/PlayerFormats.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

using Player = PlayerWindowController;
using Action = void(Player&, PlaybackModel&);

constexpr double kDelayStep = 0.05;  // seconds

void toggleFullscreen(Player& player, PlaybackModel&) { player.toggleFullscreen(); }

void toggleInfo(Player& player, PlaybackModel&) {
  player.chrome().setShowsInfo(!player.chrome().showsInfo());
}

template <PlayerPanel panel>
void toggle(Player& player, PlaybackModel&) {
  player.chrome().toggle(panel);
}

void toggleChapters(Player& player, PlaybackModel& playback) {
  if (playback.chapters().isEmpty())
    return player.showToast(PlayerWindowController::tr("No chapters"));
  player.chrome().toggle(PlayerPanel::chapters);
}

void open(Player&, PlaybackModel& playback) { playback.presentOpenPanel(); }

void close(Player& player, PlaybackModel&) { player.close(); }

void toggleMute(Player& player, PlaybackModel& playback) {
  playback.toggleMute();
  player.showToast(playback.isMuted() ? PlayerWindowController::tr("Muted") : player.volumeText());
}

void playNext(Player&, PlaybackModel& playback) { playback.playNext(); }

void playPrevious(Player&, PlaybackModel& playback) { playback.playPrevious(); }

void tellChapter(Player& player, const std::optional<Chapter>& chapter, const QString& none) {
  player.showToast(chapter ? PlayerWindowController::tr("Chapter: %1").arg(chapter->title) : none);
}

void nextChapter(Player& player, PlaybackModel& playback) {
  tellChapter(player, playback.stepChapter(1), PlayerWindowController::tr("No next chapter"));
}

void previousChapter(Player& player, PlaybackModel& playback) {
  tellChapter(player, playback.stepChapter(-1), PlayerWindowController::tr("No previous chapter"));
}

void tellSpeed(Player& player, double speed) {
  player.showToast(PlayerWindowController::tr("Speed %1").arg(formatSpeed(speed)));
}

void faster(Player& player, PlaybackModel& playback) { tellSpeed(player, playback.stepSpeed(1)); }

void slower(Player& player, PlaybackModel& playback) { tellSpeed(player, playback.stepSpeed(-1)); }

void normalSpeed(Player& player, PlaybackModel& playback) {
  playback.setSpeed(1);
  tellSpeed(player, 1);
}

void nextFrame(Player&, PlaybackModel& playback) { playback.stepFrame(1); }

void previousFrame(Player&, PlaybackModel& playback) { playback.stepFrame(-1); }

void toggleLoop(Player& player, PlaybackModel& playback) {
  playback.toggleLoop();
  player.showToast(playback.isLooping() ? PlayerWindowController::tr("Loop on")
                                        : PlayerWindowController::tr("Loop off"));
}

void tellTime(Player& player, PlaybackModel& playback) {
  player.showToast(formatClock(playback.elapsed()) + QStringLiteral(" / ") +
                   formatClock(playback.duration()));
}

void nextSubtitle(Player& player, PlaybackModel& playback) {
  player.showToast(playback.cycleSubtitle());
}

void nextAudio(Player& player, PlaybackModel& playback) { player.showToast(playback.cycleAudio()); }

template <int steps>
void stepSubtitleDelay(Player& player, PlaybackModel& playback) {
  playback.setSubtitleDelay(playback.subtitleDelay() + steps * kDelayStep);
  player.showToast(
      PlayerWindowController::tr("Subtitle delay %1").arg(formatDelay(playback.subtitleDelay())));
}

template <int steps>
void stepAudioDelay(Player& player, PlaybackModel& playback) {
  playback.setAudioDelay(playback.audioDelay() + steps * kDelayStep);
  player.showToast(
      PlayerWindowController::tr("Audio delay %1").arg(formatDelay(playback.audioDelay())));
}

/// Whether a key that stays down does it again. What goes in small steps goes on; what opens,
/// closes or switches would flap for as long as the key is held, or run through a whole queue.
enum class Held {
  once,
  again,
  // Steps that wait for the frames that they go to: the engine plays for each, so that it isn't
  // paused until it is there.
  whenPaused,
};

struct Row {
  QStringView characters;  // any of them
  Held held;
  Action* act;
};

constexpr Row kRows[]{
    {u"fF", Held::once, toggleFullscreen},
    {u"iI", Held::once, toggleInfo},
    {u"?/", Held::once, toggle<PlayerPanel::shortcuts>},
    {u"cC", Held::once, toggleChapters},
    {u"qQ", Held::once, toggle<PlayerPanel::queue>},
    {u"oO", Held::once, open},
    {u"uU", Held::once, toggle<PlayerPanel::tracks>},
    {u"sS", Held::once, close},
    {u"mM", Held::once, toggleMute},
    {u"n", Held::once, playNext},
    {u"p", Held::once, playPrevious},
    {u"N", Held::once, nextChapter},
    {u"P", Held::once, previousChapter},
    {u"]", Held::again, faster},
    {u"[", Held::again, slower},
    {u"=", Held::once, normalSpeed},
    {u"e", Held::whenPaused, nextFrame},
    {u"E", Held::whenPaused, previousFrame},
    {u"lL", Held::once, toggleLoop},
    {u"tT", Held::again, tellTime},
    {u"vV", Held::once, nextSubtitle},
    {u"bB", Held::once, nextAudio},
    {u"gG", Held::again, stepSubtitleDelay<-1>},
    {u"hH", Held::again, stepSubtitleDelay<1>},
    {u"jJ", Held::again, stepAudioDelay<-1>},
    {u"kK", Held::again, stepAudioDelay<1>},
};

bool repeats(Held held, const PlaybackModel& playback) {
  return held == Held::again || (held == Held::whenPaused && playback.isPaused());
}

}  // namespace

bool actOnCharacters(const QString& characters, bool isRepeat, PlayerWindowController& player,
                     PlaybackModel& playback) {
  if (characters.size() != 1) return false;
  const auto row = std::ranges::find_if(
      kRows, [&](const Row& candidate) { return candidate.characters.contains(characters); });
  if (row == std::ranges::end(kRows)) return false;
  if (!isRepeat || repeats(row->held, playback)) row->act(player, playback);
  return true;
}

}  // namespace tromelo
