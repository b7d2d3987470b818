#include <QAccessible>
#include <QTest>
#include <QTranslator>

#include "OverlayTest.h"
#include "support/Reader.h"
#include "support/Table.h"
#include "theme/Motion.h"

namespace tromelo::testing {

/// Asked before the window, as the player's keys are.
struct KeyCounter : QObject {
  int count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::KeyPress;
    return false;
  }
};

struct PanelsTest : ViewTest {
  PanelsTest() { host_.resize(800, 700); }

  /// The names of the rows that are ticked.
  QStringList ticked() {
    QStringList found;
    for (const char* name : {"trackOff", "track"})
      for (const QQuickItem* row : all(name)) {
        const bool isTicked = only("checkmark", row)->opacity() == 1;
        EXPECT_EQ(
            isTicked,
            QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(row))->state().checked);
        if (isTicked) found << row->property("name").toString();
      }
    return found;
  }
  /// Once the pointer rests there.
  bool tells(const QQuickItem* row, const QQuickItem* pointed, const char* tip) {
    move(frame(pointed).center());
    return waitFor([&] {
      const auto tips = row->findChildren<QObject*>("toolTip");
      return tips.size() == 1 && tips[0]->property("text") == tip;
    });
  }
};

TEST_F(PanelsTest, TracksAreChosenByTheirRows) {
  show("TracksPanel", {{"playback", playback()}, {"width", 360}, {"height", 700}});
  EXPECT_EQ(ticked(), QStringList{"Off"});
  EXPECT_FALSE(isShown("audioSection"));
  EXPECT_TRUE(all("track").isEmpty());

  const MpvList tracks{track("sub", 3, "Signs", false, "ass"), track("sub", 7, "Full", true),
                       track("audio", 4, "Stereo", false), track("audio", 9, "Comment", true)};
  report(MpvProperty::trackList, MpvNode{tracks});
  settle();
  EXPECT_TRUE(waitFor([this] { return all("track").size() == 4 && isShown("audioSection"); }));
  EXPECT_TRUE(waitFor([this] {
    return frame(only("audioSection")).top() > frame(only("subtitleTiming")).bottom();
  }));
  EXPECT_EQ(texts(all("track"), "name"), QStringList({"Signs", "Full", "Stereo", "Comment"}));
  EXPECT_EQ(ticked(), QStringList({"Full", "Comment"}));
  EXPECT_EQ(texts(all("details"), "text"), QStringList{"ASS"});

  click(all("track")[0]);
  click(all("track")[2]);
  click(only("trackOff"));
  EXPECT_EQ(takeSent(), Sent({"set sid 3", "set aid 4", "set sid no"}));
  click(only("addSubtitleFile"));
  ASSERT_TRUE(files_.asked);
  EXPECT_FALSE(files_.asked->allowsSeveral);
}

TEST_F(PanelsTest, DelaysGoInStepsAndBack) {
  show("TracksPanel", {{"playback", playback()}, {"width", 360}, {"height", 700}});
  reportTracks(MpvList{track("audio", 1, "", true)});
  ASSERT_TRUE(waitFor([this] { return isShown("audioSync"); }));
  settle();
  for (const auto& [row, property] :
       {std::pair("subtitleTiming", "sub-delay"), std::pair("audioSync", "audio-delay")}) {
    SCOPED_TRACE(row);
    QQuickItem* const line = only(row);
    const auto part = [&](const char* name) { return only(name, line); };
    const auto reads = [&] { return part("delay")->property("text").toString(); };
    const std::string set = std::string("set ") + property + ' ';
    EXPECT_EQ(reads(), "0 ms");
    EXPECT_FALSE(part("resetDelay")->isEnabled());
    click(part("earlier"));
    EXPECT_EQ(reads(), "-50 ms");
    click(part("later"));
    EXPECT_FALSE(part("resetDelay")->isEnabled());
    click(part("later"));
    EXPECT_EQ(reads(), "+50 ms");
    click(part("resetDelay"));
    EXPECT_EQ(reads(), "0 ms");
    EXPECT_EQ(takeSent(), Sent({set + "-0.05", set + "0.0", set + "0.05", set + "0.0"}));
  }
}

