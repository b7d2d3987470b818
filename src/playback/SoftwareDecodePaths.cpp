#include "playback/SoftwareDecodePaths.h"

#include <QJsonArray>

#include "platform/FilePath.h"
#include "platform/UserDefaults.h"

namespace tromelo {

namespace {

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

}  // namespace tromelo
