#include "playback/SoftwareDecodePaths.h"

#include <QJsonArray>

#include "platform/FilePath.h"
#include "platform/UserDefaults.h"

namespace tromelo {

namespace {

const QString kKey = QStringLiteral("softwareDecodeFiles");
const QLatin1String kUrlPrefix("file://");

/// A path that is no UTF-8 is stored as its URL, which an absolute path is never taken for.
QString storedText(const std::string& path) {
  const QString text = QString::fromUtf8(path);
  if (text.toStdString() == path) return text;
  return fileUrlFromPath(path).toString(QUrl::FullyEncoded);
}

std::string pathOf(const QString& stored) {
  return stored.startsWith(kUrlPrefix) ? pathFromFileUrl(QUrl(stored)) : stored.toStdString();
}

}  // namespace

SoftwareDecodePaths storedSoftwareDecodePaths(const UserDefaults& defaults) {
  SoftwareDecodePaths paths;
  for (const auto& stored : defaults.value(kKey).toArray()) {
    if (auto path = pathOf(stored.toString()); !path.empty()) paths.insert(std::move(path));
  }
  return paths;
}

void store(const SoftwareDecodePaths& paths, UserDefaults& defaults) {
  QJsonArray stored;
  for (const std::string& path : paths) stored.append(storedText(path));
  defaults.set(kKey, stored);
}

}  // namespace tromelo
