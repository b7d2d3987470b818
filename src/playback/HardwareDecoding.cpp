#include "playback/HardwareDecoding.h"

#include <QCoreApplication>
#include <QJsonArray>

#include "platform/FilePath.h"
#include "platform/UserDefaults.h"

namespace tromelo {

namespace {

/// Errors that come within so many seconds of each other are one burst.
constexpr double kBurst = 1;
/// For so many seconds after loading or seeking one burst is forgiven.
constexpr double kForgiving = 1;

const QString kKey = QStringLiteral("softwareDecodeFiles");

}  // namespace

SoftwareDecodePaths storedSoftwareDecodePaths(const UserDefaults& defaults) {
  SoftwareDecodePaths paths;
  for (const auto& stored : defaults.value(kKey).toArray()) {
    if (auto path = pathFromStored(stored.toString()); !path.empty()) paths.insert(std::move(path));
  }
  return paths;
}

void store(const SoftwareDecodePaths& paths, UserDefaults& defaults) {
  QJsonArray stored;
  for (const std::string& path : paths) stored.append(storedPath(path));
  defaults.set(kKey, stored);
}

void HardwareDecoding::fileStarted() {
  errorBursts = 0;
  lastError = 0;
  tookProgramDown = false;
}

void HardwareDecoding::pathReported(const std::string& path) {
  forcedSoftware = tookProgramDown || softwarePaths.contains(path);
}

bool HardwareDecoding::givesUpAfterError(double now) {
  if (forcedSoftware) return false;
  if (now - lastError > kBurst) ++errorBursts;
  lastError = now;
  if (now - lastPlaybackRestart <= kForgiving && errorBursts < 2) return false;
  forcedSoftware = true;
  return true;
}

bool isHardwareDecoder(const std::optional<std::string>& reported) {
  return reported && !reported->empty() && *reported != "no";
}

std::optional<QString> decoderText(const std::optional<std::string>& reported, bool forcedSoftware,
                                   bool isLoaded) {
  if (isHardwareDecoder(reported)) {
    return QCoreApplication::translate("HardwareDecoding", "Hardware (%1)")
        .arg(QString::fromUtf8(*reported));
  }
  if (forcedSoftware)
    return QCoreApplication::translate("HardwareDecoding",
                                       "Software (stream rejected by VideoToolbox)");
  if (isLoaded) return QCoreApplication::translate("HardwareDecoding", "Software (FFmpeg)");
  return {};
}

}  // namespace tromelo
