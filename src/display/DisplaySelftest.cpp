#include "display/DisplaySelftest.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <chrono>

#include "display/PrivateDisplay.h"
#include "display/SelftestLines.h"
#include "display/VideoSinkKind.h"
#include "display/VulkanDevices.h"

namespace tromelo {

namespace {

constexpr std::chrono::seconds kFrameLimit{10};

PrivateDisplay::Output screenOutput() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return {QSize(1920, 1080), 60'000};
  return {screen->size() * screen->devicePixelRatio(), qRound(screen->refreshRate() * 1000)};
}

/// Keeps the first frame that it is given.
class FirstFrameSink final : public VideoSink {
 public:
  using VideoSink::VideoSink;

  void commit(std::shared_ptr<Frame> frame) override {
    const std::scoped_lock lock(mutex_);
    if (frame_ || !frame) return;
    frame_ = std::move(frame);
    tell(&Events::committed);
  }
  std::shared_ptr<Frame> take() {
    const std::scoped_lock lock(mutex_);
    return std::move(frame_);
  }

 private:
  std::mutex mutex_;
  std::shared_ptr<Frame> frame_;
};

/// The first frame of the first window; none when there is none in time.
std::shared_ptr<Frame> firstFrame(PrivateDisplay& display) {
  QEventLoop loop;
  const auto sink = std::make_shared<FirstFrameSink>(
      &loop, VideoSink::Events{.committed = [&loop] { loop.quit(); }});
  QObject::connect(
      &display, &PrivateDisplay::windowAdded, &loop,
      [&sink](EngineWindow* window) { window->setSink(sink); }, Qt::SingleShotConnection);
  QTimer::singleShot(kFrameLimit, &loop, &QEventLoop::quit);
  loop.exec();
  sink->disconnect();
  return sink->take();
}

QStringList engineLines(PrivateDisplay& display, const std::string& vulkanDevice,
                        const SelftestEngine& engine) {
  if (!engine.start) return {QStringLiteral("engine's frame: no engine was asked")};
  engine.start(display.socketPath(), vulkanDevice);
  const auto frame = firstFrame(display);
  const QString decoder = engine.hardwareDecoder();
  QStringList lines{frame ? frameLine(*frame) : QStringLiteral("engine's frame: none came")};
  if (frame) lines += importLine(*frame);
  lines +=
      QStringLiteral("hardware decoder: ") + (decoder.isEmpty() ? QStringLiteral("none") : decoder);
  engine.stop();
  return lines;
}

}  // namespace

QString displaySelftest(const SceneDrawing& drawing, const SelftestEngine& engine) {
  QStringList lines = hostLines() + eglLines() + vulkanLines();
  const VideoSinkKind kind =
      chooseVideoSink({.asked = qgetenv("TROMELO_PICTURE"),
                       .drawsWithOpenGl = [&drawing] { return drawing.withOpenGl; }});
  const std::string device =
      kind.dmabuf ? vulkanUuidForScene(kind.dmabuf->mainDevice) : std::string();
  PrivateDisplay display;
  if (const auto fault = display.start(screenOutput(), kind)) {
    lines += QStringLiteral("private display: ") + *fault;
  } else {
    lines += displayLines(display.socketPath());
    lines += kind.report;
    lines += QStringLiteral("picture: ") + reportOf(kind.way);
    lines += QStringLiteral("sink: ") + kind.name;
    if (kind.way.obstacle != PictureWay::Obstacle::none)
      lines.last() += drawing.withOpenGl ? QStringLiteral(", drawn with OpenGL")
                                         : QStringLiteral(", drawn by the processor");
    lines += QStringLiteral("engine's Vulkan device: ") +
             (device.empty() ? QStringLiteral("its own choice") : QString::fromStdString(device));
    lines += engineLines(display, device, engine);
  }
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

}  // namespace tromelo
