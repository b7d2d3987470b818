#pragma once

#include <QObject>
#include <map>
#include <optional>
#include <string>

#include "films/Film.h"

namespace tromelo {

class FilmMemory;

/// The bookmarks of the film that plays. What a person does to them shows at once and is
/// remembered; where it can't be, it lasts for as long as the program runs. Main thread only.
class Bookmarks : public QObject {
  Q_OBJECT

 public:
  /// Without a memory nothing is remembered. It outlives us.
  explicit Bookmarks(FilmMemory* memory);

  /// Another file comes, of which nothing is known yet.
  void fileStarted();
  /// Without a film nothing is remembered.
  void fileKnown(const std::string& path, const std::optional<FilmKey>& film);

  /// By their positions.
  const FilmBookmarks& all() const { return all_; }
  /// The one that is at `position`, or next to it; seconds.
  std::optional<FilmBookmark> at(double position) const;

  /// Does nothing without a file.
  void add(double position, const QString& name);
  /// A name with nothing to be read changes nothing.
  void rename(qint64 id, const QString& name);
  void remove(qint64 id);

 Q_SIGNALS:
  void changed();

 private:
  void find();
  void take(const FilmBookmarks& remembered);
  void insert(const FilmBookmark& bookmark);

  FilmMemory* const memory_;
  std::optional<std::string> path_;
  std::optional<FilmKey> film_;
  FilmBookmarks all_;  // numbers below 0: not known to be remembered
  qint64 lastOwn_ = 0;
  std::map<std::string, FilmBookmarks> ofOthers_;  // of files that have played, by their paths
};

}  // namespace tromelo