TEST_F(PanelsTest, AChapterIsGoneTo) {
  reportChapters({0, 61, 3700});
  show("ChaptersPanel", {{"playback", playback()}, {"width", 320}, {"height", 400}});
  ASSERT_TRUE(waitFor([this] { return all("chapter").size() == 3; }));
  EXPECT_EQ(texts(all("chapterTime"), "text"), QStringList({"0:00", "1:01", "1:01:40"}));
  const auto current = [this] { return texts(all("chapter"), "isCurrent").indexOf("true"); };
  EXPECT_EQ(current(), -1);
  report(MpvProperty::chapter, std::int64_t{1});
  EXPECT_EQ(current(), 1);
  takeSent();
  click(all("chapter")[2]);
  EXPECT_EQ(takeSent(), Sent{"set chapter 2"});
  EXPECT_EQ(current(), 2);
}

TEST_F(PanelsTest, ABookmarkIsGoneToRenamedAndRemoved) {
  load(4000);
  report(MpvProperty::path, "/films/film.mkv");
  for (const double position : {61.0, 3700.0}) {
    report(MpvProperty::timePos, position);
    playback_.addBookmark();
  }
  show("ChaptersPanel", {{"playback", playback()}, {"width", 320}, {"height", 400}});
  ASSERT_EQ(all("bookmark").size(), 2);
  EXPECT_EQ(texts(all("bookmarkTime")), QStringList({"1:01", "1:01:40"}));
  click(all("bookmark")[0]);
  EXPECT_EQ(takeSent(), Sent{"seek 61.0 absolute+exact"});

  const auto edit = [this](const char* typed, int end) {
    ASSERT_TRUE(only("bookmarkField") && only("bookmarkField")->hasActiveFocus());
    for (const char* letter = typed; *letter; ++letter) QTest::keyClick(&host_, *letter);
    QTest::keyClick(&host_, Qt::Key(end));
    EXPECT_TRUE(waitFor([this] { return !only("bookmarkField"); }));
  };
  const auto use = [this](const QQuickItem* button) {
    press(frame(button).center());
    release(frame(button).center());
    settle();
  };
  use(all("renameBookmark")[1]);
  edit("Ende", Qt::Key_Return);
  EXPECT_EQ(texts(all("bookmarkName")), QStringList({"Bookmark 1", "Ende"}));
  EXPECT_FALSE(host_.activeFocusItem()->flags().testFlag(QQuickItem::ItemAcceptsInputMethod));
  all("bookmark")[0]->forceActiveFocus(Qt::TabFocusReason);
  key(Qt::Key_F2);
  edit("No", Qt::Key_Escape);
  EXPECT_EQ(texts(all("bookmarkName")), QStringList({"Bookmark 1", "Ende"}));
  key(Qt::Key_Delete);
  EXPECT_EQ(texts(all("bookmarkName")), QStringList("Ende"));
  use(only("removeBookmark"));
  EXPECT_TRUE(all("bookmark").isEmpty());
}

TEST_F(PanelsTest, TheQueueIsPlayedAndClearedByItsRows) {
  show("QueuePanel", {{"playback", playback()}, {"width", 340}, {"height", 400}});
  for (const auto& [count, current, hint, canClear] :
       Table<int, int, bool, bool>{{0, -1, true, false},
                                   {1, 0, true, false},
                                   {2, 1, false, false},
                                   {2, 0, false, true},
                                   {3, 1, false, true}}) {
    SCOPED_TRACE(count * 10 + current);
    reportPlaylist(count, current);
    ASSERT_TRUE(waitFor([&] { return all("queueItem").size() == count; }));
    EXPECT_EQ(isShown("queueHint"), hint);
    EXPECT_EQ(only("clearUpNext")->isEnabled(), canClear);
    EXPECT_EQ(all("removeFromQueue").size(), count - (current >= 0));
    EXPECT_EQ(texts(all("queueItem"), "isCurrent").indexOf("true"), current);
  }
  settle();
  takeSent();
  click(all("queueItem")[1]);
  EXPECT_EQ(takeSent(), Sent()) << "it plays";
  click(all("queueItem")[2]);
  click(all("removeFromQueue")[0]);
  click(all("removeFromQueue")[1]);
  click(only("clearUpNext"));
  EXPECT_EQ(takeSent(), Sent({"playlist-play-index 2", "playlist-remove 0", "playlist-remove 2",
                              "playlist-clear"}));
  click(only("addToQueue"));
  ASSERT_TRUE(files_.asked);
  EXPECT_TRUE(files_.asked->allowsSeveral);
}

