#include <QFile>
#include <QProcess>
#include <cstdlib>

#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// The engine's own player on the same display, at the same size and moment of the clip. Dither
/// is off in both: its pattern is another one in each run.
struct EngineAlone {
  EngineAlone(const QString& clip, const QString& ipc) {
    process_.start("mpv", {"--no-config", "--vo=gpu-next", "--gpu-api=vulkan", "--gpu-sw=yes",
                           "--ao=null", "--pause", "--border=no",
                           QString("--fullscreen=") + (screen::isX11() ? "yes" : "no"), "--osc=no",
                           "--osd-level=0", "--target-colorspace-hint=yes", "--dither-depth=no",
                           QString("--input-ipc-server=") + ipc, clip});
  }
  ~EngineAlone() {
    process_.terminate();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

void stopAt(EngineProbe& engine, double seconds) {
  engine.set("pause", true);
  engine.command({"seek", seconds, "absolute+exact"});
  ASSERT_TRUE(engine.waitFor("seeking", false));
  ASSERT_TRUE(engine.waitFor("time-pos", seconds));
}

/// Full screen on X11. The headless Wayland host puts such a window half beside its screen, and the
/// window of the clip's own size anywhere on its grey.
QImage shownPicture(const QImage& shot) {
  if (screen::isX11()) return shot;
  const QRgb grey = qRgb(0x20, 0x24, 0x28);
  QRect picture;
  for (int y = 0; y < shot.height(); ++y)
    for (int x = 0; x < shot.width(); ++x)
      if (shot.pixel(x, y) != grey) picture |= QRect(x, y, 1, 1);
  return shot.copy(picture);
}

// The controls are shown while the clip is paused.
constexpr int kBelowTheCorners = 70;
constexpr int kAboveTheBar = 140;

/// The engine rounds a level up or down from one redraw of a frame to the next. Nothing else may
/// differ where no controls are.
bool isSamePicture(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return false;
  for (int y = kBelowTheCorners; y < a.height() - kAboveTheBar; ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      if (std::abs(qRed(p) - qRed(q)) > 1 || std::abs(qGreen(p) - qGreen(q)) > 1 ||
          std::abs(qBlue(p) - qBlue(q)) > 1)
        return false;
    }
  return true;
}

TEST_F(EndToEnd, ShowsTheEnginesPicturePixelForPixel) {
  QImage alone;
  {
    const QString ipc = player.homePath() + "/alone";
    EngineAlone mpv(clip("sample.mp4"), ipc);
    EngineProbe engine(ipc);
    ASSERT_TRUE(waitFor([&] { return engine.get("vo-configured").toBool(); }));
    stopAt(engine, 2);
    ASSERT_TRUE(screen::waitForShot("engine-alone", [&](const QImage& image) {
      return showsTestPicture(image) && image == std::exchange(alone, image);
    }));
    alone = shownPicture(alone);
  }
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  engine.set("dither-depth", "no");
  engine.set("fullscreen", screen::isX11());
  ASSERT_TRUE(engine.waitFor("osd-width", alone.width()));
  ASSERT_TRUE(engine.waitFor("osd-height", alone.height()));
  stopAt(engine, 2);
  EXPECT_TRUE(screen::waitForShot("same-picture", [&](const QImage& image) {
    return isSamePicture(shownPicture(image), alone);
  }));
}

}  // namespace tromelo::testing
