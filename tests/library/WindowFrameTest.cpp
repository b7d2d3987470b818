#include "library/WindowFrame.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QJsonArray>
#include <QScreen>

#include "support/Home.h"

namespace tromelo::testing {

struct WindowFrameTest : ::testing::Test, protected Home {
  WindowFrame frame_{defaults_, "Test"};
  const QRect screen_ = QGuiApplication::primaryScreen()->availableGeometry();
};

TEST_F(WindowFrameTest, ComesBackWhereItWasOrWhereAPersonCanReachIt) {
  const QRect before(screen_.topLeft() + QPoint(20, 30), QSize(300, 200));
  frame_.save(before);
  EXPECT_EQ(frame_.restored({640, 360}), before);
  frame_.save(QRect(screen_.topLeft(), screen_.size() * 2));
  EXPECT_EQ(frame_.restored({640, 360}), screen_);
  frame_.save(QRect(screen_.bottomRight() - QPoint(120, 120), QSize(100, 100)));
  const QRect frame = frame_.restored({640, 360}, {300, 200});
  EXPECT_EQ(frame.size(), QSize(300, 200)) << "the least for its content";
  EXPECT_TRUE(screen_.contains(frame));
}

TEST_F(WindowFrameTest, ForgetsAScreenThatIsGoneAndNonsense) {
  for (const QJsonValue& stored :
       {QJsonValue(QJsonArray{100000, 100000, 300, 200}), QJsonValue(QJsonArray{0, 0, -5, 10}),
        QJsonValue(QJsonArray{1, 2}), QJsonValue("here"), QJsonValue()}) {
    defaults_.set("windowFrame Test", stored);
    EXPECT_EQ(frame_.restored({200, 100}).size(), QSize(200, 100));
  }
}

TEST_F(WindowFrameTest, BeginsInTheMiddleAndFitsTheScreen) {
  EXPECT_EQ(frame_.restored({200, 100}).center(), screen_.center());
  EXPECT_TRUE(screen_.contains(frame_.restored({10000, 10000})));
}

}  // namespace tromelo::testing
