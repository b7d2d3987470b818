#include "films/FilmMemory.h"

#include <memory>
#include <thread>
#include <utility>

#include "films/FilmIdentity.h"
#include "films/FilmStore.h"
#include "platform/Awaited.h"
#include "platform/FilePath.h"
#include "platform/MainThread.h"

namespace tromelo {

namespace {

bool isGone(const std::string& choice) { return choice.starts_with('/') && !fileExists(choice); }

/// May wait for the disks of the files that tracks came from.
FilmMemory::Known withoutLostTracks(FilmMemory::Known known) {
  for (std::string* choice : {&known.record->audio, &known.record->subtitle})
    if (isGone(*choice)) choice->clear();
  return known;
}

}  // namespace

FilmMemory::FilmMemory(const QString& path, std::function<void(const QString&)> tell)
    : thread_(path, [memory = QPointer(this), tell = std::move(tell)](const QString& sentence) {
        postToMainThread([memory, tell, sentence] {
          if (memory) tell(sentence);
        });
      }) {}

FilmMemory::~FilmMemory() = default;

std::optional<FilmMemory::Known> FilmMemory::recall(const std::string& path, double duration,
                                                    std::chrono::milliseconds patience) const {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  // Detached: a share that is not connected may never answer.
  const auto identity = std::make_shared<Awaited<FilmIdentity>>();
  std::thread([path, identity] { identity->put(filmIdentity(path)); }).detach();
  const auto found = identity->wait(deadline);
  if (!found) return {};
  const auto known = std::make_shared<Awaited<Known>>();
  thread_.read([film = FilmKey{found->text(), duration}, known](FilmStore& store) {
    const Known stored{film, store.film(film)};
    if (!stored.record || (stored.record->audio.empty() && stored.record->subtitle.empty()))
      known->put(stored);
    else
      std::thread([stored, known] { known->put(withoutLostTracks(stored)); }).detach();
    return true;
  });
  return known->wait(deadline);
}

template <typename T, typename Read>
void FilmMemory::ask(Read read, QObject* asker, const Answer<T>& answer) {
  thread_.read([read, answer, asker = QPointer(asker)](FilmStore& store) {
    postToMainThread([found = read(store), answer, asker] {
      if (asker) answer(found);
    });
    return true;
  });
}

void FilmMemory::write(FilmThread::Job job, const QByteArray& about) {
  thread_.write(
      [job = std::move(job), memory = QPointer(this)](FilmStore& store) {
        if (!job(store)) return false;
        postToMainThread([memory] {
          if (memory) Q_EMIT memory->changed();
        });
        return true;
      },
      about);
}

void FilmMemory::remember(const FilmKey& film, const FilmRecord& record, const std::string& path) {
  if (isPrivate_) return;
  write([=](FilmStore& store) { return store.remember(film, record, path); }, film.identity);
}

void FilmMemory::forget(const std::string& path) {
  write([path](FilmStore& store) { return store.forget(path); });
}

void FilmMemory::forgetAll() {
  write([](FilmStore& store) { return store.forgetAll(); });
  Q_EMIT forgotAll();
}

void FilmMemory::findProgress(const std::string& path, QObject* asker,
                              const Answer<FilmProgress>& answer) {
  ask<FilmProgress>(
      [path](FilmStore& store) { return store.progress(path).value_or(FilmProgress()); }, asker,
      answer);
}

void FilmMemory::findBookmarks(const FilmKey& film, QObject* asker,
                               const Answer<FilmBookmarks>& answer) {
  ask<FilmBookmarks>([film](FilmStore& store) { return store.bookmarks(film); }, asker, answer);
}

void FilmMemory::addBookmark(const FilmKey& film, double position, const QString& name) {
  if (isPrivate_) return;
  write([=](FilmStore& store) { return store.addBookmark(film, position, name); });
}

void FilmMemory::renameBookmark(qint64 id, const QString& name) {
  if (isPrivate_) return;
  write([=](FilmStore& store) { return store.renameBookmark(id, name); });
}

void FilmMemory::removeBookmark(qint64 id) {
  write([id](FilmStore& store) { return store.removeBookmark(id); });
}

}  // namespace tromelo