TEST_F(PanelsTest, ARowOfTheQueueTellsOneThingAtATime) {
  show("QueuePanel", {{"playback", playback()}, {"width", 340}, {"height", 400}});
  reportPlaylist(3, 0);
  ASSERT_TRUE(waitFor([this] { return all("queueItem").size() == 3; }));
  layOut();
  const QPointer<QQuickItem> row = all("queueItem")[2];
  EXPECT_TRUE(tells(row, row, "/films/2"));
  EXPECT_TRUE(tells(row, only("removeFromQueue", row), "Remove from queue"));
  EXPECT_TRUE(tells(row, row, "/films/2"));
  reportPlaylist(2, 0);
  EXPECT_TRUE(waitFor([&] { return !row || !row->findChild<QObject*>("toolTip"); }));
}

TEST_F(PanelsTest, ALongQueueKeepsItsPlaceWhileItChanges) {
  reportPlaylist(5000, 0);
  show("QueuePanel", {{"playback", playback()}, {"width", 340}, {"height", 400}});
  QQuickItem* const rows = only("queueRows");
  ASSERT_TRUE(waitFor([this] { return !all("queueItem").isEmpty(); }));
  EXPECT_LT(all("queueItem").size(), 60) << "only what can be seen is made";
  rows->setProperty("contentY", 3000);
  ASSERT_TRUE(waitFor([this] { return all("queueItem").size() > 5; }));
  reportPlaylist(5001, 1);
  settle();
  EXPECT_EQ(rows->property("contentY"), 3000);
}

TEST_F(PanelsTest, ALongQueueOpensAtWhatPlays) {
  for (const int current : {0, 40, 99}) {
    reportPlaylist(100, current);
    show("QueuePanel", {{"playback", playback()}, {"width", 340}, {"height", 400}});
    layOut();
    settle();
    layOut();
    const int row = static_cast<int>(texts(all("queueItem"), "isCurrent").indexOf("true"));
    ASSERT_GE(row, 0) << current;
    EXPECT_TRUE(frame("queueRows").contains(frame(all("queueItem")[row]))) << current;
  }
}

TEST_F(PanelsTest, ARowOfTheQueueIsDraggedToAnotherPlace) {
  reportPlaylist(30, 0);
  show("QueuePanel", {{"playback", playback()}, {"width", 340}, {"height", 400}});
  layOut();
  ASSERT_TRUE(waitFor([this] { return all("queueItem").size() > 8; }));
  settle();
  layOut();
  const auto middle = [this](int row) { return frame(all("queueItem")[row]).center(); };
  const auto hold = [&](int row, int over) {
    press(middle(row));
    drag(middle(row) + QPointF(0, 8));
    drag(middle(over));
    layOut();
  };
  takeSent();
  hold(2, 5);
  EXPECT_TRUE(isShown("liftedRow"));
  EXPECT_LT(all("queueItem")[2]->opacity(), 1);
  release(middle(5));
  EXPECT_EQ(takeSent(), Sent{"playlist-move 2 6"});
  EXPECT_FALSE(isShown("liftedRow"));
  hold(5, 1);
  release(middle(1));
  EXPECT_EQ(takeSent(), Sent{"playlist-move 5 1"});

  hold(3, 6);
  key(Qt::Key_Escape);
  EXPECT_FALSE(isShown("liftedRow"));
  release(middle(6));
  EXPECT_EQ(takeSent(), Sent()) << "put back";

  // Held at the edge it goes on to the end.
  hold(2, 6);
  drag({middle(6).x(), frame("queueRows").bottom() - 1});
  ASSERT_TRUE(waitFor(
      [this] { return frame(all("queueItem").last()).bottom() <= frame("queueRows").bottom(); }));
  release({middle(0).x(), frame("queueRows").bottom() - 1});
  EXPECT_EQ(takeSent(), Sent{"playlist-move 2 30"});
  EXPECT_EQ(item("queueRows")->property("count"), 30);
}

