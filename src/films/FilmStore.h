#pragma once

#include <optional>
#include <string>

#include "films/Film.h"
#include "films/FilmDatabase.h"

namespace tromelo {

/// What is remembered of films, in one file that several programs may use at once. A change is
/// there as a whole or not at all, whenever the process ends. Everything answers false or nothing
/// where the file can't be used; takeFault() says why. Belongs to one thread, which may have to
/// wait.
class FilmStore {
 public:
  explicit FilmStore(const QString& path) : database_(path) {}

  /// Opens the file, which takes a moment that nobody need wait for later.
  void open() { database_.run(QStringLiteral("SELECT 1")); }

  /// None for a film that isn't known.
  std::optional<FilmRecord> film(const FilmKey& film);

  /// `path` is where it is at present.
  bool remember(const FilmKey& film, const FilmRecord& record, const std::string& path);

  /// The film that was last seen there, with its bookmarks.
  bool forget(const std::string& path);
  bool forgetAll();

  /// In the film that was last seen there; none where there is none.
  std::optional<FilmProgress> progress(const std::string& path);

  FilmBookmarks bookmarks(const FilmKey& film);
  bool addBookmark(const FilmKey& film, double position, const QString& name);
  bool renameBookmark(qint64 id, const QString& name);
  bool removeBookmark(qint64 id);

  QString takeFault() { return database_.takeFault(); }
  /// See FilmDatabase::isOff().
  bool isOff() const { return database_.isOff(); }

 private:
  bool makeRoom(const FilmKey& film);
  AdjustmentValues adjustments(const FilmKey& film);
  bool rememberAdjustments(const FilmKey& film, const AdjustmentValues& values);
  bool wipe();

  FilmDatabase database_;
};

}  // namespace tromelo
