#include "OverlayTest.h"
#include "support/DrivenAnimations.h"
#include "support/Reader.h"
#include "support/Table.h"

namespace tromelo::testing {

using namespace std::chrono_literals;

struct QuickPlayerOverlayTest : OverlayTest {
  void enter(QPointF place) {
    pointer_ = host_.position() + place;
    QEnterEvent event(place, place, pointer_);
    QCoreApplication::sendEvent(&host_, &event);
  }
  void leave() {
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&host_, &event);
  }
};

TEST_F(QuickPlayerOverlayTest, PlacesItsViewsAtAnySize) {
  chrome().setShowsInfo(true);
  chrome().setPanel(PlayerPanel::shortcuts);
  chrome().setToast("Volume 50%");
  for (const QSizeF size : {QSizeF(520, 300), QSizeF(799, 451), QSizeF(1920, 1080)}) {
    SCOPED_TRACE(size.width());
    layer_.setSize(size);
    settle();
    EXPECT_TRUE(take().contains("layout"));
    const QRectF whole(QPointF(), size);
    const QRectF close = frame("playerCloseButton");
    const QRectF badge = frame("playerSignalBadge");
    const QRectF bar = frame("playerControlBar");
    EXPECT_EQ(close.top(), badge.top());
    EXPECT_EQ(close.left(), size.width() - badge.right());
    EXPECT_GT(badge.left(), close.right());
    EXPECT_EQ(frame("playerInfoPanel").right(), badge.right());
    EXPECT_GT(frame("playerInfoPanel").top(), badge.bottom());
    EXPECT_LT(frame("playerInfoPanel").bottom(), bar.top());
    EXPECT_EQ(overlay_->height(), size.height());
    EXPECT_EQ(overlay_->controlsTop(), size.height() - bar.top());
    EXPECT_LE(std::abs(frame("playerShortcutsPanel").center().y() - size.height() / 2), 0.5);
    for (const char* name : {"playerControlBar", "playerToast", "playerShortcutsPanel"}) {
      EXPECT_LE(std::abs(frame(name).center().x() - size.width() / 2), 0.5) << name;
      EXPECT_TRUE(whole.contains(frame(name))) << name;
    }
  }
  report(MpvProperty::mediaTitle, std::string(300, 'm'));
  report(MpvProperty::gamma, std::string("hlg"));
  layer_.setSize({520, 300});
  EXPECT_GT(frame("playerSignalBadge").left(), frame("playerCloseButton").right());
}

TEST_F(QuickPlayerOverlayTest, AMenuOpensOverThePicture) {
  host_.requestActivate();
  ASSERT_TRUE(waitFor([this] { return host_.isActive(); }));
  load(100);
  const auto opens = [this](const char* name, int count) {
    return waitFor([&] {
      layOut();
      return all(name).size() == count;
    });
  };
  press(QPointF(300, 100), Qt::RightButton);
  release(QPointF(300, 100), Qt::RightButton);
  ASSERT_TRUE(opens("menuTitle", 5));
  EXPECT_LT(std::abs(frame(all("menuTitle").first()).left() - 300), 20);
  key(Qt::Key_Down);
  key(Qt::Key_Right);
  EXPECT_TRUE(waitFor([this] { return !all("menuEntry").isEmpty(); }));
  takeSent();
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(takeSent(), Sent{"seek -10.0 relative"});
  EXPECT_TRUE(opens("menuTitle", 0));
  EXPECT_EQ(chrome().panel(), std::nullopt);

  chrome().setPanel(PlayerPanel::menu);
  ASSERT_TRUE(opens("menuTitle", 5));
  Reader reader(host_);
  reader.press(QAccessible::MenuItem, "Subtitles");
  EXPECT_TRUE(reader.state(QAccessible::MenuItem, "Next line").disabled);
  reader.press(QAccessible::MenuItem, "Subtitles and audio");
  EXPECT_EQ(chrome().panel(), PlayerPanel::tracks);
  chrome().setPanel(PlayerPanel::menu);
  ASSERT_TRUE(opens("menuTitle", 5));
  key(Qt::Key_Escape);
  EXPECT_EQ(chrome().panel(), std::nullopt);
  EXPECT_EQ(take().filter("click"), QStringList());
}

TEST_F(QuickPlayerOverlayTest, ChromeTakesClicksOnlyWhileItIsShown) {
  for (const char* name : {"playerCloseButton", "playerSignalBadge", "playerControlBar"}) {
    SCOPED_TRACE(name);
    const QPointF place = frame(name).center() + QPointF(0, 12);
    overlay_->setChromeVisible(true, false);
    move(place);
    take();
    EXPECT_TRUE(overlay_->isMouseInsideChrome());
    click(place);
    EXPECT_EQ(take(), QStringList());
    overlay_->setChromeVisible(false, false);
    EXPECT_FALSE(overlay_->isMouseInsideChrome());
    time_ += 1s;
    click(place);
    EXPECT_EQ(take(), QStringList{"click"});
  }
}

