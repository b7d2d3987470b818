#include "platform/LocalFiles.h"

#include <gio/gio.h>

#include <algorithm>
#include <thread>

#include "platform/FilePath.h"
#include "platform/MainThread.h"

namespace tromelo {

std::string mountedPath(const QUrl& address) {
  const std::unique_ptr<GFile, decltype(&g_object_unref)> file(
      g_file_new_for_uri(address.toEncoded()), &g_object_unref);
  const std::unique_ptr<char, decltype(&g_free)> path(g_file_get_path(file.get()), &g_free);
  return path ? path.get() : std::string();
}

void LocalFiles::find(const QList<QUrl>& addresses, const Listener& listener) {
  if (std::ranges::all_of(addresses, &QUrl::isLocalFile)) return listener(addresses, true);
  const auto lookUp = [addresses, pathOf = pathOf_] {
    QList<QUrl> files;
    for (const QUrl& address : addresses)
      files.append(address.isLocalFile() ? address : fileUrlFromPath(pathOf(address)));
    files.removeAll(QUrl());
    return files;
  };
  // Detached: neither what comes next nor our end waits for it.
  std::thread([lookUp, listener, wanted = addresses.size(), owner = std::weak_ptr(isThere_)] {
    postToMainThread([files = lookUp(), listener, wanted, owner] {
      if (!owner.expired()) listener(files, files.size() == wanted);
    });
  }).detach();
}

}  // namespace tromelo
