#include <QKeyEvent>
#include <QRegularExpression>

#include "PlayerTest.h"
#include "engine/MpvValue.h"
#include "player/PlayerShortcuts.h"

namespace tromelo {
namespace {

using namespace std::chrono_literals;
using Sent = testing::PlayerTest::Sent;

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

class KeysTest : public testing::PlayerTest {
 protected:
  KeysTest() { showVideo(window_); }

  void report(MpvProperty property, MpvValue value) {
    playback_.engine().onEvent(
        MpvEvent(std::in_place_type<event::Property>, property, std::move(value)));
  }
  void reportTracks() {
    MpvList tracks;
    for (const auto& [type, id, selected] :
         {std::tuple{"sub", 2, false}, {"audio", 4, true}, {"audio", 5, false}})
      tracks.push_back(MpvNode{MpvMap{{"type", MpvNode{type}},
                                      {"id", MpvNode{std::int64_t{id}}},
                                      {"selected", MpvNode{selected}}}});
    report(MpvProperty::trackList, MpvValue(MpvNode{tracks}));
  }
  void reportChapters() {
    MpvList chapters;
    for (const double time : {0.0, 50.0, 100.0})
      chapters.push_back(MpvNode{
          MpvMap{{"title", MpvNode{"At " + std::to_string(int(time))}}, {"time", MpvNode{time}}}});
    report(MpvProperty::chapterList, MpvValue(MpvNode{chapters}));
  }
  /// Always the same film at the same place.
  void begin() {
    playback_.engine().onEvent(event::StartFile{});
    playback_.engine().onEvent(event::FileLoaded{});
    report(MpvProperty::pause, MpvValue(false));
    report(MpvProperty::duration, MpvValue(4000.0));
    report(MpvProperty::timePos, MpvValue(51.5));
    report(MpvProperty::volume, MpvValue(49.6));
    report(MpvProperty::mute, MpvValue(false));
    report(MpvProperty::speed, MpvValue(1.0));
    report(MpvProperty::subDelay, MpvValue(0.0));
    report(MpvProperty::audioDelay, MpvValue(0.1));
    report(MpvProperty::loopFile, MpvValue(std::string("no")));
    reportTracks();
    reportChapters();
    report(MpvProperty::chapter, MpvValue(std::int64_t{1}));
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
    static constexpr const char* kPanels[]{"tracks", "chapters", "queue", "shortcuts"};
    if (chrome().panel()) found.push_back(kPanels[static_cast<int>(*chrome().panel())]);
    if (chrome().showsInfo()) found.push_back("info");
    if (player().isClosing()) found.push_back("closes");
    if (chrome().toast()) found.push_back('"' + chrome().toast()->toStdString() + '"');
    return found;
  }
  PlayerChrome& chrome() { return player().chrome(); }
};

struct Row {
  Stroke stroke;
  Sent effects;
};

TEST_F(KeysTest, EachDoesAsTheListSays) {
  const Row rows[] = {
      {{Qt::Key_Space, " "}, {"set pause yes"}},
      {{Qt::Key_Left}, {"seek -10.0 relative"}},
      {{Qt::Key_Right}, {"seek 10.0 relative"}},
      {{Qt::Key_Left, {}, kShift}, {"seek -3.0 relative"}},
      {{Qt::Key_Right, {}, kShift}, {"seek 3.0 relative"}},
      {{Qt::Key_Left, {}, kAlt}, {"seek -60.0 relative"}},
      {{Qt::Key_Right, {}, kShift | kAlt}, {"seek 60.0 relative"}},
      {{Qt::Key_Right, {}, Qt::KeypadModifier}, {"seek 10.0 relative"}},
      {{Qt::Key_Up}, {"set volume 54.6", "\"Volume 55%\""}},
      {{Qt::Key_Down, {}, kAlt}, {"set volume 44.6", "\"Volume 45%\""}},
      {{Qt::Key_Up, {}, kControl}, {"set volume 54.6", "\"Volume 55%\""}},
      {{Qt::Key_Down, {}, kControl | Qt::KeypadModifier}, {"set volume 44.6", "\"Volume 45%\""}},
      {{Qt::Key_Left, {}, kControl}, {"playlist-prev"}},
      {{Qt::Key_Right, {}, kControl}, {"playlist-next"}},
      {typed("f"), {"set fullscreen yes"}},
      {typed("F"), {"set fullscreen yes"}},
      {typed("i"), {"info"}},
      {typed("?"), {"shortcuts"}},
      {typed("/", Qt::KeypadModifier), {"shortcuts"}},
      {typed("c"), {"chapters"}},
      {typed("q"), {"queue"}},
      {typed("u"), {"tracks"}},
      {typed("m"), {"set mute yes", "\"Muted\""}},
      {typed("M"), {"set mute yes", "\"Muted\""}},
      {typed("n"), {"playlist-next"}},
      {typed("p"), {"playlist-prev"}},
      {typed("N"), {"set chapter 2", "\"Chapter: At 100\""}},
      {typed("P"), {"set chapter 0", "\"Chapter: At 0\""}},
      {typed("]"), {"set speed 1.25", "\"Speed 1.25×\""}},
      {typed("["), {"set speed 0.75", "\"Speed 0.75×\""}},
      {typed("="), {"set speed 1.0", "\"Speed 1×\""}},
      {typed("e"), {"frame-step"}},
      {typed("E"), {"frame-back-step"}},
      {typed("l"), {"set loop-file inf", "\"Loop on\""}},
      {typed("t"), {"\"0:51 / 1:06:40\""}},
      {typed("v"), {"set sid 2", "\"Subtitles: Track 2\""}},
      {typed("b"), {"set aid 5", "\"Audio: Track 5\""}},
      {typed("g"), {"set sub-delay -0.05", "\"Subtitle delay -50 ms\""}},
      {typed("H"), {"set sub-delay 0.05", "\"Subtitle delay +50 ms\""}},
      {typed("j"), {"set audio-delay 0.05", "\"Audio delay +50 ms\""}},
      {typed("k"), {"set audio-delay 0.15", "\"Audio delay +150 ms\""}},

      // What a layout types counts, wherever it has it, and Caps Lock doesn't.
      {{Qt::Key_N, "N"}, {"playlist-next"}},
      {{Qt::Key_N, "n", kShift}, {"set chapter 2", "\"Chapter: At 100\""}},
      {{0x414, "д", {}, 46}, {"set loop-file inf", "\"Loop on\""}},
      {{0x425, "х", {}, 34}, {"set speed 0.75", "\"Speed 0.75×\""}},
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
    clock_.advance(1999ms);
    EXPECT_TRUE(player().chromeVisible()) << "the timer began with the key";
  }
}

/// As the list of keys writes it.
Stroke listed(QString keys) {
  Qt::KeyboardModifiers modifiers;
  for (const auto& [sign, modifier] : {std::pair{u'⇧', kShift}, {u'⌥', kAlt}, {u'⌘', kControl}}) {
    modifiers.setFlag(modifier, keys.contains(sign));
    keys.remove(sign);
  }
  static const QHash<QString, int> named{
      {QStringLiteral("Space"), Qt::Key_Space}, {QStringLiteral("Esc"), Qt::Key_Escape},
      {QStringLiteral("←"), Qt::Key_Left},      {QStringLiteral("→"), Qt::Key_Right},
      {QStringLiteral("↑"), Qt::Key_Up},        {QStringLiteral("↓"), Qt::Key_Down}};
  if (named.contains(keys)) return {named[keys], {}, modifiers};
  return typed(modifiers & kShift ? keys : keys.toLower(), modifiers);
}

TEST_F(KeysTest, WhateverIsListedIsAKeyOfThePlayer) {
  // The hand's, and the whole program's.
  const QStringList others{QStringLiteral("Scroll"), QStringLiteral("double-click"),
                           QStringLiteral("⌘O")};
  static const QRegularExpression between(QStringLiteral("\\s*[/,]\\s*"));
  for (const ShortcutGroup& group : PlayerShortcuts::groups())
    for (const Shortcut& shortcut : group.items)
      for (const QString& keys : shortcut.keys.split(between)) {
        if (others.contains(keys)) continue;
        testing::FakeVideoWindow window(clock_);
        showVideo(window);
        EXPECT_TRUE(window.keyMonitor(listed(keys).pressed())) << qPrintable(keys);
        takeDown(window);
      }
}

TEST_F(KeysTest, OthersPassAndChangeNothing) {
  const Stroke strokes[] = {
      typed("m", kAlt),
      typed("m", kControl),
      typed("m", kMeta),
      typed("o", kControl),
      typed("W", kControl),
      typed("w", kControl | kAlt),
      typed("w"),
      typed("µ"),                // AltGr and M
      {0x425, "Х", kShift, 34},  // a brace
      {0x416, "ж", {}, 47},
      {Qt::Key_Left, {}, kMeta},
      {Qt::Key_Left, {}, kControl | kShift},
      {Qt::Key_Up, {}, kControl | kAlt},
      {Qt::Key_Escape, "\x1b", kControl},
      {Qt::Key_Shift, {}, kShift},
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
      {typed("i"), {}},
      {typed("c"), {}},
      {typed("m"), {"set mute no", "\"Volume 50%\""}},
      {typed("l"), {"set loop-file no", "\"Loop off\""}},
      {typed("N"), {"\"No next chapter\""}},
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
  report(MpvProperty::chapter, MpvValue(std::int64_t{0}));
  report(MpvProperty::timePos, MpvValue(1.0));
  EXPECT_TRUE(press(typed("P")));
  EXPECT_EQ(effects(), Sent{"\"No previous chapter\""});
  report(MpvProperty::chapterList, MpvValue(MpvNode{MpvList()}));
  EXPECT_TRUE(press(typed("c")));
  EXPECT_EQ(effects(), Sent{"\"No chapters\""});
}

TEST_F(KeysTest, HeldDownOnlySmallStepsGoOn) {
  QList<Stroke> goOn{
      {Qt::Key_Left}, {Qt::Key_Right, {}, kAlt}, {Qt::Key_Up}, {Qt::Key_Down, {}, kControl}};
  for (const QChar character : QStringLiteral("[]ghjk")) goOn << typed(character);
  QList<Stroke> once{{Qt::Key_Space, QStringLiteral(" ")},
                     {Qt::Key_Escape},
                     {Qt::Key_Left, {}, kControl},
                     {Qt::Key_Right, {}, kControl},
                     typed("w", kControl)};
  for (const QChar character : QStringLiteral("fi?cqousmnpNP=lvb")) once << typed(character);
  begin();
  chrome().setToast({});
  for (const Stroke& stroke : goOn) {
    EXPECT_TRUE(press(stroke, true));
    EXPECT_EQ(takeSent().size(), 1U) << stroke.key;
  }
  chrome().setToast({});
  for (const Stroke& stroke : once) {
    EXPECT_TRUE(press(stroke, true)) << "it is the player's all the same";
    EXPECT_EQ(effects(), Sent()) << stroke.key;
  }
  EXPECT_FALSE(files_.asked);
  for (const bool isThere : {false, true}) {
    report(MpvProperty::pause, MpvValue(isThere));
    EXPECT_TRUE(press(typed("e"), true));
    EXPECT_EQ(effects(), isThere ? Sent{"frame-step"} : Sent()) << "a step waits for the last one";
  }
}

TEST_F(KeysTest, EscapeGoesBackOneStepAtATime) {
  const Stroke escape{Qt::Key_Escape, QStringLiteral("\x1b")};
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

TEST_F(KeysTest, CloseAndOpen) {
  begin();
  EXPECT_TRUE(press(typed("O")));
  EXPECT_TRUE(files_.asked);
  for (const Stroke& stroke :
       {typed("s"), typed("w", kControl), Stroke{0x426, QStringLiteral("\x17"), kControl, 25}}) {
    testing::FakeVideoWindow window(clock_);
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

}  // namespace
}  // namespace tromelo
