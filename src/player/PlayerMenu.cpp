#include "player/PlayerMenu.h"

#include <QHash>
#include <QKeySequence>
#include <algorithm>
#include <cmath>
#include <vector>

#include "adjustments/AdjustmentValue.h"
#include "playback/PlaybackModel.h"
#include "player/EdgeResize.h"
#include "player/Format.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

using Playback = const PlaybackModel&;
/// Completes an entry by how things are.
using Tell = void(MenuEntry&, Playback);
using TellOfWindow = void(MenuEntry&, const PlayerWindowController&);

struct Row {
  const char* text = nullptr;
  KeyPress press = {};
  Tell* tell = nullptr;
  TellOfWindow* tellOfWindow = nullptr;
  std::optional<Adjustment> adjustment = {};          // in place of all of these
  void (*step)(PlaybackModel&, int steps) = nullptr;  // in place of a key, as the next
  QString (*act)(PlaybackModel&) = nullptr;           // in place of a key
};
struct Group {
  const char* title;
  std::vector<Row> rows;
};

KeyPress typing(const char* character) {
  KeyPress press;
  press.characters = QString::fromLatin1(character);
  return press;
}

KeyPress pressing(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  KeyPress press;
  press.key = key;
  press.modifiers = modifiers;
  return press;
}

KeyPress typingWith(Qt::KeyboardModifier modifier, const char* character) {
  KeyPress press = typing(character);
  press.key = Qt::Key(press.characters.front().toUpper().unicode());
  press.modifiers = modifier;
  return press;
}

void setSwitch(MenuEntry& entry, bool isOn) {
  entry.isSwitch = true;
  entry.isOn = isOn;
}

void playing(MenuEntry& entry, Playback playback) {
  entry.text = playback.isPaused() ? PlayerMenu::tr("Play") : PlayerMenu::tr("Pause");
}

void speed(MenuEntry& entry, Playback playback) { entry.value = Format::speed(playback.speed()); }

void normalSpeed(MenuEntry& entry, Playback playback) {
  setSwitch(entry, Format::isSameSpeed(playback.speed(), 1));
}

void looping(MenuEntry& entry, Playback playback) { setSwitch(entry, playback.isLooping()); }

void abLoop(MenuEntry& entry, Playback playback) {
  const AbLoop loop = playback.abLoop();
  setSwitch(entry, loop.isWhole());
  if (loop.start) entry.value = Format::clock(*loop.start) + QStringLiteral(" –");
  if (loop.end) entry.value += u' ' + Format::clock(*loop.end);
}

void chapters(MenuEntry& entry, Playback playback) {
  if (playback.chapters().isEmpty()) entry.why = PlayerMenu::tr("This video has no chapters.");
}

void places(MenuEntry& entry, Playback playback) {
  if (!playback.hasPlaces())
    entry.why = PlayerMenu::tr("This video has neither chapters nor bookmarks.");
}

void next(MenuEntry& entry, Playback playback) {
  if (!playback.hasNext()) entry.why = PlayerMenu::tr("This is the last video in the queue.");
}

void previous(MenuEntry& entry, Playback playback) {
  if (!playback.hasPrevious()) entry.why = PlayerMenu::tr("This is the first video in the queue.");
}

void picture(MenuEntry& entry, Playback playback) {
  if (!playback.hasVideo()) entry.why = PlayerMenu::tr("There is no picture.");
}

void muted(MenuEntry& entry, Playback playback) { setSwitch(entry, playback.isMuted()); }

void volume(MenuEntry& entry, Playback playback) {
  entry.value = QStringLiteral("%1%").arg(std::lround(playback.volume()));
}

QString selected(const QList<MediaTrack>& tracks) {
  const auto found = std::ranges::find_if(tracks, &MediaTrack::isSelected);
  return found == tracks.end() ? PlayerMenu::tr("Off") : found->name();
}

void audioTrack(MenuEntry& entry, Playback playback) {
  const QList<MediaTrack> tracks = playback.audioTracks();
  if (tracks.size() < 2) entry.why = PlayerMenu::tr("This video has no other audio track.");
  if (!tracks.isEmpty()) entry.value = selected(tracks);
}

