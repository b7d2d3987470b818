#include <QFile>
#include <QProcess>
#include <algorithm>

#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

/// The engine's own player on the same display, full screen, at the same moment of the clip. Dither
/// is off in both: its pattern is another one in each run.
class EngineAlone {
 public:
  EngineAlone(const QString& clip, const QString& ipc) {
    process_.start(
        QStringLiteral("mpv"),
        {QStringLiteral("--no-config"), QStringLiteral("--vo=gpu-next"),
         QStringLiteral("--gpu-api=vulkan"), QStringLiteral("--gpu-sw=yes"),
         QStringLiteral("--ao=null"), QStringLiteral("--pause"), QStringLiteral("--fullscreen"),
         QStringLiteral("--osc=no"), QStringLiteral("--osd-level=0"),
         QStringLiteral("--target-colorspace-hint=yes"), QStringLiteral("--dither-depth=no"),
         QStringLiteral("--input-ipc-server=") + ipc, clip});
  }
  ~EngineAlone() {
    process_.terminate();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

void stopAt(EngineProbe& engine, double seconds) {
  engine.set(QStringLiteral("pause"), true);
  engine.command({QStringLiteral("seek"), seconds, QStringLiteral("absolute+exact")});
  ASSERT_TRUE(engine.waitFor(QStringLiteral("seeking"), false));
  ASSERT_TRUE(engine.waitFor(QStringLiteral("time-pos"), seconds));
}

/// The part of a full-screen window that the display shows: the headless Wayland host puts such a
/// window anywhere on its grey.
QImage shownPart(const QImage& shot) {
  const QRgb grey = qRgb(0x20, 0x24, 0x28);
  QPoint corner;
  while (corner.x() < shot.width() - 1 && shot.pixel(corner.x(), shot.height() - 1) == grey)
    ++corner.rx();
  while (corner.y() < shot.height() - 1 && shot.pixel(shot.width() - 1, corner.y()) == grey)
    ++corner.ry();
  return shot.copy(QRect(corner, shot.rect().bottomRight()));
}

/// The engine rounds a level up or down from one redraw of a frame to the next, in a pixel here and
/// there. Nothing else may differ.
bool isSamePicture(const QImage& a, const QImage& b) {
  const QSize common = a.size().boundedTo(b.size());
  qint64 off = 0;
  for (int y = 0; y < common.height(); ++y)
    for (int x = 0; x < common.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      const int most = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                 std::abs(qBlue(p) - qBlue(q))});
      if (most > 1) return false;
      off += most;
    }
  return common.width() > 200 && common.height() > 200 &&
         off * 50 < qint64(common.width()) * common.height();
}

TEST_F(EndToEnd, ShowsTheEnginesPicturePixelForPixel) {
  QImage alone;
  {
    const QString ipc = player.homePath() + QStringLiteral("/alone");
    EngineAlone mpv(clip("sample.mp4"), ipc);
    EngineProbe engine(ipc);
    ASSERT_TRUE(waitFor([&] { return engine.get(QStringLiteral("vo-configured")).toBool(); }));
    stopAt(engine, 2);
    ASSERT_TRUE(screen::waitForShot(QStringLiteral("engine-alone"), [&](const QImage& image) {
      return showsTestPicture(image) && image == std::exchange(alone, image);
    }));
  }
  player.start({clip("sample.mp4")});
  ASSERT_TRUE(player.waitUntilPlaying());
  EngineProbe engine = probe();
  engine.set(QStringLiteral("dither-depth"), QStringLiteral("no"));
  engine.set(QStringLiteral("fullscreen"), true);
  ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == alone.size(); }));
  ASSERT_TRUE(engine.waitFor(QStringLiteral("osd-width"), alone.width()));
  stopAt(engine, 2);
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("same-picture"), [&](const QImage& image) {
    return isSamePicture(shownPart(image), shownPart(alone));
  }));
}

}  // namespace
}  // namespace tromelo::testing
