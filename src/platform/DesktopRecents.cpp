#include "platform/DesktopRecents.h"

#include <glib.h>

#include <QFile>
#include <QMimeDatabase>
#include <deque>
#include <functional>
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

/// What is to be done to the list, one thing after the other.
class Line : public std::enable_shared_from_this<Line> {
 public:
  void append(std::function<void()> job) {
    const std::scoped_lock lock(mutex_);
    jobs_.push_back(std::move(job));
    if (jobs_.size() > 1) return;  // the thread that is at work will get to it
    // Detached: our end doesn't wait for the disk.
    std::thread([line = shared_from_this()] { line->work(); }).detach();
  }

 private:
  void work() {
    std::unique_lock lock(mutex_);
    while (!jobs_.empty()) {
      const auto& job = jobs_.front();  // stays in its place meanwhile
      lock.unlock();
      job();
      lock.lock();
      jobs_.pop_front();
    }
  }

  std::mutex mutex_;
  std::deque<std::function<void()>> jobs_;
};

void changeList(bool (*change)(const QByteArray& listPath, const QUrl& file), const QUrl& file) {
  static const auto line = std::make_shared<Line>();
  const QByteArray list = QFile::encodeName(userDataDirectory()) + "/recently-used.xbel";
  line->append([change, list, file] { change(list, file); });
}

}  // namespace

bool addToRecentsList(const QByteArray& listPath, const QUrl& file) {
  const Bookmarks bookmarks = load(listPath);
  if (!bookmarks) return false;
  const QByteArray uri = file.toEncoded();
  const QString type =
      QMimeDatabase().mimeTypeForFile(file.path(), QMimeDatabase::MatchExtension).name();
  g_bookmark_file_set_mime_type(bookmarks.get(), uri, type.toUtf8());
  g_bookmark_file_add_application(bookmarks.get(), uri, "Tromelo", "tromelo %u");
  return g_bookmark_file_to_file(bookmarks.get(), listPath, nullptr);
}

bool removeFromRecentsList(const QByteArray& listPath, const QUrl& file) {
  const Bookmarks bookmarks = load(listPath);
  if (!bookmarks) return false;
  if (!g_bookmark_file_remove_item(bookmarks.get(), file.toEncoded(), nullptr)) return true;
  return g_bookmark_file_to_file(bookmarks.get(), listPath, nullptr);
}

void addToDesktopRecents(const QUrl& file) { changeList(&addToRecentsList, file); }

void removeFromDesktopRecents(const QUrl& file) { changeList(&removeFromRecentsList, file); }

}  // namespace tromelo
