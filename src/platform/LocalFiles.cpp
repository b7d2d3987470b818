#include "platform/LocalFiles.h"

#include <gio/gio.h>

#include <algorithm>
#include <memory>

#include "platform/FilePath.h"

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
  asking_.run(lookUp, [listener, wanted = addresses.size()](const QList<QUrl>& files) {
    listener(files, files.size() == wanted);
  });
}

}  // namespace tromelo
