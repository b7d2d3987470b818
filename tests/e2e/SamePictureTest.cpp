#include <QFile>
#include <QProcess>

#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

/// The engine's own player on the same display, full screen, at the same moment of the clip.
class EngineAlone {
 public:
  EngineAlone(const QString& clip, const QString& ipc) {
    process_.start(
        QStringLiteral("mpv"),
        {QStringLiteral("--no-config"), QStringLiteral("--vo=gpu-next"),
         QStringLiteral("--gpu-api=vulkan"), QStringLiteral("--gpu-sw=yes"),
         QStringLiteral("--ao=null"), QStringLiteral("--pause"), QStringLiteral("--fullscreen"),
         QStringLiteral("--osc=no"), QStringLiteral("--osd-level=0"),
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
  stopAt(engine, 2);
  engine.set(QStringLiteral("fullscreen"), true);
  ASSERT_TRUE(player.waitUntil([&] { return player.windowSize() == alone.size(); }));
  EXPECT_TRUE(screen::waitForShot(QStringLiteral("same-picture"),
                                  [&](const QImage& image) { return image == alone; }));
}

}  // namespace
}  // namespace tromelo::testing
