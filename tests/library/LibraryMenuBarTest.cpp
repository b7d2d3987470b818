#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <utility>

#include "player/Commands.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

TEST(LibraryMenuBarTest, EveryEntryAndEveryKeyRunsItsCommand) {
  QString ran;
  const auto command = [&ran](const char* name) { return [&ran, name] { ran += name; }; };
  Commands commands({.open = command("open"),
                     .quit = command("quit"),
                     .showSettings = command("settings"),
                     .showLibrary = command("library"),
                     .showShortcuts = command("shortcuts"),
                     .showAbout = command("about")});
  QQmlEngine engine;
  QQuickWindow window;
  window.resize(760, 480);
  QQmlComponent component(&engine, "Tromelo.Library", "LibraryMenuBar");
  const std::unique_ptr<QQuickItem> bar(qobject_cast<QQuickItem*>(
      component.createWithInitialProperties({{"commands", QVariant::fromValue(&commands)}})));
  ASSERT_TRUE(bar) << component.errorString().toStdString();
  QQuickItem content(window.contentItem());
  content.setFocus(true);
  bar->setParentItem(window.contentItem());
  window.show();
  window.requestActivate();
  ASSERT_TRUE(waitFor([&] { return window.isActive(); }));

  struct Row {
    const char* text;
    const char* keys;
    Qt::Key menu;
    Qt::Key letter;
    QKeyCombination key;
    const char* runs;
  };
  const QKeyCombination none(Qt::Key_unknown);
  const Row rows[] = {
      {"Open…", "Ctrl+O", Qt::Key_F, Qt::Key_O, Qt::CTRL | Qt::Key_O, "open"},
      {"Quit", "Ctrl+Q", Qt::Key_F, Qt::Key_Q, Qt::CTRL | Qt::Key_Q, "quit"},
      {"Settings…", "Ctrl+,", Qt::Key_E, Qt::Key_S, Qt::CTRL | Qt::Key_Comma, "settings"},
      {"Library", "Ctrl+Shift+L", Qt::Key_W, Qt::Key_L, Qt::CTRL | Qt::SHIFT | Qt::Key_L,
       "library"},
      {"Keyboard Shortcuts", "", Qt::Key_H, Qt::Key_K, none, "shortcuts"},
      {"About Tromelo", "", Qt::Key_H, Qt::Key_A, none, "about"},
  };
  for (const Row& row : rows) {
    const auto runsIt = [&] { return std::exchange(ran, {}) == row.runs; };
    QTest::keyClick(&window, row.menu, Qt::AltModifier);
    settle();
    QTest::keyClick(&window, row.letter);
    settle();
    EXPECT_TRUE(runsIt()) << row.text;
    if (row.key != none) {
      QTest::keyClick(&window, row.key.key(), row.key.keyboardModifiers());
      EXPECT_TRUE(runsIt()) << row.keys;
    }
    const auto* entry = bar->findChild<QObject*>(QString::fromLatin1(row.runs) + "Command");
    ASSERT_TRUE(entry) << row.text;
    EXPECT_EQ(entry->property("text").toString().remove(u'&'), row.text);
    EXPECT_EQ(entry->property("keys"), QVariant(row.keys));
  }
  QEvent sessionEnds(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &sessionEnds);
  EXPECT_EQ(ran, "quit");
}

}  // namespace
}  // namespace tromelo::testing