void soundDevice(MenuEntry& entry, Playback playback) {
  entry.isStepped = true;
  entry.value = playback.soundDevices().label();
}

void throughToReceiver(MenuEntry& entry, Playback playback) {
  setSwitch(entry, playback.settings().passesSoundThrough());
}

void audioDelay(MenuEntry& entry, Playback playback) {
  entry.value = Format::delay(playback.audioDelay());
}

void subtitleTrack(MenuEntry& entry, Playback playback) {
  const QList<MediaTrack> tracks = playback.subtitleTracks();
  if (tracks.isEmpty())
    entry.why = PlayerMenu::tr("This video has no subtitles.");
  else
    entry.value = selected(tracks);
}

void subtitleLine(MenuEntry& entry, Playback playback) {
  if (std::ranges::none_of(playback.subtitleTracks(), &MediaTrack::isSelected))
    entry.why = PlayerMenu::tr("No subtitles are shown.");
}

void subtitleDelay(MenuEntry& entry, Playback playback) {
  entry.value = Format::delay(playback.subtitleDelay());
}

void fullScreen(MenuEntry& entry, Playback playback) { setSwitch(entry, playback.isFullscreen()); }

void windowed(MenuEntry& entry, Playback playback) {
  if (playback.isFullscreen()) entry.why = PlayerMenu::tr("The window fills the screen.");
}

void mini(MenuEntry& entry, const PlayerWindowController& player) {
  setSwitch(entry, player.chrome().isMini());
}

void onTop(MenuEntry& entry, const PlayerWindowController& player) {
  setSwitch(entry, player.staysOnTop());
  if (!canPlaceWindows())
    entry.why = PlayerMenu::tr("This desktop lets no program keep its window on top.");
}

void shuffled(MenuEntry& entry, Playback playback) { setSwitch(entry, playback.isShuffled()); }

void repeatingAll(MenuEntry& entry, Playback playback) {
  setSwitch(entry, playback.isRepeatingAll());
}

bool isHdr(Playback playback) { return playback.dynamicRange().isHigh(); }

QString whyNoSubtitles(Playback playback) {
  return playback.subtitleTracks().isEmpty() ? PlayerMenu::tr("This video has no subtitles.")
                                             : QString();
}

/// Why it can't be changed now, or nothing.
QString whyNot(Adjustment adjustment, Playback playback) {
  if (!playback.canAdjust(adjustment)) return PlayerMenu::tr("The installed libmpv can't do that.");
  switch (adjustment) {
    case Adjustment::toneMapping:
      if (!isHdr(playback)) return PlayerMenu::tr("This video isn't HDR.");
      return playback.isShownAsHdr() ? PlayerMenu::tr("The screen shows HDR itself.") : QString();
    case Adjustment::subtitleBrightness:
      return isHdr(playback) ? whyNoSubtitles(playback) : PlayerMenu::tr("This video isn't HDR.");
    case Adjustment::secondSubtitle:
      return playback.subtitleTracks().size() > 1
                 ? QString()
                 : PlayerMenu::tr("This video has no second subtitles.");
    case Adjustment::subtitleScale:
    case Adjustment::subtitlePosition:
    case Adjustment::subtitlesWithoutNotes:
      return whyNoSubtitles(playback);
    case Adjustment::nightMode:
    case Adjustment::downmix:
      return playback.audioTracks().isEmpty() ? PlayerMenu::tr("This video has no sound.")
                                              : QString();
    default:
      return playback.hasVideo() ? QString() : PlayerMenu::tr("There is no picture.");
  }
}

void tellAdjustment(MenuEntry& entry, Adjustment adjustment, Playback playback) {
  const AdjustmentRow& row = adjustmentRow(adjustment);
  entry.text = adjustmentName(row);
  entry.why = whyNot(adjustment, playback);
  const bool isOnOff = row.isSwitch() || row.kind == AdjustmentRow::Kind::crop;
  if (isOnOff) return setSwitch(entry, playback.adjustments().value(adjustment) != asMade(row));
  entry.isStepped = true;
  entry.value = playback.adjustmentText(adjustment);
}

