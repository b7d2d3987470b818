#pragma once

#include <gtest/gtest.h>

#include <QProcess>

#include "Screen.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// A drag from another program to the player.
struct Drag {
  Drag(const QString& type, const QStringList& lines) {
    source_.start(TROMELO_DRAG_SOURCE, QStringList{type} + lines);
    EXPECT_TRUE(waitFor([this] { return says("ready"); }));
  }
  ~Drag() {
    source_.kill();
    source_.waitForFinished();
  }

  /// What came of it. With `isWanted` it is let go when the player says that it would take it.
  QString drop(QPoint place, bool isWanted) {
    int moves = 0;
    // A hand is never quite still, and takes again what it hasn't got hold of.
    EXPECT_TRUE(waitFor([&] {
      if (moves % kPatience == 0) take();
      screen::movePointer(place + QPoint(moves++ % 2, 0));
      return isWanted ? says("would copy") : moves == 20;
    }));
    said_.clear();
    screen::releaseButton();
    EXPECT_TRUE(waitFor([this] { return says("did "); }));
    return said_.section("did ", 1).trimmed();
  }

 private:
  static constexpr int kPatience = 1500;  // moves; the player may be slow

  void take() {
    screen::releaseButton();
    said_.clear();
    screen::movePointer({20, 20});
    screen::pressButton();
  }
  bool says(const char* text) {
    said_ += QString::fromUtf8(source_.readAllStandardOutput());
    return said_.contains(text);
  }

  QProcess source_;
  QString said_;
};

}  // namespace tromelo::testing
