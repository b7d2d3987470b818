#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include "controls/Mnemonic.h"
#include "controls/Wording.h"
#include "support/Reader.h"
#include "support/Table.h"
#include "support/ViewDriver.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

// What was run is the window's title.
constexpr const char* kWindow = R"(
import QtQuick
import Tromelo.Controls

Window {
    id: window
    width: 400; height: 300; visible: true; title: "-"
    CommandMenuBar {
        width: parent.width
        CommandMenu {
            objectName: "file"; text: "&File"
            CommandItem { objectName: "open"; text: "&Open"; keys: "Ctrl+O"; onTriggered: window.title += "open " }
            CommandDivider {}
            CommandItem { enabled: false; text: "&Never"; onTriggered: window.title += "never " }
            CommandItem { text: "&Quit"; onTriggered: window.title += "quit " }
        }
        CommandMenu {
            objectName: "help"; text: "&Help"
            CommandItem { text: "<b>&About"; onTriggered: window.title += "about " }
        }
    }
    Item { focus: true; anchors.fill: parent; objectName: "content" }
})";

struct MenuTest : ::testing::Test, protected ViewDriver {
  MenuTest() {
    QQmlComponent component(&engine_);
    component.setData(kWindow, QUrl());
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (!window_) qFatal("%s", qPrintable(component.errorString()));
    window_->requestActivate();
    EXPECT_TRUE(waitFor([this] { return window_->isActive(); }));
  }

  QQuickWindow& window() override { return *window_; }
  bool isOpen(const char* menu) {
    return window_->findChild<QObject*>(menu)->property("opened").toBool();
  }
  QString ran() const { return window_->title().sliced(1).trimmed(); }

  QQmlEngine engine_;
  std::unique_ptr<QQuickWindow> window_;
};

TEST_F(MenuTest, TheKeyboardReachesEveryEntry) {
  for (const auto& [hand, runs] : Table<const char*, const char*>{
           {"+Alt Alt+F -Alt Q", "quit"},
           {"Alt Down Return", "quit"},  // over what is disabled
           {"F10 Right Return", "about"},
           {"Alt+H A", "about"},
           {"Alt+H Esc F10 N Esc", ""},  // a disabled letter
           {"O", ""},                    // while nothing is open
           {"+Alt Alt+X -Alt Q", ""},    // something in between
       }) {
    SCOPED_TRACE(hand);
    window_->setTitle("-");
    for (const QString& word : QString(hand).split(' ')) {
      const QKeyCombination keys = QKeySequence(word)[0];
      if (word == "+Alt")
        QTest::keyPress(window_.get(), Qt::Key_Alt);
      else if (word == "-Alt")
        QTest::keyRelease(window_.get(), Qt::Key_Alt);
      else
        key(word == "Alt" ? Qt::Key_Alt : keys.key(), keys.keyboardModifiers());
    }
    EXPECT_EQ(ran(), runs);
    EXPECT_TRUE(waitFor([this] { return !isOpen("file") && !isOpen("help"); }));
    EXPECT_EQ(window_->activeFocusItem()->objectName(), "content");
  }
}

TEST_F(MenuTest, IsKnownAndUsedWithoutBeingSeen) {
  using enum QAccessible::Role;
  Reader reader(*window_);
  reader.expectNames();
  reader.press(MenuItem, "File");
  EXPECT_EQ(reader.find(MenuItem, "Open")->text(QAccessible::Description), "Ctrl+O");
  reader.press(MenuItem, "Open");
  EXPECT_EQ(ran(), "open");
}

TEST(MnemonicTest, TakesTheLetterFromTheText) {
  for (const auto& [text, letter, plain, marked] :
       Table<QString, const char*, const char*, const char*>{
           {"&Open…", "O", "Open…", "<u>O</u>pen…"},
           {"Save &as", "A", "Save as", "Save <u>a</u>s"},
           {"Tom && J&erry", "E", "Tom & Jerry", "Tom &amp; J<u>e</u>rry"},
           {"<b>Film</b>", "", "<b>Film</b>", "&lt;b&gt;Film&lt;/b&gt;"},
           {"At the end&", "", "At the end&", "At the end&amp;"},
           {"", "", "", ""}}) {
    EXPECT_EQ(Mnemonic::letter(text), letter);
    EXPECT_EQ(Mnemonic::plainText(text), plain);
    EXPECT_EQ(Mnemonic::markedText(text, true), marked);
  }
}

TEST(WordingTest, WithoutTheKeyATipIsTheNameOfAControl) {
  EXPECT_EQ(Wording::withoutKey("Mute (M)"), "Mute");
  EXPECT_EQ(Wording::withoutKey("Playback speed ([ and ])"), "Playback speed");
  EXPECT_EQ(Wording::withoutKey("Volume"), "Volume");
}

}  // namespace tromelo::testing