template <AdjustmentGroup group>
void asItWasMade(MenuEntry& entry, Playback playback) {
  if (!playback.adjustments().isChanged(group))
    entry.why = PlayerMenu::tr("Nothing here is changed.");
}

template <AdjustmentGroup group>
void forAllFilms(MenuEntry& entry, Playback playback) {
  if (!playback.adjustments().suitsAll(group))
    entry.why = PlayerMenu::tr("Nothing here is changed that suits all films.");
}

/// What can be changed, and what becomes of the changes.
template <AdjustmentGroup group>
std::vector<Row> adjustmentRowsAfter(std::vector<Row> rows) {
  for (const AdjustmentRow& row : adjustmentRows())
    if (row.group == group) rows.push_back({.adjustment = row.adjustment});
  rows.push_back({.text = QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "As made"),
                  .tell = asItWasMade<group>,
                  .act = [](PlaybackModel& playback) {
                    playback.makeAsMade(group);
                    return PlayerMenu::tr("As made");
                  }});
  rows.push_back({.text = QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Use for all films"),
                  .tell = forAllFilms<group>,
                  .act = [](PlaybackModel& playback) {
                    playback.useForAll(group);
                    return PlayerMenu::tr("Used for all films");
                  }});
  return rows;
}

std::vector<Row> playbackRows() {
  return {
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Play"), pressing(Qt::Key_Space), playing},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Back 10 seconds"), pressing(Qt::Key_Left)},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Forward 10 seconds"), pressing(Qt::Key_Right)},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Start over"), typing("r")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Next frame"), typing("e")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Previous frame"), typing("E")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Slower"), typing("["), speed},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Faster"), typing("]"), speed},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Normal speed"), typing("="), normalSpeed},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Loop"), typing("l"), looping},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "A–B loop"), typing("x"), abLoop},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Go to time…"),
       typingWith(Qt::ControlModifier, "g")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Add a bookmark"), typing("d")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Chapters and bookmarks"), typing("c"), places},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Next chapter"), typing("N"), chapters},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Previous chapter"), typing("P"), chapters},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Queue"), typing("q")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Next in queue"), typing("n"), next},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Previous in queue"), typing("p"), previous},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Shuffle"), typing("z"), shuffled},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Repeat all"), typing("a"), repeatingAll},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Save the queue…"),
       typingWith(Qt::ControlModifier, "s")},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Open videos…"), typing("o")},
  };
}

std::vector<Row> soundRows() {
  return {
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Mute"), typing("m"), muted},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Louder"), pressing(Qt::Key_Up), volume},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Quieter"), pressing(Qt::Key_Down), volume},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Next audio track"), typing("b"), audioTrack},
      {.text = QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Sound goes to"),
       .tell = soundDevice,
       .step = [](PlaybackModel& playback, int steps) { playback.soundDevices().step(steps); }},
      {.text = QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Leave Dolby and DTS to the receiver"),
       .tell = throughToReceiver,
       .act =
           [](PlaybackModel& playback) {
             PlayerSettings& settings = playback.settings();
             settings.setPassesSoundThrough(!settings.passesSoundThrough());
             return settings.passesSoundThrough()
                        ? PlayerMenu::tr("Dolby and DTS go to the receiver")
                        : PlayerMenu::tr("Dolby and DTS are decoded here");
           }},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Delay −50 ms"), typing("j"), audioDelay},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Delay +50 ms"), typing("k"), audioDelay},
  };
}