TEST_F(QuickPlayerOverlayTest, PanelsAreInTheWayWhileTheyAreShownAndTheToastNever) {
  overlay_->setChromeVisible(true, false);
  for (const auto& [view, isChrome, takesClicks] :
       Table<const char*, bool, bool>{{"playerInfoPanel", true, true},
                                      {"playerShortcutsPanel", false, true},
                                      {"playerToast", false, false}}) {
    SCOPED_TRACE(view);
    chrome().setShowsInfo(isChrome);
    chrome().setToast("Volume 50%");
    if (takesClicks && !isChrome) chrome().setPanel(PlayerPanel::shortcuts);
    const QPointF place = frame(view).center();
    ASSERT_TRUE(isShown(view));
    move(place);
    EXPECT_EQ(overlay_->isMouseInsideChrome(), isChrome);
    take();
    click(place);
    EXPECT_EQ(take(), takesClicks ? QStringList() : QStringList{"click"});
    chrome().setShowsInfo(false);
    chrome().setPanel(std::nullopt);
    chrome().setToast(std::nullopt);
    EXPECT_FALSE(isShown(view));
    EXPECT_FALSE(overlay_->isMouseInsideChrome());
    time_ += 1s;
    click(place);
    EXPECT_EQ(take(), QStringList{"click"});
    time_ += 1s;
  }
}

TEST_F(QuickPlayerOverlayTest, TellsOfARealPointerThatMoves) {
  const QPointF bar = frame("playerControlBar").center();
  EXPECT_FALSE(overlay_->isMouseInsideChrome());
  enter(bar);
  EXPECT_EQ(take(), QStringList{"activity"});
  EXPECT_TRUE(overlay_->isMouseInsideChrome());
  overlay_->setChromeVisible(false, false);
  overlay_->setChromeVisible(true, false);
  settle();
  move(bar);
  clock_.advance(1s);
  EXPECT_EQ(take(), QStringList()) << "it rested";
  leave();
  enter(bar);  // another window went away
  clock_.advance(1s);
  EXPECT_EQ(take(), QStringList{"activity"});
  const QPointF video(400, 200);
  move(video);
  EXPECT_EQ(take(), QStringList{"activity"});
  leave();
  enter(video);  // as a click brings about where the window manager looks at it first
  click(video);
  clock_.advance(1s);
  EXPECT_EQ(take(), QStringList{"click"});
  time_ += 1s;
  press(video);
  drag(video + QPointF(1, 1));
  EXPECT_FALSE(overlay_->isMouseInsideChrome());
  release(video + QPointF(1, 1));
  EXPECT_EQ(take(), QStringList{"click"}) << "a button was held";
  move(bar);
  EXPECT_TRUE(overlay_->isMouseInsideChrome());
  host_.setPosition(host_.position() + QPoint(0, 200));
  EXPECT_FALSE(overlay_->isMouseInsideChrome()) << "the window went from under it";
  host_.setPosition(host_.position() - QPoint(0, 200));
  EXPECT_TRUE(overlay_->isMouseInsideChrome());
  leave();
  EXPECT_FALSE(overlay_->isMouseInsideChrome());
}

TEST_F(QuickPlayerOverlayTest, FadesItsChromeAsOne) {
  DrivenAnimations time;
  QQuickItem& chrome = *item("playerChrome");
  overlay_->setChromeVisible(false, true);
  time.advanceBy(200ms);
  const double overtaken = chrome.opacity();
  EXPECT_LT(overtaken, 0.7);
  overlay_->setChromeVisible(true, true);
  EXPECT_EQ(chrome.opacity(), overtaken);
  time.advanceBy(179ms);
  EXPECT_LT(chrome.opacity(), 1);
  time.advanceBy(1ms);
  EXPECT_EQ(chrome.opacity(), 1);
  overlay_->setChromeVisible(false, true);
  time.advanceBy(349ms);
  EXPECT_TRUE(chrome.isVisible());
  time.advanceBy(1ms);
  EXPECT_FALSE(chrome.isVisible());
  overlay_->setChromeVisible(true, true);
  EXPECT_TRUE(chrome.isVisible());
  EXPECT_EQ(chrome.opacity(), 0) << "it comes up from nothing";
}

TEST_F(QuickPlayerOverlayTest, ScrollsOverVideoAndChrome) {
  for (const QPointF place : {QPointF(400, 200), frame("playerControlBar").center()}) {
    scroll(place);
    EXPECT_EQ(take(), QStringList{"scroll -2"});
  }
}

}  // namespace tromelo::testing
