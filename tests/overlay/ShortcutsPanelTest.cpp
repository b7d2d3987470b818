#include "ViewTest.h"
#include "player/PlayerShortcuts.h"

namespace tromelo::testing {

struct ShortcutsPanelTest : ViewTest {
  QQuickItem& showPanel(QVariantMap properties = {}) {
    properties.insert("chrome", shownChrome());
    chrome().setPanel(PlayerPanel::shortcuts);
    QQuickItem& panel = show("PlayerShortcutsPanel", properties);
    layOut();
    return panel;
  }
  QStringList textsOf(const char* name, const char* column) {
    return texts(items(name, item(column)));
  }
};

TEST_F(ShortcutsPanelTest, ListsTheKeysInTwoColumnsUntilItIsClosed) {
  showPanel();
  EXPECT_EQ(textsOf("shortcutsTitle", "shortcutsLeft"),
            (QStringList{"Playback", "Queue & chapters"}));
  EXPECT_EQ(textsOf("shortcutsTitle", "shortcutsRight"),
            (QStringList{"Audio & subtitles", "Window"}));
  click("closeShortcuts");
  EXPECT_EQ(chrome().panel(), std::nullopt);
  showPanel({{"groups", QVariant::fromValue(PlayerShortcuts::groups().first(1))}});
  EXPECT_EQ(textsOf("shortcutsTitle", "shortcutsRight"), QStringList());
  EXPECT_EQ(item("shortcutsLeft")->width(), item("shortcutsRight")->width());
}

TEST_F(ShortcutsPanelTest, NothingIsCutOffInAnyWindow) {
  for (const QSizeF size : {QSizeF(640, 420), QSizeF(480, 260)}) {
    SCOPED_TRACE(size.width());
    showPanel({{"width", size.width()}, {"height", size.height()}});
    QQuickItem& list = *item("shortcutsList");
    const double title = frame(item("closeShortcuts")).bottom();
    for (const char* column : {"shortcutsLeft", "shortcutsRight"})
      for (const char* name : {"shortcutKeys", "shortcutAction"}) {
        double above = 0;
        for (const QQuickItem* one : items(name, item(column))) {
          EXPECT_LE(one->property("contentWidth").toDouble(), one->width());
          EXPECT_TRUE(frame(item(column)).contains(frame(one)));
          EXPECT_GT(frame(one).top(), above);
          above = frame(one).bottom();
        }
      }
    list.setProperty("contentY", list.property("contentHeight").toDouble() - list.height());
    for (const char* column : {"shortcutsLeft", "shortcutsRight"}) {
      const QQuickItem* last = items("shortcut", item(column)).last();
      EXPECT_LE(frame(last).bottom(), frame(&list).bottom() + 1);
    }
    EXPECT_EQ(frame(item("closeShortcuts")).bottom(), title);
    EXPECT_LT(frame(&list).bottom(), size.height() - 20);
  }
}

}  // namespace tromelo::testing
