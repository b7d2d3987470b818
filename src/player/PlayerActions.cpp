#include "player/PlayerActions.h"

#include <functional>

#include "playback/PlaybackModel.h"
#include "player/Format.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

using Player = PlayerWindowController;
using Key = PlayerActions::Key;
using Held = PlayerActions::Held;
using Program = PlayerActions::Program;

constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kControl = Qt::ControlModifier;
constexpr auto kAlt = Qt::AltModifier;

constexpr double kShortSeek = 3;  // seconds
constexpr double kLongSeek = 60;

/// A key that types one of `characters`, capitals by themselves.
constexpr Key typed(QStringView characters) { return {.characters = characters, .anyway = kShift}; }

constexpr Key exactly(Qt::KeyboardModifiers modifiers, Qt::Key key) {
  return {.key = key, .modifiers = modifiers};
}

/// Whether Shift or Alt is down or not.
constexpr Key anyhow(Qt::Key key) { return {.key = key, .anyway = kShift | kAlt}; }

/// A method of the model or of the controller that has no arguments; what it returns is the toast.
template <auto method>
QString run(Player& player, PlaybackModel& playback) {
  const auto call = [&]() -> decltype(auto) {
    if constexpr (std::is_invocable_v<decltype(method), PlaybackModel&>)
      return std::invoke(method, playback);
    else
      return std::invoke(method, player);
  };
  if constexpr (std::is_same_v<decltype(call()), QString>) return call();
  call();
  return {};
}

template <PlayerPanel panel>
QString toggle(Player& player, PlaybackModel&) {
  player.chrome().toggle(panel);
  return {};
}

QString toggleChapters(Player& player, PlaybackModel& playback) {
  if (!playback.hasPlaces()) return PlayerActions::tr("No chapters");
  return toggle<PlayerPanel::chapters>(player, playback);
}

QString toggleInfo(Player& player, PlaybackModel&) {
  player.chrome().setShowsInfo(!player.chrome().showsInfo());
  return {};
}

template <double seconds>
QString seek(Player&, PlaybackModel& playback) {
  playback.seekBy(seconds);
  return {};
}

template <int frames>
QString stepFrame(Player&, PlaybackModel& playback) {
  playback.stepFrame(frames);
  return {};
}

QString speedText(double speed) { return PlayerActions::tr("Speed %1").arg(Format::speed(speed)); }

template <int steps>
QString stepSpeed(Player&, PlaybackModel& playback) {
  return speedText(playback.stepSpeed(steps));
}

QString resetSpeed(Player&, PlaybackModel& playback) {
  playback.setSpeed(1);
  return speedText(1);
}

QString toggleLoop(Player&, PlaybackModel& playback) {
  playback.toggleLoop();
  return playback.isLooping() ? PlayerActions::tr("Loop on") : PlayerActions::tr("Loop off");
}

QString markLoop(Player&, PlaybackModel& playback) {
  if (!playback.isLoaded()) return {};
  playback.markLoop();
  const AbLoop loop = playback.abLoop();
  if (!loop.start) return PlayerActions::tr("A–B loop off");
  const QString start = Format::clock(*loop.start);
  if (!loop.end) return PlayerActions::tr("Loop from %1").arg(start);
  return PlayerActions::tr("Loop %1 – %2").arg(start, Format::clock(*loop.end));
}

QString toggleShuffle(Player&, PlaybackModel& playback) {
  playback.toggleShuffle();
  return playback.isShuffled() ? PlayerActions::tr("Shuffle on") : PlayerActions::tr("Shuffle off");
}

QString toggleRepeatAll(Player&, PlaybackModel& playback) {
  playback.toggleRepeatAll();
  return playback.isRepeatingAll() ? PlayerActions::tr("Repeat all on")
                                   : PlayerActions::tr("Repeat all off");
}

QString tellTime(Player&, PlaybackModel& playback) {
  return Format::clock(playback.elapsed()) + QStringLiteral(" / ") +
         Format::clock(playback.duration());
}

template <int steps>
QString stepChapter(Player&, PlaybackModel& playback) {
  if (const auto chapter = playback.stepChapter(steps))
    return PlayerActions::tr("Chapter: %1").arg(chapter->title);
  return steps > 0 ? PlayerActions::tr("No next chapter")
                   : PlayerActions::tr("No previous chapter");
}

template <int steps>
QString stepVolume(Player&, PlaybackModel& playback) {
  playback.setVolume(playback.volume() + steps * PlayerActions::volumeStep());
  return PlayerActions::volumeText(playback);
}