TEST_F(PanelsTest, ARowOfTheQueueIsMovedAndRemovedByKeys) {
  reportPlaylist(3, 0);
  show("QueuePanel", {{"playback", playback()}, {"width", 340}, {"height", 400}});
  layOut();
  ASSERT_TRUE(waitFor([this] { return all("queueItem").size() == 3; }));
  takeSent();
  const auto chosen = [this] { return texts(all("queueItem"), "activeFocus").indexOf("true"); };
  key(Qt::Key_Tab);
  ASSERT_EQ(chosen(), 0);
  key(Qt::Key_Delete);
  key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(takeSent(), Sent()) << "what plays stays, and there is nothing before the first";
  key(Qt::Key_Down, Qt::AltModifier);
  key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(takeSent(), Sent({"playlist-move 0 2", "playlist-move 1 3"}));
  EXPECT_EQ(chosen(), 2) << "it keeps the keyboard";
  key(Qt::Key_Backtab);
  key(Qt::Key_Delete);
  EXPECT_EQ(takeSent(), Sent{"playlist-remove 1"});
}

/// The panels above the control bar, over a video.
struct PopoverTest : OverlayTest {
  PopoverTest() { host_.resize(800, 700); }

  void open(PlayerPanel panel) {
    chrome().setPanel(panel);
    ASSERT_TRUE(waitFor([this] { return all("playerPopover").size() == 1; }));
  }
  QList<QQuickItem*> shownTexts(const QQuickItem& whole) {
    QList<QQuickItem*> found;
    for (QQuickItem* child : whole.childItems()) {
      if (!child->isVisible()) continue;
      const bool isSymbol = child->property("size").isValid();
      if (!isSymbol && child->property("contentWidth").toDouble() > 0) found << child;
      found << shownTexts(*child);
    }
    return found;
  }
  /// None is cut off, or lies on another.
  void expectRoom(const QList<QQuickItem*>& texts) {
    for (const QQuickItem* one : texts) {
      const std::string words = one->property("text").toString().toStdString();
      EXPECT_FALSE(one->property("truncated").toBool()) << words;
      EXPECT_LE(one->property("contentWidth").toDouble(), std::ceil(one->width())) << words;
      for (const QQuickItem* other : texts)
        EXPECT_TRUE(other == one || !frame(one).intersects(frame(other)))
            << words << " and " << other->property("text").toString().toStdString();
    }
  }
  QRectF popover() { return frame(all("playerPopover").first()); }
};

TEST_F(PopoverTest, OpensAboveTheBarWithinTheWindow) {
  reportPlaylist(100, 0);
  reportChapters(std::vector<double>(100, 1.0));
  for (const PlayerPanel panel : {PlayerPanel::tracks, PlayerPanel::chapters, PlayerPanel::queue})
    for (const QSizeF size : {QSizeF(520, 300), QSizeF(800, 700), QSizeF(1920, 1080)}) {
      SCOPED_TRACE(static_cast<int>(panel) * 10000 + size.width());
      layer_.setSize(size);
      open(panel);
      ASSERT_TRUE(waitFor([&] { return popover().height() > 100; }));
      EXPECT_TRUE(
          waitFor([&] { return popover().bottom() <= frame(only("playerControlBar")).top() - 8; }));
      EXPECT_GE(popover().top(), 10);
      EXPECT_GE(popover().width(), 320);
      EXPECT_GE(popover().left(), 10);
      EXPECT_LE(popover().right(), size.width() - 10);
      chrome().setPanel(std::nullopt);
      ASSERT_TRUE(waitFor([this] { return all("playerPopover").isEmpty(); }));
    }
}

