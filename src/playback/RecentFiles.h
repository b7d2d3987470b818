#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QList>
#include <QUrl>

namespace tromelo {

/// The files that were played last, newest first, each once. A stored file is shown when it is
/// known to be there; until then it keeps its place.
class RecentFiles {
 public:
  static constexpr qsizetype kMost = 12;

  RecentFiles() = default;
  /// From a list of paths; what is something else is left out.
  explicit RecentFiles(const QJsonValue& stored);

  /// Nothing is stored, not even a file that isn't known to be there yet.
  bool isEmpty() const { return entries_.isEmpty(); }
  /// What is shown.
  QList<QUrl> files() const;
  /// To be stored: also what isn't known to be there yet.
  QJsonArray stored() const;

  /// Files of which it isn't known yet whether they are there.
  QList<QUrl> unknown() const;
  void found(const QUrl& file, bool exists);

  /// It plays: it is the newest.
  void remember(const QUrl& file);
  void remove(const QUrl& file);

 private:
  struct Entry {
    QUrl file;
    bool isKnown = false;
  };

  QList<QUrl> filesThat(bool areKnown) const;

  QList<Entry> entries_;
};

}  // namespace tromelo