QString toggleMute(Player&, PlaybackModel& playback) {
  playback.toggleMute();
  return playback.isMuted() ? PlayerActions::tr("Muted") : PlayerActions::volumeText(playback);
}

template <int steps>
QString stepSubtitleDelay(Player&, PlaybackModel& playback) {
  playback.setSubtitleDelay(playback.subtitleDelay() + steps * PlayerActions::delayStep());
  return PlayerActions::tr("Subtitle delay %1").arg(Format::delay(playback.subtitleDelay()));
}

template <int steps>
QString stepAudioDelay(Player&, PlaybackModel& playback) {
  playback.setAudioDelay(playback.audioDelay() + steps * PlayerActions::delayStep());
  return PlayerActions::tr("Audio delay %1").arg(Format::delay(playback.audioDelay()));
}

template <int steps>
QString stepSubtitleLine(Player&, PlaybackModel& playback) {
  return playback.stepSubtitleLine(steps) ? QString() : PlayerActions::tr("No subtitles");
}

QString syncToNextLine(Player& player, PlaybackModel& playback) {
  playback.syncToNextLine([&player, &playback](const QString& fault) {
    const QString delay = Format::delay(playback.subtitleDelay());
    player.showToast(fault.isEmpty() ? PlayerActions::tr("Subtitle delay %1").arg(delay) : fault);
  });
  return {};
}

template <double scale>
QString resizePicture(Player& player, PlaybackModel&) {
  return player.resizePicture(scale);
}

template <Screenshots::What what>
QString keepPicture(Player&, PlaybackModel& playback) {
  playback.keepPicture(what);
  return {};
}

template <Adjustment adjustment, int steps>
QString adjust(Player&, PlaybackModel& playback) {
  playback.stepAdjustment(adjustment, steps);
  return playback.adjustmentToast(adjustment);
}

template <bool isAsMade>
QString compare(Player&, PlaybackModel& playback) {
  playback.compare(isAsMade);
  return isAsMade ? PlayerActions::tr("The picture as made") : QString();
}

QString addBookmark(Player&, PlaybackModel& playback) {
  if (!playback.isLoaded()) return {};
  if (const auto there = playback.addBookmark())
    return PlayerActions::tr("Bookmark “%1” is here").arg(there->name);
  return PlayerActions::tr("Bookmark at %1").arg(Format::clock(playback.elapsed()));
}

}  // namespace

