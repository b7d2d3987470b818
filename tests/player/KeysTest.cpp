#include <QFile>
#include <QMetaEnum>
#include <QRegularExpression>

#include "PlayerTest.h"
#include "engine/MpvValue.h"
#include "player/PlayerActions.h"
#include "player/PlayerMenu.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

using namespace std::chrono_literals;
using Sent = PlayerTest::Sent;

/// What a keyboard sends.
struct Stroke {
  int key = 0;
  QString text = {};
  Qt::KeyboardModifiers modifiers = {};
  quint32 code = 0;

  KeyPress pressed(bool isRepeat = false) const {
    return KeyPress::from(
        QKeyEvent(QEvent::KeyPress, key, modifiers, code, 0, 0, text, isRepeat, 1));
  }
};

/// A key that types, by what it types; with Shift where that is a capital.
Stroke typed(const QString& text, Qt::KeyboardModifiers modifiers = {}) {
  modifiers.setFlag(Qt::ShiftModifier, text.front().isUpper());
  return {text.toUpper().front().unicode(), text, modifiers};
}

constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kControl = Qt::ControlModifier;
constexpr auto kAlt = Qt::AltModifier;
constexpr auto kMeta = Qt::MetaModifier;

struct KeysTest : PlayerTest {
  KeysTest() { showVideo(window_); }

  /// Always the same film at the same place.
  void begin() {
    load(4000);
    report(MpvProperty::path, "/films/film.mkv");
    report(MpvProperty::pause, false);
    report(MpvProperty::timePos, 51.5);
    report(MpvProperty::volume, 49.6);
    report(MpvProperty::mute, false);
    report(MpvProperty::speed, 1.0);
    report(MpvProperty::subDelay, 0.0);
    report(MpvProperty::audioDelay, 0.1);
    report(MpvProperty::loopFile, std::string("no"));
    report(MpvProperty::abLoopA, std::string("no"));
    report(MpvProperty::abLoopB, std::string("no"));
    reportTracks(
        {track("sub", 2, "", false), track("audio", 4, "", true), track("audio", 5, "", false)});
    reportChapters({0, 50, 100});
    report(MpvProperty::chapter, std::int64_t{1});
    chrome().setPanel({});
    chrome().setShowsInfo(false);
    window_.fullscreen = false;
    window_.overlay->onActivity();
    clock_.advance(2000ms);
    ASSERT_FALSE(player().chromeVisible());
    takeSent();
  }

  bool press(const Stroke& stroke, bool isRepeat = false) {
    return window_.keyMonitor(stroke.pressed(isRepeat));
  }

  /// What became of it: what the engine was told, what is open, what is said.
  Sent effects() {
    Sent found = takeSent();
    static constexpr const char* kPanels[]{"tracks", "chapters", "queue", "shortcuts",
                                           "goTo",   "lines",    "menu"};
    if (chrome().panel()) found.push_back(kPanels[static_cast<int>(*chrome().panel())]);
    if (chrome().showsInfo()) found.push_back("info");
    if (player().isClosing()) found.push_back("closes");
    if (chrome().toast()) found.push_back('"' + chrome().toast()->toStdString() + '"');
    return found;
  }
};

struct Row {
  Stroke stroke;
  Sent effects;
  bool goesOn = false;  // while it is held
};

