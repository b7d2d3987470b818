#pragma once

#include <QObject>
#include <QPointer>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "films/Film.h"
#include "films/FilmThread.h"

namespace tromelo {

/// What the program remembers of films. Everything returns at once: the file is read and written on
/// a thread of its own, and answers come from the event loop, unless who asked is gone. Main thread
/// only, but for recall().
class FilmMemory : public QObject {
  Q_OBJECT

 public:
  template <typename T>
  using Answer = std::function<void(const T&)>;

  /// `path` need not exist. `tell` gets sentences for the person, each once.
  FilmMemory(const QString& path, std::function<void(const QString&)> tell);
  ~FilmMemory() override;

  struct Known {
    FilmKey film;
    std::optional<FilmRecord> record;  // none: it was never played
  };

  /// The film in a file that is so many seconds long, for a thread that may wait: at most for
  /// `patience`. None for what can't be known by its content, or can't be read in time. A track
  /// that was chosen from a file that is gone is left out.
  std::optional<Known> recall(const std::string& path, double duration,
                              std::chrono::milliseconds patience) const;

  /// Nothing is written from now on.
  void setPrivate(bool isPrivate) { isPrivate_ = isPrivate; }

  /// `path` is where the film is at present.
  void remember(const FilmKey& film, const FilmRecord& record, const std::string& path);
  /// The film that was last seen there. Also in private.
  void forget(const std::string& path);
  Q_INVOKABLE void forgetAll();

  /// In the film that was last seen there; an empty one where there is none.
  void findProgress(const std::string& path, QObject* asker, const Answer<FilmProgress>& answer);

  void findBookmarks(const FilmKey& film, QObject* asker, const Answer<FilmBookmarks>& answer);
  void addBookmark(const FilmKey& film, double position, const QString& name);
  void renameBookmark(qint64 id, const QString& name);
  void removeBookmark(qint64 id);

 Q_SIGNALS:
  /// Something else is remembered than before.
  void changed();
  /// The person wants nothing kept of any film.
  void forgotAll();

 private:
  template <typename T, typename Read>
  void ask(Read read, QObject* asker, const Answer<T>& answer);
  void write(FilmThread::Job job, const QByteArray& about = {});

  bool isPrivate_ = false;
  FilmThread thread_;
};

}  // namespace tromelo