TEST_F(PopoverTest, HasRoomForItsTextsInGerman) {
  QTranslator german;
  ASSERT_TRUE(german.load(TROMELO_GERMAN));
  QCoreApplication::installTranslator(&german);
  makeOverlay();
  load(60);
  reportPlaylist(2, 0);
  reportChapters({0, 50});
  reportTracks(MpvList{track("audio", 1, "", true)});
  chrome().setShowsInfo(true);
  const Table<std::optional<PlayerPanel>, const char*> rows{
      {PlayerPanel::tracks, "playerPopover"},
      {PlayerPanel::chapters, "playerPopover"},
      {PlayerPanel::queue, "playerPopover"},
      {PlayerPanel::goTo, "playerPopover"},
      {PlayerPanel::shortcuts, "playerShortcutsPanel"},
      {std::nullopt, "playerInfoPanel"},
      {std::nullopt, "playerControlBar"}};
  for (const auto& [panel, view] : rows) {
    chrome().setPanel(panel);
    ASSERT_TRUE(waitFor([&] { return only(view) != nullptr; }));
    layOut();
    const QList<QQuickItem*> texts = shownTexts(*only(view));
    EXPECT_GT(texts.size(), 2);
    expectRoom(texts);
  }
}

TEST_F(PopoverTest, ComesAndGoesInOneStepWithoutMotion) {
  Motion::of(engine_).setWanted(false);
  chrome().setPanel(PlayerPanel::tracks);
  ASSERT_EQ(all("playerPopover").size(), 1);
  EXPECT_EQ(all("playerPopover").first()->parentItem()->parentItem()->parentItem()->opacity(), 1);
  chrome().setPanel(std::nullopt);
  EXPECT_TRUE(all("playerPopover").isEmpty());
}

TEST_F(PopoverTest, APressOutsideOnlyClosesIt) {
  reportChapters({0, 1});
  for (const PlayerPanel panel : {PlayerPanel::tracks, PlayerPanel::chapters, PlayerPanel::queue}) {
    SCOPED_TRACE(static_cast<int>(panel));
    open(panel);
    const QPointF inside = popover().topLeft() + QPointF(3, 30);
    click(inside);
    scroll(inside);
    EXPECT_EQ(chrome().panel(), panel);
    click(QPointF(20, 40));  // where the way back to the library is
    EXPECT_EQ(chrome().panel(), std::nullopt);
    EXPECT_EQ(take(), QStringList());
    ASSERT_TRUE(waitFor([this] { return all("playerPopover").isEmpty(); }));
  }
  click(QPointF(400, 120));
  EXPECT_EQ(take(), QStringList{"click"});
  open(PlayerPanel::chapters);
  ASSERT_TRUE(waitFor([this] {
    layOut();  // which makes the rows
    return all("chapter").size() == 2;
  }));
  click(all("chapter")[1]);
  EXPECT_EQ(chrome().panel(), std::nullopt) << "it was chosen from";

  open(PlayerPanel::queue);
  takeSent();
  click("muteButton");
  EXPECT_EQ(takeSent(), Sent{"set mute yes"}) << "the bar's presses are its own";
  EXPECT_EQ(chrome().panel(), PlayerPanel::queue);
  for (const std::optional<PlayerPanel> panel : {std::optional(PlayerPanel::tracks), {}}) {
    click("tracksButton");
    EXPECT_EQ(chrome().panel(), panel);
  }
}

