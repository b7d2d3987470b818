#include "library/FilmPlace.h"

#include <utility>

#include "films/FilmResume.h"
#include "platform/FilePath.h"

namespace tromelo {

void FilmPlace::setFilms(FilmMemory* films) {
  if (films_ == films) return;
  if (films_) films_->disconnect(this);
  films_ = films;
  if (films_) connect(films_, &FilmMemory::changed, this, &FilmPlace::askAnew);
  ask();
  Q_EMIT asked();
}

void FilmPlace::setFile(const QUrl& file) {
  if (std::exchange(file_, file) == file) return;
  take({});  // what is known is another's
  ask();
  Q_EMIT asked();
}

void FilmPlace::setShown(bool shown) {
  if (std::exchange(isShown_, shown) == shown) return;
  if (shown && isStale_) ask();
  Q_EMIT asked();
}

/// A film that plays is remembered every few seconds.
void FilmPlace::askAnew() {
  if (isShown_) return ask();
  isStale_ = true;
}

void FilmPlace::ask() {
  isStale_ = false;
  const std::string path = pathFromFileUrl(file_);
  if (!films_ || path.empty()) return;
  films_->findProgress(path, this, [this, path](const FilmProgress& progress) {
    if (path == pathFromFileUrl(file_)) take(progress);
  });
}

void FilmPlace::take(const FilmProgress& progress) {
  const bool isPlace = resumePosition(progress).has_value();
  const double seen = isPlace ? progress.position / progress.duration : 0;
  const QString left = isPlace ? leftText(progress) : QString();
  const bool isOther = std::exchange(seen_, seen) != seen;
  if (std::exchange(left_, left) != left || isOther) Q_EMIT changed();
}

}  // namespace tromelo
