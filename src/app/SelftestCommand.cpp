#include "app/SelftestCommand.h"

#include <QDir>
#include <QEventLoop>

#include "display/DisplaySelftest.h"
#include "engine/MpvClientApi.h"
#include "engine/MpvEngine.h"
#include "platform/HostEnvironment.h"
#include "platform/UserPaths.h"

namespace tromelo {

namespace {

constexpr const char* kPicture = "av://lavfi:testsrc2=size=320x180:rate=25";

/// What the event says of the hardware decoder, if it says anything.
void noteDecoder(const MpvEvent& received, QString& decoder) {
  const auto* change = std::get_if<event::Property>(&received);
  if (!change || change->property != MpvProperty::hwdecCurrent) return;
  const auto* name = change->value.as<std::string>();
  decoder = name && *name != "no" ? QString::fromStdString(*name) : QString();
}

}  // namespace

QString runDisplaySelftest() {
  MpvEngine engine(MpvClientApi::libmpv());
  QString decoder;
  engine.onEvent = [&decoder](const MpvEvent& received) { noteDecoder(received, decoder); };
  QDir().mkpath(diagnosticsDirectoryPath());
  return displaySelftest(
      SceneDrawing::choose(),
      {
          .start =
              [&engine](const QByteArray& socketPath, const std::string& vulkanDevice) {
                HostEnvironment::enterPrivateDisplay(socketPath);
                engine.initialize(diagnosticsDirectoryPath(), vulkanDevice);
                engine.command({"loadfile", kPicture});
              },
          .hardwareDecoder = [&decoder] { return decoder; },
          .stop =
              [&engine] {
                QEventLoop loop;
                bool gone = false;
                engine.terminate([&] {
                  gone = true;
                  loop.quit();
                });
                if (!gone) loop.exec();
              },
      });
}

}  // namespace tromelo
