#include <QTemporaryDir>

#include "Targets.h"
#include "films/FilmResume.h"
#include "films/FilmStore.h"
#include "support/Files.h"

namespace tromelo::fuzz {

namespace {

const FilmKey kFilm{"1f-aa", 7200};
const std::string kPlace = "/films/night.mkv";

/// In an empty folder.
struct Folder {
  Folder() { QDir(path()).removeRecursively(), QDir().mkpath(path()); }
  static QString path() {
    static const QTemporaryDir directory;
    return directory.filePath("Tromelo");
  }
  QString file() const { return path() + "/films.sqlite"; }
};

/// A file with some films in it, whole, without a journal beside it.
const QByteArray& soundFile() {
  static const QByteArray file = [] {
    const Folder folder;
    {
      FilmStore store(folder.file());
      for (int i = 0; i < 40; ++i)
        store.remember({QByteArray::number(i), 60.0 * i}, {.position = 30.0 * i, .audio = "2"},
                       "/films/" + std::to_string(i));
      store.remember(kFilm, {.position = 12}, kPlace);
      store.addBookmark(kFilm, 90, QStringLiteral("The storm"));
    }
    return testing::readFile(folder.file());
  }();
  return file;
}

/// Each line has a place, as far from the file's start, and what stands there instead.
QByteArray damaged(Input input) {
  QByteArray file = soundFile();
  while (!input.isEmpty()) {
    Input line(input.line());
    const auto place = std::size_t(line.number()) % std::size_t(file.size());
    const auto bytes = line.rest().substr(0, std::size_t(file.size()) - place);
    if (bytes == "cut") return file.first(qsizetype(place));
    file.replace(qsizetype(place), qsizetype(bytes.size()), QByteArray(bytes));
  }
  return file;
}

}  // namespace

void filmsFile(Input input) {
  const QByteArray content = damaged(input);
  const Folder folder;
  testing::writeFile(folder.file(), content.toStdString());
  FilmStore store(folder.file());
  store.bookmarks(kFilm);
  if (const auto progress = store.progress(kPlace)) {
    resumePosition(*progress);
    leftText(*progress);
  }
  // What finds it damaged fails; the next that comes along has a new one.
  bool isDone = false;
  for (int i = 0; i < 3 && !isDone && !store.isOff(); ++i)
    isDone = store.remember(kFilm, {}, kPlace);
  check(isDone || !store.takeFault().isEmpty());
  store.film(kFilm);
  store.forgetAll();
}

/// Each line is something that the program has the store do.
void filmsRecords(Input input) {
  const Folder folder;
  FilmStore store(folder.file());
  while (!input.isEmpty()) {
    Input line(input.line());
    const auto what = line.word();
    const FilmKey film{QByteArray(line.word()).toPercentEncoding(), line.number<double>()};
    const auto position = line.number<double>();
    const std::string path(line.rest());
    if (what == "remember") {
      const FilmRecord record{.position = position, .audio = path, .subtitleDelay = position};
      const bool isNumber = position == position && film.duration == film.duration;
      check(store.remember(film, record, path) || !isNumber);
      if (isNumber && std::isfinite(film.duration)) check(store.film(film) == record);
    } else if (what == "bookmark") {
      store.addBookmark(film, position, QString::fromStdString(path));
    } else if (what == "rename") {
      store.renameBookmark(qint64(line.number()), QString::fromStdString(path));
    } else if (what == "remove") {
      for (const FilmBookmark& one : store.bookmarks(film)) store.removeBookmark(one.id);
      check(store.bookmarks(film).isEmpty());
    } else if (what == "forget") {
      check(store.forget(path));
      check(!store.progress(path));
    } else if (what == "forget-all") {
      check(store.forgetAll());
    }
    if (const auto progress = store.progress(path)) {
      const auto resumed = resumePosition(*progress);
      check(!resumed || *resumed >= 0);
      leftText(*progress);
    }
  }
}

}  // namespace tromelo::fuzz
