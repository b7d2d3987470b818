#include <QAccessible>
#include <QTest>
#include <QTranslator>

#include "OverlayTest.h"

namespace tromelo {
namespace {

using testing::waitFor;

MpvNode track(const char* type, std::int64_t id, const char* title, bool isSelected,
              const char* codec = "") {
  return MpvNode{MpvMap{{"type", MpvNode{type}},
                        {"id", MpvNode{id}},
                        {"title", MpvNode{title}},
                        {"codec", MpvNode{codec}},
                        {"selected", MpvNode{isSelected}}}};
}

/// Asked before the window, as the player's keys are.
struct KeyCounter : QObject {
  int count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::KeyPress;
    return false;
  }
};

class PanelsTest : public testing::ViewTest {
 protected:
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
  show("TracksPanel", {{"playback", model()}, {"width", 360}, {"height", 700}});
  EXPECT_EQ(ticked(), QStringList{"Off"});
  EXPECT_FALSE(isShown("audioSection"));
  EXPECT_TRUE(all("track").isEmpty());

  const MpvList tracks{track("sub", 3, "Signs", false, "ass"), track("sub", 7, "Full", true),
                       track("audio", 4, "Stereo", false), track("audio", 9, "Comment", true)};
  report(MpvProperty::trackList, MpvValue(MpvNode{tracks}));
  testing::settle();
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
  show("TracksPanel", {{"playback", model()}, {"width", 360}, {"height", 700}});
  report(MpvProperty::trackList, MpvValue(MpvNode{MpvList{track("audio", 1, "", true)}}));
  ASSERT_TRUE(waitFor([this] { return isShown("audioSync"); }));
  testing::settle();
  struct Row {
    const char* row;
    const char* property;
  };
  for (const Row& row : {Row{"subtitleTiming", "sub-delay"}, Row{"audioSync", "audio-delay"}}) {
    SCOPED_TRACE(row.row);
    QQuickItem* const line = only(row.row);
    const auto part = [&](const char* name) { return only(name, line); };
    const auto reads = [&] { return part("delay")->property("text").toString(); };
    const std::string set = std::string("set ") + row.property + ' ';
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
  show("ChaptersPanel", {{"playback", model()}, {"width", 320}, {"height", 400}});
  ASSERT_TRUE(waitFor([this] { return all("chapter").size() == 3; }));
  EXPECT_EQ(texts(all("chapterTime"), "text"), QStringList({"0:00", "1:01", "1:01:40"}));
  const auto current = [this] { return texts(all("chapter"), "isCurrent").indexOf("true"); };
  EXPECT_EQ(current(), -1);
  report(MpvProperty::chapter, MpvValue(std::int64_t{1}));
  EXPECT_EQ(current(), 1);
  takeSent();
  click(all("chapter")[2]);
  EXPECT_EQ(takeSent(), Sent{"set chapter 2"});
  EXPECT_EQ(current(), 2);
}

TEST_F(PanelsTest, TheQueueIsPlayedAndClearedByItsRows) {
  show("QueuePanel", {{"playback", model()}, {"width", 340}, {"height", 400}});
  struct Row {
    int count;
    int current;
    bool hint;
    bool canClear;
  };
  for (const Row& row : {Row{0, -1, true, false}, Row{1, 0, true, false}, Row{2, 1, false, false},
                         Row{2, 0, false, true}, Row{3, 1, false, true}}) {
    SCOPED_TRACE(row.count * 10 + row.current);
    reportPlaylist(row.count, row.current);
    ASSERT_TRUE(waitFor([&] { return all("queueItem").size() == row.count; }));
    EXPECT_EQ(isShown("queueHint"), row.hint);
    EXPECT_EQ(only("clearUpNext")->isEnabled(), row.canClear);
    EXPECT_EQ(all("removeFromQueue").size(), row.count - (row.current >= 0));
    EXPECT_EQ(texts(all("queueItem"), "isCurrent").indexOf("true"), row.current);
  }
  testing::settle();
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
  show("QueuePanel", {{"playback", model()}, {"width", 340}, {"height", 400}});
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
  show("QueuePanel", {{"playback", model()}, {"width", 340}, {"height", 400}});
  QQuickItem* const rows = only("queueRows");
  ASSERT_TRUE(waitFor([this] { return !all("queueItem").isEmpty(); }));
  EXPECT_LT(all("queueItem").size(), 60) << "only what can be seen is made";
  rows->setProperty("contentY", 3000);
  ASSERT_TRUE(waitFor([this] { return all("queueItem").size() > 5; }));
  reportPlaylist(5001, 1);
  testing::settle();
  EXPECT_EQ(rows->property("contentY"), 3000);
}

/// The panels above the control bar, over a video.
class PopoverTest : public testing::OverlayTest {
 protected:
  PopoverTest() { host_.resize(800, 700); }

