#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QStringList>
#include <QWindow>
#include <map>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// A person who doesn't see a window, and knows of it what assistive technology is told.
struct Reader {
  using Role = QAccessible::Role;
  explicit Reader(QWindow& window);
  ~Reader();

  /// Waits for what can be seen with this role and name; without it the test fails.
  QAccessibleInterface* find(Role role, const char* name) {
    QAccessibleInterface* found = nullptr;
    const auto look = [&](QAccessibleInterface* one, const QString&) {
      if (one->role() == role && one->text(QAccessible::Name) == name) found = one;
    };
    EXPECT_TRUE(waitFor([&] { return walk(look), found; }, limit())) << role << ' ' << name;
    return found;
  }
  QAccessible::State state(Role role, const char* name) {
    QAccessibleInterface* const found = find(role, name);
    return found ? found->state() : QAccessible::State();
  }
  void press(Role role, const char* name) {
    if (QAccessibleInterface* const found = find(role, name))
      found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
  }
  void set(Role role, const char* name, double value) {
    if (QAccessibleInterface* const found = find(role, name))
      found->valueInterface()->setCurrentValue(value);
  }

  /// All of these are there.
  void expect(Role role, const std::vector<const char*>& names) {
    for (const char* name : names) find(role, name);
  }
  /// Nothing that can be used lacks a name or is like another.
  void expectNames() {
    std::map<QString, int> times;
    walk([&](QAccessibleInterface* one, const QString& within) {
      QAccessibleActionInterface* const actions = one->actionInterface();
      if (!actions || actions->actionNames().isEmpty()) return;
      const QString name = one->text(QAccessible::Name);
      EXPECT_FALSE(name.isEmpty() || one->rect().isEmpty()) << one->role() << within.toStdString();
      ++times[within + name + '|' + one->text(QAccessible::Description)];
    });
    for (const auto& [object, count] : times) EXPECT_EQ(count, 1) << object.toStdString();
  }

  static inline QStringList heard;  // what was announced since it began

 private:
  using Visit = std::function<void(QAccessibleInterface*, const QString& within)>;

  /// What follows from a failure isn't waited for.
  static std::chrono::seconds limit() {
    return std::chrono::seconds(::testing::Test::HasFailure() ? 0 : 10);
  }
  void walk(const Visit& visit) {
    walk(QAccessible::queryAccessibleInterface(&window_), QString(), visit);
  }
  static void walk(QAccessibleInterface* whole, const QString& within, const Visit& visit) {
    for (int i = 0; i < whole->childCount(); ++i) {
      QAccessibleInterface* const one = whole->child(i);
      if (!one || one->state().invisible) continue;
      visit(one, within);
      walk(one, within + one->text(QAccessible::Name) + '/', visit);
    }
  }

  QWindow& window_;
};

}  // namespace tromelo::testing
