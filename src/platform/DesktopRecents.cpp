#include "platform/DesktopRecents.h"

#include <glib.h>

#include <QFile>
#include <QMimeDatabase>
#include <memory>
#include <mutex>
#include <thread>

#include "platform/UserPaths.h"

namespace tromelo {

namespace {

struct BookmarksDeleter {
  void operator()(GBookmarkFile* bookmarks) const { g_bookmark_file_free(bookmarks); }
};

using Bookmarks = std::unique_ptr<GBookmarkFile, BookmarksDeleter>;

/// None when there is a list that can't be read: it isn't ours to replace.
Bookmarks load(const QByteArray& listPath) {
  Bookmarks bookmarks(g_bookmark_file_new());
  GError* error = nullptr;
  if (g_bookmark_file_load_from_file(bookmarks.get(), listPath, &error)) return bookmarks;
  const bool isNew = g_error_matches(error, G_FILE_ERROR, G_FILE_ERROR_NOENT);
  g_error_free(error);
  return isNew ? Bookmarks(g_bookmark_file_new()) : nullptr;
}

}  // namespace

bool addToRecentsList(const QByteArray& listPath, const QUrl& file) {
  static std::mutex oneAtATime;
  const std::scoped_lock lock(oneAtATime);
  const Bookmarks bookmarks = load(listPath);
  if (!bookmarks) return false;
  const QByteArray uri = file.toEncoded();
  const QString type =
      QMimeDatabase().mimeTypeForFile(file.path(), QMimeDatabase::MatchExtension).name();
  g_bookmark_file_set_mime_type(bookmarks.get(), uri, type.toUtf8());
  g_bookmark_file_add_application(bookmarks.get(), uri, "Tromelo", "tromelo %u");
  return g_bookmark_file_to_file(bookmarks.get(), listPath, nullptr);
}

void addToDesktopRecents(const QUrl& file) {
  const QByteArray list = QFile::encodeName(userDataDirectory()) + "/recently-used.xbel";
  std::thread([list, file] { addToRecentsList(list, file); }).detach();
}

}  // namespace tromelo