  void open(PlayerPanel panel) {
    player().chrome().setPanel(panel);
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
      player().chrome().setPanel(std::nullopt);
      ASSERT_TRUE(waitFor([this] { return all("playerPopover").isEmpty(); }));
    }
}

TEST_F(PopoverTest, HasRoomForItsTextsInGerman) {
  QTranslator german;
  ASSERT_TRUE(german.load(QStringLiteral(TROMELO_GERMAN)));
  QCoreApplication::installTranslator(&german);
  makeOverlay();
  load(60);
  reportPlaylist(2, 0);
  reportChapters({0, 50});
  report(MpvProperty::trackList, MpvValue(MpvNode{MpvList{track("audio", 1, "", true)}}));
  player().chrome().setShowsInfo(true);
  struct Row {
    std::optional<PlayerPanel> panel;
    const char* view;
  };
  for (const Row& row :
       {Row{PlayerPanel::tracks, "playerPopover"}, Row{PlayerPanel::chapters, "playerPopover"},
        Row{PlayerPanel::queue, "playerPopover"},
        Row{PlayerPanel::shortcuts, "playerShortcutsPanel"}, Row{{}, "playerInfoPanel"},
        Row{{}, "playerControlBar"}}) {
    player().chrome().setPanel(row.panel);
    ASSERT_TRUE(waitFor([&] { return only(row.view) != nullptr; }));
    layOut();
    const QList<QQuickItem*> texts = shownTexts(*only(row.view));
    EXPECT_GT(texts.size(), 2);
    expectRoom(texts);
  }
}

TEST_F(PopoverTest, ComesAndGoesInOneStepWithoutMotion) {
  engine_.singletonInstance<QObject*>("Tromelo.Theme", "Theme")->setProperty("motion", 0);
  player().chrome().setPanel(PlayerPanel::tracks);
  ASSERT_EQ(all("playerPopover").size(), 1);
  EXPECT_EQ(all("playerPopover").first()->parentItem()->parentItem()->parentItem()->opacity(), 1);
  player().chrome().setPanel(std::nullopt);
  EXPECT_TRUE(all("playerPopover").isEmpty());
}

TEST_F(PopoverTest, APressOutsideOnlyClosesIt) {
  PlayerChrome& chrome = player().chrome();
  reportChapters({0, 1});
  for (const PlayerPanel panel : {PlayerPanel::tracks, PlayerPanel::chapters, PlayerPanel::queue}) {
    SCOPED_TRACE(static_cast<int>(panel));
    open(panel);
    const QPointF inside = popover().topLeft() + QPointF(3, 30);
    click(inside);
    scroll(inside);
    EXPECT_EQ(chrome.panel(), panel);
    click(QPointF(20, 40));  // where the way back to the library is
    EXPECT_EQ(chrome.panel(), std::nullopt);
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
  EXPECT_EQ(chrome.panel(), std::nullopt) << "it was chosen from";

  open(PlayerPanel::queue);
  takeSent();
  click("muteButton");
  EXPECT_EQ(takeSent(), Sent{"set mute yes"}) << "the bar's presses are its own";
  EXPECT_EQ(chrome.panel(), PlayerPanel::queue);
  for (const std::optional<PlayerPanel> panel : {std::optional(PlayerPanel::tracks), {}}) {
    click("tracksButton");
    EXPECT_EQ(chrome.panel(), panel);
  }
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

}  // namespace
}  // namespace tromelo
