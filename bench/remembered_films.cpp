// How long it takes to find a film among 100,000, and the twelve of the library: on a real disk,
// next to the file that is given.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "films/FilmStore.h"

namespace tromelo {

namespace {

constexpr int kFilms = 100'000;
constexpr int kLooks = 1000;
constexpr int kRows = 12;

FilmKey key(int number) {
  return {QByteArray::number(number * 7919LL, 16) + '-' + QByteArray(64, 'a' + number % 6),
          3600.0 + number};
}
std::string place(int number) { return "/films/shelf/film " + std::to_string(number) + ".mkv"; }

double milliseconds(const QElapsedTimer& timer) { return double(timer.nsecsElapsed()) / 1e6; }

/// The median and the longest of many runs.
template <typename Look>
std::pair<double, double> times(const Look& look) {
  std::vector<double> times;
  for (int i = 0; i < kLooks; ++i) {
    QElapsedTimer timer;
    timer.start();
    look(i * 97 % (kFilms - kRows));
    times.push_back(milliseconds(timer));
  }
  std::ranges::sort(times);
  return {times[times.size() / 2], times.back()};
}

int run(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QFileInfo neighbour(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
  const QTemporaryDir directory(neighbour.absolutePath() + QStringLiteral("/films-XXXXXX"));
  FilmStore store(directory.filePath(QStringLiteral("films.sqlite")));
  QElapsedTimer writing;
  writing.start();
  for (int i = 0; i < kFilms; ++i)
    if (!store.remember(key(i), {.position = 100.0 + i}, place(i))) return 1;
  const double each = milliseconds(writing) / kFilms;
  bool found = true;
  const auto film = times([&](int number) { found &= store.film(key(number)).has_value(); });
  const auto rows = times([&](int number) {
    for (int i = 0; i < kRows; ++i) found &= store.progress(place(number + i)).has_value();
  });
  std::printf(
      "films: of %d, one is found in %.3f ms (%.3f at most), a library's %d in %.3f (%.3f), one is "
      "written in %.3f; %s\n",
      kFilms, film.first, film.second, kRows, rows.first, rows.second, each,
      found ? "all are there" : "some are LOST");
  return found ? 0 : 1;
}

}  // namespace

}  // namespace tromelo

int main(int argc, char** argv) { return tromelo::run(argc, argv); }
