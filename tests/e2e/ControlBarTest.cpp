#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

/// A person's pointer on the control bar, on X11.
class ControlBar : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no pointer";
  }

  void start(const char* name) {
    screen::movePointer({5, 700});
    player.start({clip(name)});
    ASSERT_TRUE(player.waitUntilPlaying());
    const QByteArray title = QByteArray(name).split('.').first();
    ASSERT_TRUE(waitFor([&] { return isActive(title.constData()); }));
    id = window(title.constData());
    ASSERT_FALSE(id.isEmpty());
  }

  QRect frame() { return screen::geometryOf(id); }
  QRect bar() {
    const QRect window = frame();
    const int width = std::min(760, window.width() - 40);
    return {window.x() + (window.width() - width) / 2, window.y() + window.height() - 22 - 86,
            width, 86};
  }
  /// Along the upper row, from its left end; from its right end when negative.
  QPoint button(int x) {
    const QRect place = bar();
    return {x < 0 ? place.x() + place.width() - 18 + x : place.x() + 18 + x, place.y() + 30};
  }
  QPoint seekBar(double part) {
    const QRect place = bar();
    const double from = place.x() + 18 + 66 + 8;
    return {qRound(from + part * (place.width() - 2 * (18 + 66 + 8))), place.y() + 67};
  }

  QString id;
};

constexpr int kMute = 9;
constexpr int kHalfVolume = 18 + 8 + 8 + 38;
constexpr int kSpeed = -4 * 36 - 19;
constexpr int kInfo = -36 - 14;
constexpr int kFullscreen = -14;

TEST_F(ControlBar, ItsControlsDoAsTheySay) {
  ASSERT_NO_FATAL_FAILURE(start("sample.mp4"));
  EngineProbe engine = probe();
  screen::click(QPoint(bar().center().x(), button(0).y()));
  ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Paused")));
  struct Row {
    const char* property;
    QPoint place;
    QJsonValue value;
  };
  const QPoint speed = button(kSpeed);
  const QPoint doubleSpeed(speed.x(), speed.y() - 11 - 8 - 208 + 5 + 22 * 7 + 11);
  for (const Row& row : {Row{"mute", button(kMute), true}, Row{"mute", button(kMute), false},
                         Row{"volume", button(kHalfVolume), 50}}) {
    screen::click(row.place);
    EXPECT_TRUE(engine.waitFor(QString::fromLatin1(row.property), row.value)) << row.property;
  }
  screen::click(speed);
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("bar-speeds"), [&](const QImage& image) {
    return image.pixelColor(doubleSpeed + QPoint(30, 0)).lightness() < 60;
  }));
  screen::click(doubleSpeed);
  EXPECT_TRUE(engine.waitFor(QStringLiteral("speed"), 2));
  const auto isAt = [&](double seconds) {
    return std::abs(engine.get(QStringLiteral("time-pos")).toDouble() - seconds) < 0.2;
  };
  screen::click(seekBar(0.5));
  EXPECT_TRUE(player.waitUntil([&] { return isAt(5); }));
  screen::dragPointer({seekBar(0.5), seekBar(0.6), seekBar(0.2)});
  EXPECT_TRUE(player.waitUntil([&] { return isAt(2); }));
  for (const bool fullscreen : {true, false}) {
    screen::click(button(kFullscreen));
    EXPECT_TRUE(engine.waitFor(QStringLiteral("fullscreen"), fullscreen));
    ASSERT_TRUE(player.waitFor(QStringLiteral("fullscreen"), fullscreen ? "yes" : "no"));
  }
}

TEST_F(ControlBar, IsReadOverAnyPicture) {
  for (const char* clipName : {"white.mp4", "black.mp4"})
    for (const char* rendering : {"glass", "material"}) {
      SCOPED_TRACE(std::string(clipName) + " " + rendering);
      player.environment.insert(QStringLiteral("TROMELO_GLASS"), QString::fromLatin1(rendering));
      ASSERT_NO_FATAL_FAILURE(start(clipName));
      screen::click(button(kInfo));
      const QRect place = bar();
      const QPoint info = button(kInfo);
      const QString name =
          QStringLiteral("bar-%1-%2")
              .arg(QString::fromLatin1(clipName).first(5), QString::fromLatin1(rendering));
      EXPECT_TRUE(screen::waitForShot(name, [&](const QImage& image) {
        int lightest = 0;
        for (int x = -10; x < 10; ++x)
          lightest = std::max(lightest, image.pixelColor(info + QPoint(x, 0)).lightness());
        return image.pixelColor(place.center().x(), place.y() + 5).lightness() < 110 &&
               lightest > 190;
      }));
      ASSERT_EQ(player.quit(), 0);
    }
}

}  // namespace
}  // namespace tromelo::testing
