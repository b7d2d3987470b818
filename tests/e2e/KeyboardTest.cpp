#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

/// A person's keyboard.
class Keyboard : public EndToEnd {
 protected:
  void SetUp() override {
    screen::movePointer({5, 700});
    player.start({clip("tracks.mkv")});
    ASSERT_TRUE(player.waitUntilPlaying());
    ASSERT_TRUE(player.waitUntil([&] { return isActive("tracks"); }));
    screen::press(QStringLiteral("space"));
    ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Paused")));
  }

  double number(const char* property) {
    return probe().get(QString::fromLatin1(property)).toDouble();
  }
  /// By the window manager, which the window follows later than the engine asks.
  bool isFullscreen() {
    if (!screen::isX11()) return player.windowSize() == screen::shot().size();
    return screen::run(QStringLiteral("xprop"),
                       {QStringLiteral("-id"), window("tracks"), QStringLiteral("_NET_WM_STATE")})
        .contains(QStringLiteral("FULLSCREEN"));
  }
  /// Presses until that key has been held long enough.
  [[nodiscard]] bool hold(const char* key, const std::function<bool()>& enough) {
    const QString name = QString::fromLatin1(key);
    screen::holdKeys(name);
    const bool held = player.waitUntil(enough);
    screen::letGoOfKeys(name);
    return held;
  }
  /// Whatever was pressed before has been done.
  [[nodiscard]] bool drain() {
    const bool muted = probe().get(QStringLiteral("mute")).toBool();
    screen::press(QStringLiteral("m"));
    return probe().waitFor(QStringLiteral("mute"), !muted);
  }
};

TEST_F(Keyboard, DrivesThePlayer) {
  EngineProbe engine = probe();
  struct Row {
    const char* keys;
    const char* property;
    QJsonValue value;
  };
  for (const Row& row : {
           Row{"Home", "pause", true},  // nobody's
           Row{"bracketright", "speed", 1.25},
           Row{"bracketleft", "speed", 1},
           Row{"Down", "volume", 95},
           Row{"KP_Up", "volume", 100},
           Row{"shift+n", "chapter", 1},
           Row{"g", "sub-delay", -0.05},
           Row{"h", "sub-delay", 0},
           Row{"l", "loop-file", QStringLiteral("inf")},
           Row{"l", "loop-file", false},
           Row{"space", "pause", false},
           Row{"e", "pause", true},
           Row{"Left", "time-pos", 0},
       }) {
    screen::press(QString::fromLatin1(row.keys));
    EXPECT_TRUE(engine.waitFor(QString::fromLatin1(row.property), row.value)) << row.keys;
  }
  screen::press(QStringLiteral("shift+Right"));
  EXPECT_TRUE(player.waitUntil([&] { return std::abs(number("time-pos") - 3) < 1; }));

  const QString panel = QStringLiteral("panel");
  for (const auto& [keys, open] : {std::pair{"u", "tracks"},
                                   {"c", "chapters"},
                                   {"c", "none"},
                                   {"question", "shortcuts"},
                                   {"slash", "none"},
                                   {"q", "queue"}}) {
    screen::press(QString::fromLatin1(keys));
    EXPECT_TRUE(player.waitFor(panel, QString::fromLatin1(open))) << keys;
  }
  screen::press(QStringLiteral("f"));
  ASSERT_TRUE(player.waitUntil([&] { return isFullscreen(); }));
  screen::press(QStringLiteral("Escape"));
  EXPECT_TRUE(player.waitFor(panel, QStringLiteral("none")));
  EXPECT_EQ(player.said(QStringLiteral("fullscreen")), QStringLiteral("yes"));
  screen::press(QStringLiteral("Escape"));
  ASSERT_TRUE(player.waitUntil([&] { return !isFullscreen(); }));
  EXPECT_TRUE(player.waitFor(QStringLiteral("fullscreen"), QStringLiteral("no")));
  EXPECT_TRUE(player.isRevealed());
  screen::press(QStringLiteral("Escape"));
  EXPECT_TRUE(player.waitFor(QStringLiteral("window"), QStringLiteral("none")));
}

TEST_F(Keyboard, AHeldKeyStopsWhenItIsLetGo) {
  for (const auto& [key, property, enough] :
       {std::tuple{"h", "sub-delay", 1.0}, {"e", "time-pos", 2.0}}) {
    SCOPED_TRACE(key);
    EXPECT_TRUE(hold(key, [&] { return number(property) > enough; }));
    ASSERT_TRUE(drain());
    EXPECT_TRUE(probe().waitFor(QStringLiteral("pause"), true));
    const double value = number(property);
    ASSERT_TRUE(drain());
    EXPECT_EQ(number(property), value);
  }
}

TEST_F(Keyboard, KeysOfTheProgramPass) {
  ASSERT_TRUE(player.waitUntil([&] { return window("^Tromelo$").isEmpty(); }));
  screen::press(QStringLiteral("ctrl+shift+l"));
  EXPECT_TRUE(player.waitUntil([&] { return isActive("^Tromelo$"); }));
  screen::activate(player.processId(), QStringLiteral("tracks"));
  ASSERT_TRUE(player.waitUntil([&] { return isActive("tracks"); }));
  screen::press(QStringLiteral("ctrl+q"));
  EXPECT_EQ(player.waitForEnd(), 0);
}

}  // namespace
}  // namespace tromelo::testing