TEST_F(PopoverTest, ATimeIsTypedAndGoneTo) {
  load(4000);
  open(PlayerPanel::goTo);
  const auto type = [this](const char* text) {
    for (const char* letter = text; *letter; ++letter) QTest::keyClick(&host_, *letter);
  };
  ASSERT_TRUE(only("goToField")->hasActiveFocus());
  type("1:2x");
  QTest::keyClick(&host_, Qt::Key_Return);
  EXPECT_EQ(chrome().panel(), PlayerPanel::goTo) << "that is no time";
  QTest::keyClick(&host_, Qt::Key_Backspace);
  EXPECT_EQ(text("goToHint"), "Goes to 1:02");
  takeSent();
  QTest::keyClick(&host_, Qt::Key_Return);
  EXPECT_EQ(takeSent(), Sent{"seek 62.0 absolute+exact"});
  EXPECT_EQ(chrome().panel(), std::nullopt);
  EXPECT_EQ(host_.activeFocusItem(), host_.contentItem()) << "the keys are the player's again";
}

TEST_F(PopoverTest, AllIsKnownAndUsedWithoutBeingSeen) {
  using enum QAccessible::Role;
  load(100);
  report(MpvProperty::pause, false);
  report(MpvProperty::videoFormat, "h264");
  reportPlaylist(2, 0);
  reportChapters({0, 50});
  reportTracks(MpvList{track("sub", 3, "Signs", false), track("audio", 4, "", true)});
  Reader reader(host_);
  reader.press(Button, "Pause");
  report(MpvProperty::pause, true);
  reader.set(Slider, "Volume", 40);
  EXPECT_EQ(reader.find(Slider, "Volume")->valueInterface()->currentValue(), 40);
  reader.expect(Button, {"Close player", "Mute", "Back 10 seconds", "Play", "Forward 10 seconds",
                         "Full screen"});
  reader.expect(ToolBar, {"Playback controls"});
  reader.expect(Slider, {"Position"});
  reader.expectNames();
  reader.press(ButtonMenu, "Playback speed");
  EXPECT_TRUE(reader.state(MenuItem, "1×").checked);
  reader.press(MenuItem, "2×");
  EXPECT_EQ(takeSent(), Sent({"set pause yes", "set volume 40.0", "set speed 2.0"}));
  player().showToast("Muted");
  EXPECT_EQ(Reader::heard, QStringList{"Muted"});
  for (const auto& [opener, kind, panel, role, name, sent] :
       testing::Table<const char*, QAccessible::Role, const char*, QAccessible::Role, const char*,
                      Sent>{
           {"Subtitles & audio", Pane, "Subtitles and audio", RadioButton, "Signs", {"set sid 3"}},
           {"Queue", Pane, "Queue", ListItem, "1", {"playlist-play-index 1"}},
           {"Chapters", List, "Chapters", ListItem, "At 50", {"set chapter 1"}},
           {"Playback info", Grouping, "Playback info", Button, "Mute", {"set mute yes"}}}) {
    SCOPED_TRACE(opener);
    reader.press(Button, opener);
    layOut();
    EXPECT_TRUE(reader.state(Button, opener).checked);
    reader.expect(kind, {panel});
    reader.expectNames();
    reader.press(role, name);
    EXPECT_EQ(takeSent(), sent);
  }
  reader.expect(StaticText, {"Codec: H264"});
  reader.press(Button, "Playback info");
  EXPECT_FALSE(chrome().showsInfo());
}

TEST_F(PopoverTest, EscClosesTheListOfFontsFirst) {
  host_.requestActivate();
  ASSERT_TRUE(waitFor([this] { return host_.isActive(); }));
  open(PlayerPanel::tracks);
  click(only("subtitleFont"));
  ASSERT_TRUE(waitFor([this] { return isShown("choiceGeorgia"); }));
  KeyCounter keys;
  host_.installEventFilter(&keys);
  QTest::keyClick(&host_, Qt::Key_Escape);
  EXPECT_TRUE(waitFor([this] { return !isShown("choiceGeorgia"); }));
  EXPECT_EQ(keys.count, 0);
  QTest::keyClick(&host_, Qt::Key_Escape);
  EXPECT_EQ(keys.count, 1) << "the player's";
}

}  // namespace tromelo::testing