const std::vector<PlayerActions::Group> PlayerActions::groups{
    {QT_TR_NOOP("Playback"),
     {
         {QT_TR_NOOP("Space"),
          QT_TR_NOOP("Play / pause"),
          {{.keys = {anyhow(Qt::Key_Space)},
            .act = run<&PlaybackModel::togglePlayback>,
            .withoutWindow = true,
            .tips = {{Play, QT_TR_NOOP("Play (Space)")}, {Pause, QT_TR_NOOP("Pause (Space)")}}}}},
         {QT_TR_NOOP("← / →"),
          QT_TR_NOOP("Back / forward 10 s"),
          {{.keys = {exactly({}, Qt::Key_Left)},
            .act = seek<-seekStep()>,
            .held = Held::again,
            .withoutWindow = true,
            .tips = {{Back, QT_TR_NOOP("Back 10 seconds (←)")}}},
           {.keys = {exactly({}, Qt::Key_Right)},
            .act = seek<seekStep()>,
            .held = Held::again,
            .withoutWindow = true,
            .tips = {{Forward, QT_TR_NOOP("Forward 10 seconds (→)")}}}}},
         {QT_TR_NOOP("⇧← / ⇧→"),
          QT_TR_NOOP("Back / forward 3 s"),
          {{.keys = {exactly(kShift, Qt::Key_Left)},
            .act = seek<-kShortSeek>,
            .held = Held::again,
            .withoutWindow = true},
           {.keys = {exactly(kShift, Qt::Key_Right)},
            .act = seek<kShortSeek>,
            .held = Held::again,
            .withoutWindow = true}}},
         {QT_TR_NOOP("⌥← / ⌥→"),
          QT_TR_NOOP("Back / forward 1 min"),
          {{.keys = {{.key = Qt::Key_Left, .modifiers = kAlt, .anyway = kShift}},
            .act = seek<-kLongSeek>,
            .held = Held::again,
            .withoutWindow = true},
           {.keys = {{.key = Qt::Key_Right, .modifiers = kAlt, .anyway = kShift}},
            .act = seek<kLongSeek>,
            .held = Held::again,
            .withoutWindow = true}}},
         {QT_TR_NOOP("E"),
          QT_TR_NOOP("Next frame (pauses)"),
          {{.keys = {typed(u"e")}, .act = stepFrame<1>, .held = Held::whenPaused},
           {.keys = {typed(u"E")}, .act = stepFrame<-1>, .held = Held::whenPaused}}},
         {QT_TR_NOOP("[  /  ]"),
          QT_TR_NOOP("Slower / faster"),
          {{.keys = {typed(u"[")}, .act = stepSpeed<-1>, .held = Held::again},
           {.keys = {typed(u"]")},
            .act = stepSpeed<1>,
            .held = Held::again,
            .tips = {{Speed, QT_TR_NOOP("Playback speed ([ and ])")}}}}},
         {QT_TR_NOOP("="),
          QT_TR_NOOP("Normal speed"),
          {{.keys = {typed(u"=")}, .act = resetSpeed}}},
         {QT_TR_NOOP("L"),
          QT_TR_NOOP("Loop current video"),
          {{.keys = {typed(u"lL")}, .act = toggleLoop}}},
         {QT_TR_NOOP("T"),
          QT_TR_NOOP("Show time"),
          {{.keys = {typed(u"tT")}, .act = tellTime, .held = Held::again}}},
         {QT_TR_NOOP("⌘G"),
          QT_TR_NOOP("Go to time"),
          {{.keys = {{.characters = u"g", .modifiers = kControl}},
            .act = toggle<PlayerPanel::goTo>}}},
         {QT_TR_NOOP("X"),
          QT_TR_NOOP("A–B loop (from, to, off)"),
          {{.keys = {typed(u"xX")}, .act = markLoop}}},
         {QT_TR_NOOP("W / ⇧W"),
          QT_TR_NOOP("Keep the picture, with / without subtitles"),
          {{.keys = {typed(u"w")}, .act = keepPicture<Screenshots::What::withSubtitles>},
           {.keys = {typed(u"W")}, .act = keepPicture<Screenshots::What::withoutSubtitles>}}},
         {QT_TR_NOOP("⌥W"),
          QT_TR_NOOP("Keep the picture as it is on the screen"),
          {{.keys = {{.characters = u"wW", .modifiers = kAlt, .anyway = kShift}},
            .act = keepPicture<Screenshots::What::asShown>}}},
         {QT_TR_NOOP("⌘C"),
          QT_TR_NOOP("Copy the picture"),
          {{.keys = {exactly(kControl, Qt::Key_C)}, .act = run<&PlaybackModel::copyPicture>}}},
         {QT_TR_NOOP("⌥C"),
          QT_TR_NOOP("While held: the picture as made"),
          {{.keys = {{.characters = u"cC", .modifiers = kAlt, .anyway = kShift}},
            .act = compare<true>,
            .release = compare<false>}}},
         {QT_TR_NOOP("R"),
          QT_TR_NOOP("Start over"),
          {{.keys = {typed(u"rR")},
            .act = run<&Player::startOver>,
            .tips = {{StartOver, QT_TR_NOOP("Start over (R)")}}}}},
     }},
    {QT_TR_NOOP("Queue & chapters"),
     {
         {QT_TR_NOOP("N / P"),
          QT_TR_NOOP("Next / previous in queue"),
          {{.keys = {typed(u"n")},
            .act = run<&PlaybackModel::playNext>,
            .tips = {{Next, QT_TR_NOOP("Next (N)")}}},
           {.keys = {typed(u"p")},
            .act = run<&PlaybackModel::playPrevious>,
            .tips = {{Previous, QT_TR_NOOP("Previous (P)")}}}}},
         {QT_TR_NOOP("⌘→ / ⌘←"),
          QT_TR_NOOP("Next / previous in queue"),
          {{.keys = {exactly(kControl, Qt::Key_Right)}, .act = run<&PlaybackModel::playNext>},
           {.keys = {exactly(kControl, Qt::Key_Left)}, .act = run<&PlaybackModel::playPrevious>}}},
         {QT_TR_NOOP("⇧N / ⇧P"),
          QT_TR_NOOP("Next / previous chapter"),
          {{.keys = {typed(u"N")}, .act = stepChapter<1>},
           {.keys = {typed(u"P")}, .act = stepChapter<-1>}}},
         {QT_TR_NOOP("C"),
          QT_TR_NOOP("Chapter list"),
          {{.keys = {typed(u"cC")},
            .act = toggleChapters,
            .tips = {{Chapters, QT_TR_NOOP("Chapters (C)")}}}}},
         {QT_TR_NOOP("Q"),
          QT_TR_NOOP("Queue"),
          {{.keys = {typed(u"qQ")},
            .act = toggle<PlayerPanel::queue>,
            .tips = {{Queue, QT_TR_NOOP("Queue (Q)")}}}}},
         {QT_TR_NOOP("O / ⌘O"),
          QT_TR_NOOP("Open videos"),
          {{.keys = {typed(u"oO")}, .act = run<&PlaybackModel::presentOpenPanel>},
           {.keys = {exactly(kControl, Qt::Key_O)},
            .program = Program::open,
            .tips = {{OpenVideo, QT_TR_NOOP("Open a video (⌘O)")},
                     {OpenVideos, QT_TR_NOOP("Open videos (⌘O)")}}}}},
         {QT_TR_NOOP("D"),
          QT_TR_NOOP("Add a bookmark"),
          {{.keys = {typed(u"dD")}, .act = addBookmark}}},
         {QT_TR_NOOP("Z"),
          QT_TR_NOOP("Shuffle what is up next"),
          {{.keys = {typed(u"zZ")},
            .act = toggleShuffle,
            .tips = {{Shuffle, QT_TR_NOOP("Shuffle (Z)")}}}}},
         {QT_TR_NOOP("A"),
          QT_TR_NOOP("Repeat all of the queue"),
          {{.keys = {typed(u"aA")},
            .act = toggleRepeatAll,
            .tips = {{RepeatAll, QT_TR_NOOP("Repeat all (A)")}}}}},
         {QT_TR_NOOP("⌘S"),
          QT_TR_NOOP("Save the queue"),
          {{.keys = {exactly(kControl, Qt::Key_S)},
            .act = run<&PlaybackModel::presentSavePanel>,
            .tips = {{SaveQueue, QT_TR_NOOP("Save queue… (⌘S)")}}}}},
         {QT_TR_NOOP("Tab, ⌥↑ / ⌥↓"), QT_TR_NOOP("Choose a row, move it in the queue"), {}},
     }},
    {QT_TR_NOOP("Audio & subtitles"),
     {
         {QT_TR_NOOP("↑ / ↓"),
          QT_TR_NOOP("Volume up / down"),
          {{.keys = {anyhow(Qt::Key_Up), exactly(kControl, Qt::Key_Up)},
            .act = stepVolume<1>,
            .held = Held::again,
            .withoutWindow = true},
           {.keys = {anyhow(Qt::Key_Down), exactly(kControl, Qt::Key_Down)},
            .act = stepVolume<-1>,
            .held = Held::again,
            .withoutWindow = true}}},
         {QT_TR_NOOP("Scroll"), QT_TR_NOOP("Volume"), {}},
         {QT_TR_NOOP("M"),
          QT_TR_NOOP("Mute"),
          {{.keys = {typed(u"mM")},
            .act = toggleMute,
            .tips = {{Mute, QT_TR_NOOP("Mute (M)")}, {Unmute, QT_TR_NOOP("Unmute (M)")}}}}},
         {QT_TR_NOOP("B"),
          QT_TR_NOOP("Next audio track"),
          {{.keys = {typed(u"bB")}, .act = run<&PlaybackModel::cycleAudio>}}},
         {QT_TR_NOOP("V"),
          QT_TR_NOOP("Next subtitle track (incl. off)"),
          {{.keys = {typed(u"vV")}, .act = run<&PlaybackModel::cycleSubtitle>}}},
         {QT_TR_NOOP("G / H"),
          QT_TR_NOOP("Subtitle delay −/+ 50 ms"),
          {{.keys = {typed(u"gG")}, .act = stepSubtitleDelay<-1>, .held = Held::again},
           {.keys = {typed(u"hH")}, .act = stepSubtitleDelay<1>, .held = Held::again}}},
         {QT_TR_NOOP("J / K"),
          QT_TR_NOOP("Audio delay −/+ 50 ms"),
          {{.keys = {typed(u"jJ")}, .act = stepAudioDelay<-1>, .held = Held::again},
           {.keys = {typed(u"kK")}, .act = stepAudioDelay<1>, .held = Held::again}}},
         {QT_TR_NOOP("U"),
          QT_TR_NOOP("Subtitles & audio panel"),
          {{.keys = {typed(u"uU")},
            .act = toggle<PlayerPanel::tracks>,
            .tips = {{Tracks, QT_TR_NOOP("Subtitles & audio (U)")}}}}},
         {QT_TR_NOOP(",  /  ."),
          QT_TR_NOOP("Previous / next subtitle line"),
          {{.keys = {typed(u",")}, .act = stepSubtitleLine<-1>, .held = Held::again},
           {.keys = {typed(u".")}, .act = stepSubtitleLine<1>, .held = Held::again}}},
         {QT_TR_NOOP("Y"),
          QT_TR_NOOP("All lines of the subtitles"),
          {{.keys = {typed(u"y")}, .act = toggle<PlayerPanel::lines>}}},
         {QT_TR_NOOP("⇧Y"),
          QT_TR_NOOP("The next subtitle line is spoken now"),
          {{.keys = {typed(u"Y")}, .act = syncToNextLine}}},
         {QT_TR_NOOP("⌘+ / ⌘-, ⌘Scroll"),
          QT_TR_NOOP("Subtitles larger / smaller"),
          {{.keys = {{.characters = u"+=", .modifiers = kControl, .anyway = kShift}},
            .act = adjust<Adjustment::subtitleScale, 1>,
            .held = Held::again},
           {.keys = {{.characters = u"-_", .modifiers = kControl, .anyway = kShift}},
            .act = adjust<Adjustment::subtitleScale, -1>,
            .held = Held::again}}},
         {QT_TR_NOOP("Page Up / Page Down"),
          QT_TR_NOOP("Subtitles higher / lower"),
          {{.keys = {exactly({}, Qt::Key_PageUp)},
            .act = adjust<Adjustment::subtitlePosition, -1>,
            .held = Held::again},
           {.keys = {exactly({}, Qt::Key_PageDown)},
            .act = adjust<Adjustment::subtitlePosition, 1>,
            .held = Held::again}}},
     }},
    {QT_TR_NOOP("Window"),
     {
         {QT_TR_NOOP("F, double-click"),
          QT_TR_NOOP("Full screen"),
          {{.keys = {typed(u"fF")},
            .act = run<&Player::toggleFullscreen>,
            .tips = {{EnterFullScreen, QT_TR_NOOP("Full screen (F)")},
                     {ExitFullScreen, QT_TR_NOOP("Exit full screen (F)")}}}}},
         {QT_TR_NOOP("Esc"),
          QT_TR_NOOP("Close panel, leave full screen, or close player"),
          {{.keys = {anyhow(Qt::Key_Escape)},
            .act = run<&Player::escape>,
            .withoutWindow = true,
            .tips = {{ClosePlayer, QT_TR_NOOP("Close player (Esc)")},
                     {ClosePanel, QT_TR_NOOP("Close (Esc)")}}}}},
         {QT_TR_NOOP("S, ⌘W"),
          QT_TR_NOOP("Stop and close player"),
          {{.keys = {typed(u"sS"), {.characters = u"w", .modifiers = kControl}},
            .act = run<&Player::close>}}},
         {QT_TR_NOOP("I"),
          QT_TR_NOOP("Playback info"),
          {{.keys = {typed(u"iI")},
            .act = toggleInfo,
            .tips = {{Info, QT_TR_NOOP("Playback info (I)")}}}}},
         {QT_TR_NOOP("?"),
          QT_TR_NOOP("This list"),
          {{.keys = {typed(u"?/")}, .act = toggle<PlayerPanel::shortcuts>}}},
         {QT_TR_NOOP("0 / 1 / 2"),
          QT_TR_NOOP("Half, original, double size"),
          {{.keys = {typed(u"0")}, .act = resizePicture<0.5>},
           {.keys = {typed(u"1")}, .act = resizePicture<1.0>},
           {.keys = {typed(u"2")}, .act = resizePicture<2.0>}}},
         {QT_TR_NOOP("3"),
          QT_TR_NOOP("As large as the screen allows"),
          {{.keys = {typed(u"3")}, .act = run<&Player::fitScreen>}}},
         {QT_TR_NOOP("4"),
          QT_TR_NOOP("Mini player, and back"),
          {{.keys = {typed(u"4")}, .act = run<&Player::toggleMini>}}},
         {QT_TR_NOOP("5"),
          QT_TR_NOOP("Stay on top"),
          {{.keys = {typed(u"5")}, .act = run<&Player::toggleStaysOnTop>}}},
         {QT_TR_NOOP("Right-click, ⇧F10"),
          QT_TR_NOOP("Menu of all that can be done"),
          {{.keys = {exactly({}, Qt::Key_Menu), exactly(kShift, Qt::Key_F10)},
            .act = toggle<PlayerPanel::menu>}}},
     }},
    // The program's, which its menus tell of.
    {nullptr,
     {{nullptr,
       nullptr,
       {{.keys = {exactly(kControl, Qt::Key_Q)}, .program = Program::quit},
        {.keys = {exactly(kControl, Qt::Key_Comma)}, .program = Program::settings},
        {.keys = {exactly(kControl | kShift, Qt::Key_L)}, .program = Program::library}}}}},
};

}  // namespace tromelo
