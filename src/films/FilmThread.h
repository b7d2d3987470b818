#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

namespace tromelo {

class FilmStore;

/// A thread of its own for what films are remembered in: the disk may be slow, or another program
/// hold the file. Does what it is asked in that order; any thread may ask.
class FilmThread {
 public:
  /// False where the store couldn't do it.
  using Job = std::function<bool(FilmStore&)>;

  /// `fault` is called with sentences for the person, each once, on the thread.
  FilmThread(QString path, std::function<void(const QString&)> fault);
  /// Waits until everything is written, for two seconds at most.
  ~FilmThread();
  FilmThread(const FilmThread&) = delete;
  FilmThread& operator=(const FilmThread&) = delete;

  /// Done once, whatever comes of it.
  void read(Job job) const;

  /// Tried again later where it fails. `about` names what this one writes as a whole: one that is
  /// still waiting at the end of the queue under the same name gives way.
  void write(Job job, const QByteArray& about = {}) const;

 private:
  class Queue;

  std::shared_ptr<Queue> queue_;
};

}  // namespace tromelo
