#include <qpa/qplatformnativeinterface.h>
#include <QGuiApplication>

#include "color-management-v1-client-protocol.h"
#include "display/ColorManagerGlobal.h"
#include "display/EglDevice.h"
#include "display/GlFence.h"
#include "display/HostSubsurfaceSink.h"
#include "display/VideoSinkKind.h"

namespace tromelo {

namespace {

wl_display* hostDisplay() {
  QPlatformNativeInterface* host = QGuiApplication::platformNativeInterface();
  if (!host || !QGuiApplication::platformName().startsWith(u"wayland")) return nullptr;
  return static_cast<wl_display*>(host->nativeResourceForIntegration("wl_display"));
}

QString numbersText(const std::vector<std::uint32_t>& numbers) {
  QStringList texts;
  for (const auto number : numbers) texts += QString::number(number);
  return texts.isEmpty() ? QStringLiteral("none") : texts.join(u' ');
}

/// Only where the scene could read a picture too without a wait of its own. Otherwise `lacks` says
/// why not.
std::shared_ptr<const SyncDevice> syncDeviceOf(const HostConnection& host, QString* lacks) {
  if (!host.syncManager() || !host.dmabufSupport()) {
    *lacks = QStringLiteral("the host has none");
    return nullptr;
  }
  if (!hasGlFences(platformEglDisplay())) {
    *lacks = QStringLiteral("OpenGL has no fences");
    return nullptr;
  }
  auto device = SyncDevice::open(host.dmabufSupport()->mainDevice);
  if (!device) *lacks = QStringLiteral("the graphics driver has no timelines");
  return device;
}

/// Numbers are those of color-management-v1.
QStringList reportOf(const HostConnection& connection, const QString& lacksSync) {
  QStringList globals;
  for (const std::string& global : connection.globals()) globals += QString::fromStdString(global);
  const HostColorSupport& color = connection.colorSupport();
  return {
      QStringLiteral("host globals: ") + globals.join(QStringLiteral(", ")),
      QStringLiteral("host colours: features %1, transfer functions %2, primaries %3, intents %4")
          .arg(numbersText(color.features), numbersText(color.transferFunctions),
               numbersText(color.primaries), numbersText(color.intents)),
      QStringLiteral("host fades surfaces: ") +
          (connection.alphaModifier() ? QStringLiteral("yes") : QStringLiteral("no")),
      QStringLiteral("explicit synchronisation: ") +
          (lacksSync.isEmpty() ? QStringLiteral("yes") : QStringLiteral("no, ") + lacksSync),
  };
}

}  // namespace

/// A Wayland host that can show a surface of any size below a window. Opaque hosts, X11's, have
/// none.
std::optional<VideoSinkKind> hostSubsurfaceSink(const VideoSinkHost& host, PictureWay& way) {
  using Obstacle = PictureWay::Obstacle;
  wl_display* display = hostDisplay();
  if (!display) way.obstacle = Obstacle::notWayland;
  if (display && host.asked == "scene") way.obstacle = Obstacle::asked;
  if (way.obstacle != Obstacle::none) return std::nullopt;
  std::string lacks;
  const auto connection = HostConnection::open(display, host.relay, &lacks);
  if (!connection) {
    way = {.obstacle = Obstacle::lacksProtocol, .protocol = QString::fromStdString(lacks)};
    return std::nullopt;
  }
  way.managesColor = connection->colorManager() &&
                     connection->colorSupport().has(WP_COLOR_MANAGER_V1_FEATURE_PARAMETRIC);
  QString lacksSync;
  auto syncDevice = syncDeviceOf(*connection, &lacksSync);
  return VideoSinkKind{
      .name = QStringLiteral("a surface of the host's"),
      .way = {},
      .report = reportOf(*connection, lacksSync),
      .canBeSampled = true,
      .shmFormats = connection->shmFormats(),
      .dmabuf = connection->dmabufSupport(),
      .syncDevice = std::move(syncDevice),
      .announceMore =
          [connection, managesColor = way.managesColor](wl_display* engines) {
            if (managesColor) announceColorManager(engines, *connection);
          },
      .create = [connection](QObject* receiver,
                             VideoSink::Events events) -> std::shared_ptr<VideoSink> {
        return HostSubsurfaceSink::create(connection, receiver, std::move(events));
      },
  };
}

}  // namespace tromelo