const std::vector<Group>& table() {
  static const std::vector<Group> groups{
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Playback"), playbackRows()},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Picture"),
       adjustmentRowsAfter<AdjustmentGroup::picture>({
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Keep the picture"), typing("w"), picture},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Keep it without subtitles"), typing("W"),
            picture},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Keep it as it is on the screen"),
            typingWith(Qt::AltModifier, "w"), picture},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Copy the picture"),
            typingWith(Qt::ControlModifier, "c"), picture},
       })},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Sound"),
       adjustmentRowsAfter<AdjustmentGroup::sound>(soundRows())},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Subtitles"),
       adjustmentRowsAfter<AdjustmentGroup::subtitles>({
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Next subtitle track"), typing("v"),
            subtitleTrack},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Previous line"), typing(","), subtitleLine},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Next line"), typing("."), subtitleLine},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "All lines…"), typing("y"), subtitleLine},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "The next line is spoken now"), typing("Y"),
            subtitleLine},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Delay −50 ms"), typing("g"), subtitleDelay},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Delay +50 ms"), typing("h"), subtitleDelay},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Subtitles and audio"), typing("u")},
       })},
      {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Window"),
       {
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Full screen"), typing("f"), fullScreen},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Half size"), typing("0"), windowed},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Original size"), typing("1"), windowed},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Double size"), typing("2"), windowed},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Fit to the screen"), typing("3"), windowed},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Mini player"), typing("4"), windowed, mini},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Stay on top"), typing("5"), nullptr, onTop},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Playback info"), typing("i")},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Keyboard shortcuts"), typing("?")},
           {QT_TRANSLATE_NOOP("tromelo::PlayerMenu", "Stop and close player"), typing("s")},
       }},
  };
  return groups;
}

/// As people read it.
QString keysText(const KeyPress& press) {
  if (press.key == Qt::Key_unknown && press.characters.isEmpty()) return {};
  static const QHash<Qt::Key, QString> arrows{{Qt::Key_Left, QStringLiteral("←")},
                                              {Qt::Key_Right, QStringLiteral("→")},
                                              {Qt::Key_Up, QStringLiteral("↑")},
                                              {Qt::Key_Down, QStringLiteral("↓")}};
  if (arrows.contains(press.key)) return arrows[press.key];
  QKeyCombination keys(press.modifiers, press.key);
  if (press.key == Qt::Key_unknown) {
    const QChar character = press.characters.front();
    const auto shift = character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    keys = QKeyCombination(shift, Qt::Key(character.toUpper().unicode()));
  }
  return QKeySequence(keys).toString(QKeySequence::NativeText);
}

/// Null for a number that is none's.
const Row* rowAt(int number) {
  for (const Group& group : table()) {
    const auto count = static_cast<int>(group.rows.size());
    if (number >= 0 && number < count) return &group.rows[number];
    number -= count;
  }
  return nullptr;
}

}  // namespace

MenuEntry PlayerMenu::entry(const PlaybackModel& playback, const PlayerWindowController* player,
                            int number) {
  MenuEntry entry;
  entry.row = number;
  const Row* row = rowAt(number);
  if (!row) return entry;
  if (row->adjustment) {
    tellAdjustment(entry, *row->adjustment, playback);
    return entry;
  }
  entry.text = tr(row->text);
  entry.keys = keysText(row->press);
  if (row->tell) row->tell(entry, playback);
  if (row->tellOfWindow && player) row->tellOfWindow(entry, *player);
  return entry;
}

QList<MenuGroup> PlayerMenu::groups(const PlaybackModel& playback,
                                    const PlayerWindowController* player) {
  QList<MenuGroup> groups;
  int number = 0;
  for (const Group& group : table()) {
    MenuGroup shown{.title = tr(group.title), .entries = {}};
    for (qsizetype i = 0; i < std::ssize(group.rows); ++i)
      shown.entries.append(entry(playback, player, number++));
    groups.append(shown);
  }
  return groups;
}

std::optional<KeyPress> PlayerMenu::press(int number) {
  const Row* row = rowAt(number);
  return row && !row->adjustment && !row->act && !row->step ? std::optional(row->press)
                                                            : std::nullopt;
}

QString PlayerMenu::choose(PlaybackModel& playback, int number) {
  const Row* row = rowAt(number);
  if (!row) return {};
  if (row->act) return row->act(playback);
  step(playback, number, 1);
  // The search for black bars takes a moment, and tells itself what it found.
  const bool tellsItself = !row->adjustment || *row->adjustment == Adjustment::crop;
  return tellsItself ? QString() : playback.adjustmentToast(*row->adjustment);
}

void PlayerMenu::step(PlaybackModel& playback, int number, int steps) {
  const Row* row = rowAt(number);
  if (row && row->step) row->step(playback, steps);
  if (row && row->adjustment) playback.stepAdjustment(*row->adjustment, steps);
}

}  // namespace tromelo
