#include "platform/FileManager.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "platform/HostEnvironment.h"
#include "platform/SessionBus.h"

namespace tromelo {

namespace {

QDBusMessage showItemsCall(const QUrl& file) {
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.FileManager1"),
      QStringLiteral("/org/freedesktop/FileManager1"),
      QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
  call << QStringList{QString::fromLatin1(file.toEncoded())} << QString();
  return call;
}

}  // namespace

void FileManager::show(const QUrl& file) {
  const auto bus = sessionBus();
  if (!bus) return openFolder(file);
  auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(showItemsCall(file)), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, file] {
    watcher->deleteLater();
    if (watcher->isError()) openFolder(file);
  });
}

void FileManager::openFolder(const QUrl& file) {
  const QUrl folder = file.adjusted(QUrl::RemoveFilename);
  if (!HostEnvironment::startDetached(QStringLiteral("xdg-open"),
                                      {QString::fromLatin1(folder.toEncoded())}))
    Q_EMIT failed(QCoreApplication::translate("FileManager", "The file manager can't be opened."));
}

}  // namespace tromelo
