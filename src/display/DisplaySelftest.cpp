#include "display/DisplaySelftest.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <chrono>

#include "display/PrivateDisplay.h"
#include "display/SceneItemSink.h"
#include "display/SelftestLines.h"
#include "display/VideoSink.h"
#include "display/VulkanDevices.h"

namespace tromelo {

namespace {

constexpr std::chrono::seconds frameLimit{10};

PrivateDisplay::Output screenOutput() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return {QSize(1920, 1080), 60'000};
  return {screen->size() * screen->devicePixelRatio(), qRound(screen->refreshRate() * 1000)};
}

/// The first frame of the first window that draws one; none when there is none in time.
std::shared_ptr<Frame> firstFrame(PrivateDisplay& display) {
  QEventLoop loop;
  std::shared_ptr<SceneItemSink> sink;
  std::shared_ptr<Frame> frame;
  const auto take = [&] {
    if (auto picture = sink->take(); picture && (frame = picture->frame)) loop.quit();
  };
  QObject::connect(&display, &PrivateDisplay::windowAdded, &loop, [&](EngineWindow* window) {
    auto* source = dynamic_cast<FrameSource*>(window);
    if (sink || !source) return;
    sink = std::make_shared<SceneItemSink>(
        &loop, SceneItemSink::Callbacks{.committed = take, .firstShown = [] {}, .refused = [] {}});
    source->setSink(sink);
  });
  QTimer::singleShot(frameLimit, &loop, &QEventLoop::quit);
  loop.exec();
  if (sink) sink->disconnect();
  return frame;
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
  const auto dmabuf = drawing.withOpenGl ? DmabufSupport::query() : std::nullopt;
  const std::string device = dmabuf ? vulkanUuidForScene(dmabuf->mainDevice) : std::string();
  QString error;
  const auto display = PrivateDisplay::start(screenOutput(), dmabuf, &error);
  if (display) {
    lines += displayLines(display->socketPath());
    lines +=
        QStringLiteral("sink: an item of the scene, drawn ") +
        (drawing.withOpenGl ? QStringLiteral("with OpenGL") : QStringLiteral("by the processor"));
    lines += QStringLiteral("engine's Vulkan device: ") +
             (device.empty() ? QStringLiteral("its own choice") : QString::fromStdString(device));
    lines += engineLines(*display, device, engine);
  } else {
    lines += QStringLiteral("private display: ") + error;
  }
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

}  // namespace tromelo
