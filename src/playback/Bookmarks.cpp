#include "playback/Bookmarks.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "films/FilmMemory.h"

namespace tromelo {

namespace {

constexpr double kNear = 1;  // seconds

bool isOwn(const FilmBookmark& bookmark) { return bookmark.id < 0; }

}  // namespace

Bookmarks::Bookmarks(FilmMemory* memory) : memory_(memory) {
  if (memory_) connect(memory_, &FilmMemory::changed, this, &Bookmarks::find);
}

void Bookmarks::fileStarted() {
  if (path_) ofOthers_[*path_] = std::exchange(all_, {});
  path_.reset();
  film_.reset();
  Q_EMIT changed();
}

void Bookmarks::fileKnown(const std::string& path, const std::optional<FilmKey>& film) {
  if (path == path_ && film == film_) return;
  if (path != path_) all_ = ofOthers_[path];
  path_ = path;
  film_ = film;
  Q_EMIT changed();
  find();
}

void Bookmarks::find() {
  if (!memory_ || !film_) return;
  memory_->findBookmarks(*film_, this, [this, film = *film_](const FilmBookmarks& remembered) {
    if (film == film_) take(remembered);
  });
}

void Bookmarks::take(const FilmBookmarks& remembered) {
  const FilmBookmarks before = std::exchange(all_, remembered);
  for (const FilmBookmark& one : before) {
    const bool isRemembered = std::ranges::any_of(
        remembered, [&](const FilmBookmark& other) { return other.position == one.position; });
    if (isOwn(one) && !isRemembered) insert(one);
  }
  if (all_ != before) Q_EMIT changed();
}

std::optional<FilmBookmark> Bookmarks::at(double position) const {
  const auto found = std::ranges::find_if(
      all_, [=](const FilmBookmark& one) { return std::abs(one.position - position) < kNear; });
  return found == all_.end() ? std::nullopt : std::optional(*found);
}

void Bookmarks::insert(const FilmBookmark& bookmark) {
  all_.insert(std::ranges::upper_bound(all_, bookmark.position, {}, &FilmBookmark::position),
              bookmark);
}

void Bookmarks::add(double position, const QString& name) {
  if (!path_) return;
  insert({.id = --lastOwn_, .position = position, .name = name});
  Q_EMIT changed();
  if (memory_ && film_) memory_->addBookmark(*film_, position, name);
}

void Bookmarks::rename(qint64 id, const QString& name) {
  const QString fresh = name.trimmed();
  const auto found = std::ranges::find(all_, id, &FilmBookmark::id);
  if (fresh.isEmpty() || found == all_.end() || found->name == fresh) return;
  found->name = fresh;
  if (memory_ && !isOwn(*found)) memory_->renameBookmark(id, fresh);
  Q_EMIT changed();
}

void Bookmarks::remove(qint64 id) {
  if (all_.removeIf([id](const FilmBookmark& one) { return one.id == id; }) == 0) return;
  if (memory_ && id > 0) memory_->removeBookmark(id);
  Q_EMIT changed();
}

}  // namespace tromelo
