// An engine window in its host window, drawn by the processor on a host that isn't seen.
#include "player/PlayerWindow.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQmlComponent>

#include "support/WaitFor.h"

namespace tromelo::testing {

struct PlayerWindowTest : ::testing::Test {
  PlayerWindowTest() { tellTitle("Sintel"); }

  void tellTitle(const char* title) {
    engineWindow_.update({.visible = true, .title = title, .size = {640, 360}});
  }
  PlayerHostWindow& host() { return window_.host(); }

  QQmlEngine engine_;
  const ReducedMotion moving_{"0", {}};
  HostHeadroom headroom_;
  const PlayerOverlayFactory noOverlay_;
  const VideoSinkKind sinkKind_ =
      chooseVideoSink({.asked = "scene", .drawsWithOpenGl = [] { return false; }});
  EngineWindow engineWindow_{[](const EngineWindow::Task&) {}, sinkKind_};
  PlayerWindow window_{engineWindow_, std::make_unique<PlayerHostWindow>(engine_, moving_),
                       noOverlay_, headroom_};
};

TEST_F(PlayerWindowTest, HasTheTitleOfTheEngines) {
  EXPECT_EQ(host().title(), "Sintel");
  tellTitle("");
  EXPECT_EQ(host().title(), QGuiApplication::applicationDisplayName());
}

TEST_F(PlayerWindowTest, IsInFullScreenUntilTheHostHasEndedIt) {
  int left = 0;
  QObject::connect(&window_, &VideoWindow::leftFullscreen, &window_, [&] { ++left; });
  window_.dress({520, 300});
  Q_EMIT engineWindow_.fullscreenRequested(true);
  settle();
  EXPECT_TRUE(window_.isFullscreen());
  Q_EMIT engineWindow_.fullscreenRequested(false);
  EXPECT_TRUE(window_.isFullscreen());
  EXPECT_EQ(left, 0) << "it was only asked for";
  EXPECT_TRUE(waitFor([&] { return left == 1; }));
  EXPECT_FALSE(window_.isFullscreen());
}

TEST_F(PlayerWindowTest, FadesWhatIsComposed) {
  QQmlComponent grey(&engine_);
  grey.setData("import QtQuick\nRectangle { color: '#c8c8c8'; anchors.fill: parent }", {});
  const std::unique_ptr<QQuickItem> picture(qobject_cast<QQuickItem*>(
      grey.createWithInitialProperties({{"parent", QVariant::fromValue(&host().scene())}})));
  ASSERT_TRUE(picture);
  const auto shown = [this](double opacity) {
    window_.setOpacity(opacity);
    return host().grabWindow().pixelColor(300, 150).red();
  };
  host().setColor(Qt::white);  // shines through by a half: the picture's 100, and 127 of its own
  EXPECT_NEAR(shown(0.5), 227, 1);
  EXPECT_EQ(shown(1), 200);
  EXPECT_FALSE(host().scene().property("layer").value<QObject*>()->property("enabled").toBool())
      << "frames that play are drawn once";
}

TEST_F(PlayerWindowTest, WhatIsTypedIntoHasTheKeysFirst) {
  QQmlComponent component(&engine_);
  component.setData("import QtQuick\nTextInput {}", {});
  const std::unique_ptr<QQuickItem> field(qobject_cast<QQuickItem*>(
      component.createWithInitialProperties({{"parent", QVariant::fromValue(&host().scene())}})));
  ASSERT_TRUE(field);
  std::string monitored;
  window_.setKeyMonitor([&](const KeyPress& press) {
    monitored += QKeySequence(press.key).toString().toStdString() + ' ';
    return true;
  });
  const auto press = [this](int key, const QString& text, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&host(), &event);
  };
  const auto pressAll = [&] {
    press(Qt::Key_Space, " ");
    press(Qt::Key_M, "m");
    press(Qt::Key_Right, {});
    press(Qt::Key_W, "\x17", Qt::ControlModifier);
    press(Qt::Key_Escape, "\x1b");
    return std::exchange(monitored, {});
  };
  EXPECT_EQ(pressAll(), "Space M Right W Esc ");
  field->forceActiveFocus();
  EXPECT_EQ(pressAll(), "W Esc ");
  EXPECT_EQ(field->property("text"), " m");
  field->setProperty("maximumLength", 2);
  EXPECT_EQ(pressAll(), "W Esc ") << "nor what there is no room for";
  EXPECT_EQ(field->property("text"), " m");
  field->setFocus(false);
  EXPECT_EQ(pressAll(), "Space M Right W Esc ");
}

TEST_F(PlayerWindowTest, ShowsThePointerAgainWhenItMoves) {
  host().hidePointer();
  EXPECT_EQ(host().cursor().shape(), Qt::BlankCursor);
  const QPointF place(300, 200);
  QMouseEvent move(QEvent::MouseMove, place, host().position() + place, Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(&host(), &move);
  EXPECT_NE(host().cursor().shape(), Qt::BlankCursor);
}

}  // namespace tromelo::testing
