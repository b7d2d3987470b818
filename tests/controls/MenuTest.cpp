#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include "controls/Mnemonic.h"
#include "support/Reader.h"
#include "support/Table.h"
#include "support/ViewDriver.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

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

class MenuTest : public ::testing::Test, protected ViewDriver {
 protected:
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
  for (const auto& [name, hand, runs] : Table<const char*, std::function<void()>, const char*>{
           {"Alt and its letters",
            [this] {
              QTest::keyPress(window_.get(), Qt::Key_Alt);
              key(Qt::Key_F, Qt::AltModifier);
              QTest::keyRelease(window_.get(), Qt::Key_Alt);
              key(Qt::Key_Q);
            },
            "quit"},
           {"Alt alone, then down over what is disabled",
            [this] {
              key(Qt::Key_Alt);
              key(Qt::Key_Down);
              key(Qt::Key_Return);
            },
            "quit"},
           {"F10, right, Enter",
            [this] {
              key(Qt::Key_F10);
              key(Qt::Key_Right);
              key(Qt::Key_Return);
            },
            "about"},
           {"Alt and the letters of another menu",
            [this] {
              key(Qt::Key_H, Qt::AltModifier);
              key(Qt::Key_A);
            },
            "about"},
           {"a disabled letter",
            [this] {
              key(Qt::Key_H, Qt::AltModifier);
              key(Qt::Key_Escape);
              key(Qt::Key_F10);
              key(Qt::Key_N);
              key(Qt::Key_Escape);
            },
            ""},
           {"a letter while nothing is open", [this] { key(Qt::Key_O); }, ""},
           {"Alt with something in between",
            [this] {
              QTest::keyPress(window_.get(), Qt::Key_Alt);
              QTest::keyClick(window_.get(), Qt::Key_X, Qt::AltModifier);
              QTest::keyRelease(window_.get(), Qt::Key_Alt);
              key(Qt::Key_Q);
            },
            ""},
       }) {
    window_->setTitle("-");
    hand();
    EXPECT_EQ(ran(), runs) << name;
    EXPECT_TRUE(waitFor([this] { return !isOpen("file") && !isOpen("help"); })) << name;
    EXPECT_EQ(window_->activeFocusItem()->objectName(), "content") << name;
  }
}

TEST_F(MenuTest, IsKnownAndUsedWithoutBeingSeen) {
  using enum QAccessible::Role;
  Reader reader(*window_);
  reader.expect({{MenuItem, "File"}});
  reader.press(MenuItem, "File");
  EXPECT_EQ(reader.find(MenuItem, "Open")->text(QAccessible::Description), "Ctrl+O");
  reader.press(MenuItem, "Open");
  EXPECT_EQ(ran(), "open");
}

TEST(MnemonicTest, TakesTheLetterFromTheText) {
  struct Row {
    const char* text;
    const char* letter;
    const char* plain;
    const char* marked;
  };
  const Row rows[] = {
      {"&Open…", "O", "Open…", "<u>O</u>pen…"},
      {"Save &as", "A", "Save as", "Save <u>a</u>s"},
      {"Tom && J&erry", "E", "Tom & Jerry", "Tom &amp; J<u>e</u>rry"},
      {"<b>Film</b>", "", "<b>Film</b>", "&lt;b&gt;Film&lt;/b&gt;"},
      {"At the end&", "", "At the end&", "At the end&amp;"},
      {"", "", "", ""},
  };
  for (const Row& row : rows) {
    const QString text = row.text;
    EXPECT_EQ(Mnemonic::letter(text), row.letter) << row.text;
    EXPECT_EQ(Mnemonic::plainText(text), row.plain) << row.text;
    EXPECT_EQ(Mnemonic::markedText(text, true), row.marked) << row.text;
  }
}

}  // namespace
}  // namespace tromelo::testing
