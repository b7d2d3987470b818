#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <utility>

#include "player/Commands.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

TEST(LibraryMenuBarTest, EveryEntryAndEveryKeyRunsItsCommand) {
  QString ran;
  const auto command = [&ran](const char* name) { return [&ran, name] { ran += name; }; };
  Commands commands({.open = command("open"),
                     .togglePrivacy = command("privacy"),
                     .quit = command("quit"),
                     .showSettings = command("settings"),
                     .showLibrary = command("library"),
                     .showShortcuts = command("shortcuts"),
                     .showAbout = command("about")});
  QQmlEngine engine;
  QQuickWindow window;
  window.resize(760, 480);
  QQmlComponent component(&engine, "Tromelo.Library", "LibraryMenuBar");
  const std::unique_ptr<QQuickItem> bar(
      qobject_cast<QQuickItem*>(component.createWithInitialProperties(
          {{"commands", QVariant::fromValue(&commands)}, {"isPrivate", false}})));
  ASSERT_TRUE(bar) << component.errorString().toStdString();
  QQuickItem content(window.contentItem());
  content.setFocus(true);
  bar->setParentItem(window.contentItem());
  window.show();
  window.requestActivate();
  ASSERT_TRUE(waitFor([&] { return window.isActive(); }));

  const auto type = [&window](QKeyCombination keys) {
    QTest::keyClick(&window, keys.key(), keys.keyboardModifiers());
    settle();
  };
  const Table<const char*, Qt::Key, Qt::Key> rows{
      {"open", Qt::Key_F, Qt::Key_O},    {"privacy", Qt::Key_F, Qt::Key_P},
      {"quit", Qt::Key_F, Qt::Key_Q},    {"settings", Qt::Key_E, Qt::Key_S},
      {"library", Qt::Key_W, Qt::Key_L}, {"shortcuts", Qt::Key_H, Qt::Key_K},
      {"about", Qt::Key_H, Qt::Key_A}};
  for (const auto& [runs, menu, letter] : rows) {
    type(Qt::ALT | menu);
    type(letter);
    EXPECT_EQ(std::exchange(ran, {}), runs);
    const auto* entry = bar->findChild<QObject*>(QString(runs) + "Command");
    ASSERT_TRUE(entry) << runs;
    const QKeySequence keys(entry->property("keys").toString());
    if (keys.isEmpty()) continue;
    type(keys[0]);
    EXPECT_EQ(std::exchange(ran, {}), runs) << "by its keys";
  }
  QEvent sessionEnds(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &sessionEnds);
  EXPECT_EQ(ran, "quit");
}

}  // namespace tromelo::testing