TEST_F(KeysTest, EachDoesAsTheListSays) {
  const Row rows[] = {
      {{Qt::Key_Space, " "}, {"set pause yes"}},
      {{Qt::Key_Left}, {"seek -10.0 relative"}, true},
      {{Qt::Key_Right}, {"seek 10.0 relative"}, true},
      {{Qt::Key_Left, {}, kShift}, {"seek -3.0 relative"}, true},
      {{Qt::Key_Right, {}, kShift}, {"seek 3.0 relative"}, true},
      {{Qt::Key_Left, {}, kAlt}, {"seek -60.0 relative"}, true},
      {{Qt::Key_Right, {}, kShift | kAlt}, {"seek 60.0 relative"}, true},
      {{Qt::Key_Up}, {"set volume 54.6", "\"Volume 55%\""}, true},
      {{Qt::Key_Down, {}, kAlt}, {"set volume 44.6", "\"Volume 45%\""}, true},
      {{Qt::Key_Down, {}, kControl | Qt::KeypadModifier},
       {"set volume 44.6", "\"Volume 45%\""},
       true},
      {{Qt::Key_Left, {}, kControl}, {"playlist-prev"}},
      {{Qt::Key_Right, {}, kControl}, {"playlist-next"}},
      {typed("f"), {"set fullscreen yes"}},
      {typed("i"), {"info"}},
      {typed("?"), {"shortcuts"}},
      {typed("/", Qt::KeypadModifier), {"shortcuts"}},
      {typed("c"), {"chapters"}},
      {typed("q"), {"queue"}},
      {typed("u"), {"tracks"}},
      {typed("m"), {"set mute yes", "\"Muted\""}},
      {typed("n"), {"playlist-next"}},
      {typed("p"), {"playlist-prev"}},
      {typed("N"), {"set chapter 2", "\"Chapter: At 100\""}},
      {typed("P"), {"set chapter 0", "\"Chapter: At 0\""}},
      {typed("]"), {"set speed 1.25", "\"Speed 1.25×\""}, true},
      {typed("["), {"set speed 0.75", "\"Speed 0.75×\""}, true},
      {typed("="), {"set speed 1.0", "\"Speed 1×\""}},
      {typed("e"), {"frame-step"}},
      {typed("E"), {"frame-back-step"}},
      {typed("l"), {"set loop-file inf", "\"Loop on\""}},
      {typed("t"), {"\"0:51 / 1:06:40\""}, true},
      {typed("g", kControl), {"goTo"}},
      {typed("y"), {"lines"}},
      {typed("Y"), {"\"No subtitles are shown.\""}},
      {typed("5"), {"\"Stays on top\""}},
      {{Qt::Key_F10, {}, kShift}, {"menu"}},
      {typed("x"),
       {"set file-local-options/ab-loop-a 51.5", "set file-local-options/ab-loop-b no",
        "\"Loop from 0:51\""}},
      {typed("v"), {"set sid 2", "\"Subtitles: Track 2\""}},
      {typed("b"), {"set aid 5", "\"Audio: Track 5\""}},
      {typed("g"), {"set sub-delay -0.05", "\"Subtitle delay -50 ms\""}, true},
      {typed("H"), {"set sub-delay 0.05", "\"Subtitle delay +50 ms\""}, true},
      {typed("j"), {"set audio-delay 0.05", "\"Audio delay +50 ms\""}, true},
      {typed("k"), {"set audio-delay 0.15", "\"Audio delay +150 ms\""}, true},

      // What a layout types counts, wherever it has it, and Caps Lock doesn't.
      {{Qt::Key_N, "N"}, {"playlist-next"}},
      {{Qt::Key_N, "n", kShift}, {"set chapter 2", "\"Chapter: At 100\""}},
      {{0x414, "д", {}, 46}, {"set loop-file inf", "\"Loop on\""}},
      {{0x425, "х", {}, 34}, {"set speed 0.75", "\"Speed 0.75×\""}, true},
      {{Qt::Key_Slash, "/", {}, 24}, {"shortcuts"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.stroke.text.toStdString() + ' ' + std::to_string(row.stroke.key) + ' ' +
                 std::to_string(row.stroke.modifiers));
    begin();
    EXPECT_TRUE(press(row.stroke));
    EXPECT_EQ(effects(), row.effects);
    EXPECT_TRUE(player().chromeVisible());
    chrome().setPanel({});
    chrome().setToast({});
    clock_.advance(1999ms);
    EXPECT_TRUE(player().chromeVisible()) << "the timer began with the key";

    begin();
    EXPECT_TRUE(press(row.stroke, true)) << "it is the player's all the same";
    EXPECT_EQ(effects(), row.goesOn ? row.effects : Sent());
  }
  for (const bool isThere : {false, true}) {
    report(MpvProperty::pause, isThere);
    chrome().setToast({});
    EXPECT_TRUE(press(typed("e"), true));
    EXPECT_EQ(effects(), isThere ? Sent{"frame-step"} : Sent()) << "a step waits for the last one";
  }
}

TEST_F(KeysTest, ThePictureIsAsMadeForAsLongAsTheKeyIsDown) {
  begin();
  model().adjust(Adjustment::gamma, "10");
  takeSent();
  EXPECT_TRUE(press(typed("c", kAlt)));
  EXPECT_EQ(takeSent(), Sent{"set file-local-options/gamma 0.0"});
  EXPECT_TRUE(press(typed("c", kAlt), true));
  EXPECT_EQ(takeSent(), Sent());
  KeyPress up = typed("c", kAlt).pressed();
  up.isUp = true;
  EXPECT_TRUE(window_.keyMonitor(up));
  EXPECT_EQ(takeSent(), Sent{"set file-local-options/gamma 10.0"});
}

/// As the list of keys and the manual write it.
KeyPress written(QString keys) {
  Qt::KeyboardModifiers modifiers;
  keys.replace("Ctrl+", "⌘").replace("Shift+", "⇧").replace("Alt+", "⌥");
  for (const auto& [sign, modifier] : {std::pair{u'⇧', kShift}, {u'⌥', kAlt}, {u'⌘', kControl}}) {
    modifiers.setFlag(modifier, keys.contains(sign));
    keys.remove(sign);
  }
  static const QHash<QString, int> named{{"Space", Qt::Key_Space},
                                         {"Esc", Qt::Key_Escape},
                                         {"←", Qt::Key_Left},
                                         {"→", Qt::Key_Right},
                                         {"↑", Qt::Key_Up},
                                         {"↓", Qt::Key_Down},
                                         {"Left", Qt::Key_Left},
                                         {"F10", Qt::Key_F10},
                                         {"Right", Qt::Key_Right},
                                         {"Up", Qt::Key_Up},
                                         {"Down", Qt::Key_Down},
                                         {"Page Up", Qt::Key_PageUp},
                                         {"Page Down", Qt::Key_PageDown}};
  if (named.contains(keys)) return Stroke{named[keys], {}, modifiers}.pressed();
  return typed(modifiers & kShift ? keys : keys.toLower(), modifiers).pressed();
}

bool areFor(const QString& keys, const std::vector<PlayerActions::Action>& actions) {
  return std::ranges::any_of(actions, [&](const PlayerActions::Action& action) {
    return std::ranges::any_of(action.keys,
                               [&](const auto& key) { return key.matches(written(keys)); });
  });
}

TEST_F(KeysTest, WhatIsWrittenOfAKeyIsSo) {
  static const QRegularExpression between("\\s*[/,]\\s*|\\s+and\\s+");
  const QStringList elsewhere{"Scroll", "double-click", "Right-click", "Tab",
                              "⌥↑",     "⌥↓",           "⌘Scroll"};  // not the table's
  std::vector<PlayerActions::Action> all;
  for (const PlayerActions::Group& group : PlayerActions::groups)
    for (const PlayerActions::Line& line : group.lines) {
      all.insert(all.end(), line.actions.begin(), line.actions.end());
      for (const QString& keys : QString::fromUtf8(line.keys).split(between, Qt::SkipEmptyParts))
        EXPECT_NE(areFor(keys, line.actions), elsewhere.contains(keys)) << qPrintable(keys);
      for (const PlayerActions::Action& action : line.actions) {
        EXPECT_NE(action.act == nullptr, action.program == PlayerActions::Program::no);
        for (const auto& [id, tip] : action.tips) {
          const QString keys = QString::fromUtf8(tip).section(u'(', 1).chopped(1);
          for (const QString& one : keys.split(between))
            EXPECT_TRUE(areFor(one, line.actions)) << tip;
        }
      }
    }
  const auto tips = QMetaEnum::fromType<PlayerActions::Tip>();
  for (int i = 0; i < tips.keyCount(); ++i)
    EXPECT_NE(PlayerActions::tip(PlayerActions::Tip(tips.value(i))), QString()) << tips.key(i);

  const QString section = QString(readFile(MANUAL)).section(".SH KEYS", 1).section(".SH", 0, 0);
  static const QRegularExpression bold("^\\.BR? (.*)$", QRegularExpression::MultilineOption);
  static const QRegularExpression gap("\\s*\", \"\\s*|\\s+");
  int found = 0;
  for (const QRegularExpressionMatch& line : bold.globalMatch(section))
    for (const QString& keys : line.captured(1).split(gap, Qt::SkipEmptyParts)) {
      if (keys == u".") continue;
      ++found;
      EXPECT_TRUE(areFor(keys, all)) << qPrintable(keys);
    }
  EXPECT_GT(found, 0);
}

TEST_F(KeysTest, TheMenuDoesWhatItsKeysDoAndSaysHowThingsAre) {
  begin();
  QHash<QString, MenuEntry> entries;
  for (const MenuGroup& group : player().menu())
    for (const MenuEntry& entry : group.entries) {
      const auto press = PlayerMenu::press(entry.row);
      EXPECT_TRUE(!press || PlayerActions::find(*press)) << qPrintable(entry.text);
      entries[group.title + '/' + entry.text] = entry;
    }
  for (const auto& [name, keys, value, isOn, isDim] :
       Table<const char*, const char*, const char*, bool, bool>{
           {"Playback/Pause", "Space", "", false, false},
           {"Playback/Normal speed", "=", "", true, false},
           {"Playback/Next chapter", "Shift+N", "", false, false},
           {"Playback/Next in queue", "N", "", false, true},
           {"Playback/Go to time…", "Ctrl+G", "", false, false},
           {"Picture/Keep the picture", "W", "", false, true},
           {"Sound/Next audio track", "B", "Track 4", false, false},
           {"Sound/Louder", "↑", "50%", false, false},
           {"Subtitles/Next subtitle track", "V", "Off", false, false},
           {"Subtitles/Next line", ".", "", false, true},
       }) {
    const MenuEntry& entry = entries[name];
    EXPECT_EQ(entry.keys, keys) << name;
    EXPECT_EQ(entry.value, value) << name;
    EXPECT_EQ(entry.isOn, isOn) << name;
    EXPECT_NE(entry.why.isEmpty(), isDim) << name;
  }
  chrome().setPanel(PlayerPanel::menu);
  effects();
  player().chooseFromMenu(entries["Playback/Queue"].row);
  EXPECT_EQ(effects(), Sent{"queue"});
  player().chooseFromMenu(-1);
  player().chooseFromMenu(1000);
  EXPECT_EQ(effects(), Sent{"queue"});
}

TEST_F(KeysTest, OthersPassAndChangeNothing) {
  const Stroke strokes[] = {
      typed("m", kAlt),
      typed("m", kControl),
      typed("m", kMeta),
      typed("o", kControl),
      typed("W", kControl),
      typed("µ"),                // AltGr and M
      {0x425, "Х", kShift, 34},  // a brace
      {0x416, "ж", {}, 47},
      {Qt::Key_Left, {}, kMeta},
      {Qt::Key_Left, {}, kControl | kShift},
      {Qt::Key_Up, {}, kControl | kAlt},
      {Qt::Key_Escape, "\x1b", kControl},
      {Qt::Key_F, "fi"},
  };
  begin();
  chrome().setToast({});
  for (const Stroke& stroke : strokes) {
    SCOPED_TRACE(stroke.text.toStdString() + ' ' + std::to_string(stroke.key) + ' ' +
                 std::to_string(stroke.modifiers));
    EXPECT_FALSE(press(stroke));
    EXPECT_EQ(effects(), Sent());
    EXPECT_FALSE(player().chromeVisible());
  }
}

TEST_F(KeysTest, PressedAgainTheyUndoOrSayThatThereIsNoMore) {
  const Row rows[] = {
      {typed("c"), {}},
      {typed("m"), {"set mute no", "\"Volume 50%\""}},
      {typed("l"), {"set loop-file no", "\"Loop off\""}},
      {typed("N"), {"\"No next chapter\""}},
      {typed("."), {"\"No subtitles\""}},
      {typed("d"), {"\"Bookmark “Bookmark 1” is here\""}},
      {typed("g"), {"set sub-delay -0.1", "\"Subtitle delay -100 ms\""}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.stroke.text.toStdString());
    begin();
    EXPECT_TRUE(press(row.stroke));
    takeSent();
    chrome().setToast({});
    EXPECT_TRUE(press(row.stroke));
    EXPECT_EQ(effects(), row.effects);
    chrome().setToast({});
  }
  begin();
  EXPECT_TRUE(press(typed("q")));
  EXPECT_TRUE(press(typed("u")));
  EXPECT_EQ(effects(), Sent{"tracks"}) << "one panel takes another's place";
  window_.fullscreen = true;
  EXPECT_TRUE(press(typed("f")));
  EXPECT_EQ(effects(), (Sent{"set fullscreen no", "tracks"}));
  begin();
  report(MpvProperty::chapter, std::int64_t{0});
  report(MpvProperty::timePos, 1.0);
  EXPECT_TRUE(press(typed("P")));
  EXPECT_EQ(effects(), Sent{"\"No previous chapter\""});
  report(MpvProperty::chapterList, MpvNode{MpvList()});
  EXPECT_TRUE(press(typed("c")));
  EXPECT_EQ(effects(), (Sent{"chapters", "\"No previous chapter\""})) << "it has a bookmark";
  playback_.removeBookmark(playback_.bookmarks()[0].id);
  EXPECT_EQ(chrome().panel(), std::nullopt);
  EXPECT_TRUE(press(typed("c")));
  EXPECT_EQ(effects(), Sent{"\"No chapters\""});
}

TEST_F(KeysTest, EscapeGoesBackOneStepAtATime) {
  const Stroke escape{Qt::Key_Escape, "\x1b"};
  begin();
  window_.fullscreen = true;
  chrome().setPanel(PlayerPanel::queue);
  EXPECT_TRUE(press(escape));
  EXPECT_EQ(effects(), Sent());
  chrome().setShowsSpeeds(true);
  EXPECT_TRUE(press(escape));
  EXPECT_FALSE(chrome().showsSpeeds());
  EXPECT_EQ(effects(), Sent());
  EXPECT_TRUE(press(escape));
  EXPECT_EQ(effects(), Sent{"set fullscreen no"});
  window_.fullscreen = false;
  EXPECT_TRUE(press(escape));
  EXPECT_EQ(effects(), (Sent{"set pause yes", "closes"}));
}

TEST_F(KeysTest, AMiniPlayerIsLeftForWhatHasNoRoomInIt) {
  begin();
  for (const Stroke& leaves : {typed("4"), typed("q"), typed("i"), typed("f"), typed("3"),
                               Stroke{Qt::Key_Escape, "\x1b"}}) {
    SCOPED_TRACE(qPrintable(leaves.text));
    chrome().setPanel(PlayerPanel::tracks);
    EXPECT_TRUE(press(typed("4")));
    EXPECT_TRUE(chrome().isMini() && window_.isMini);
    EXPECT_FALSE(chrome().panel());
    EXPECT_TRUE(press(leaves));
    EXPECT_FALSE(chrome().isMini() || window_.isMini);
    EXPECT_FALSE(player().isClosing());
    chrome().setShowsInfo(false);
  }
  chrome().setPanel(std::nullopt);
  window_.fullscreen = true;
  EXPECT_TRUE(press(typed("4")));
  EXPECT_FALSE(chrome().isMini());
}

TEST_F(KeysTest, CloseAndOpen) {
  begin();
  EXPECT_TRUE(press(typed("O")));
  EXPECT_TRUE(files_.asked);
  for (const Stroke& stroke :
       {typed("s"), typed("w", kControl), Stroke{0x426, "\x17", kControl, 25}}) {
    FakeVideoWindow window(clock_);
    showVideo(window);
    takeSent();
    EXPECT_FALSE(window_.keyMonitor) << "there is one at a time";
    EXPECT_TRUE(window.keyMonitor(stroke.pressed()));
    EXPECT_EQ(effects(), (Sent{"set pause yes", "closes"}));
    clock_.advance(240ms);
    EXPECT_FALSE(window.keyMonitor);
    takeDown(window);
  }
}

TEST(HeldKeyTest, IsToldFromOneThatIsPressedAgain) {
  HeldKey held;
  const auto isRepeat = [&](quint32 code, quint64 time, bool isToldSo = false) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F, {}, code, 0, 0, "f", isToldSo);
    press.setTimestamp(time);
    return held.isRepeatedBy(press);
  };
  EXPECT_FALSE(isRepeat(0, 0));
  EXPECT_TRUE(isRepeat(41, 700, true));
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_F, {}, 41, 0, 0);
  release.setTimestamp(800);
  held.release(release);
  EXPECT_TRUE(isRepeat(41, 800));
  EXPECT_FALSE(isRepeat(42, 800));
  EXPECT_FALSE(isRepeat(41, 801));
}

}  // namespace tromelo::testing
