#include "films/FilmStore.h"

#include <QDateTime>
#include <algorithm>

namespace tromelo {

namespace {

/// Seconds that the engine's word on a film's length may vary by.
const QString kSameFilm = QStringLiteral(" identity = ? AND abs(duration - ?) <= 1");

QVariant bytes(const std::string& text) {
  // An empty one would be NULL if it were null.
  return text.empty() ? QByteArray("") : QByteArray::fromStdString(text);
}

QVariant identity(const FilmKey& film) { return QString::fromLatin1(film.identity); }

std::string text(const QVariant& bytes) { return bytes.toByteArray().toStdString(); }

}  // namespace

std::optional<FilmRecord> FilmStore::film(const FilmKey& film) {
  const auto rows = database_.run(
      QStringLiteral("SELECT position, audio, subtitle, audio_delay, subtitle_delay FROM films "
                     "WHERE") +
          kSameFilm,
      {identity(film), film.duration});
  if (!rows || rows->isEmpty()) return {};
  const QVariantList& row = rows->first();
  return FilmRecord{.position = row[0].toDouble(),
                    .audio = text(row[1]),
                    .subtitle = text(row[2]),
                    .audioDelay = row[3].toDouble(),
                    .subtitleDelay = row[4].toDouble(),
                    .adjustments = adjustments(film)};
}

AdjustmentValues FilmStore::adjustments(const FilmKey& film) {
  AdjustmentValues values;
  const auto rows = database_.run(
      QStringLiteral("SELECT name, value FROM adjustments WHERE film = ?"), {identity(film)});
  for (const QVariantList& row : rows.value_or(FilmDatabase::Rows()))
    values[row[0].toString().toStdString()] = text(row[1]);
  return values;
}

bool FilmStore::rememberAdjustments(const FilmKey& film, const AdjustmentValues& values) {
  const bool areGone =
      database_.run(QStringLiteral("DELETE FROM adjustments WHERE film = ?"), {identity(film)})
          .has_value();
  return areGone && std::ranges::all_of(values, [&](const auto& one) {
           return database_
               .run(QStringLiteral("INSERT INTO adjustments VALUES (?, ?, ?)"),
                    {identity(film), QString::fromStdString(one.first), bytes(one.second)})
               .has_value();
         });
}

/// Another film that begins and ends alike gives way.
bool FilmStore::makeRoom(const FilmKey& film) {
  return database_
      .run(QStringLiteral("DELETE FROM films WHERE identity = ? AND NOT (") + kSameFilm + u')',
           {identity(film), identity(film), film.duration})
      .has_value();
}

bool FilmStore::remember(const FilmKey& film, const FilmRecord& record, const std::string& path) {
  const qint64 now = QDateTime::currentSecsSinceEpoch();
  return database_.transact([&] {
    return makeRoom(film) &&
           database_.run(QStringLiteral("INSERT INTO films VALUES (?, ?, ?, ?, ?, ?, ?, ?) "
                                        "ON CONFLICT (identity) DO UPDATE SET "
                                        "position = excluded.position, audio = excluded.audio, "
                                        "subtitle = excluded.subtitle, "
                                        "audio_delay = excluded.audio_delay, "
                                        "subtitle_delay = excluded.subtitle_delay, "
                                        "played = excluded.played"),
                         {identity(film), film.duration, record.position, bytes(record.audio),
                          bytes(record.subtitle), record.audioDelay, record.subtitleDelay, now}) &&
           rememberAdjustments(film, record.adjustments) &&
           database_.run(QStringLiteral("INSERT OR REPLACE INTO places VALUES (?, ?, ?)"),
                         {bytes(path), identity(film), now});
  });
}

bool FilmStore::forget(const std::string& path) {
  return database_.run(QStringLiteral("DELETE FROM films WHERE identity IN "
                                      "(SELECT film FROM places WHERE path = ?)"),
                       {bytes(path)}) &&
         wipe();
}

bool FilmStore::forgetAll() {
  return database_.run(QStringLiteral("DELETE FROM films")) &&
         database_.run(QStringLiteral("VACUUM")) && wipe();
}

/// Not even the journal keeps what was forgotten. Another program may be in the way: then it is
/// done by whoever is the last to close the file.
bool FilmStore::wipe() {
  return database_.run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).has_value();
}

std::optional<FilmProgress> FilmStore::progress(const std::string& path) {
  const auto rows = database_.run(
      QStringLiteral("SELECT position, duration FROM places JOIN films ON film = identity "
                     "WHERE path = ?"),
      {bytes(path)});
  if (!rows || rows->isEmpty()) return {};
  return FilmProgress{rows->first()[0].toDouble(), rows->first()[1].toDouble()};
}

FilmBookmarks FilmStore::bookmarks(const FilmKey& film) {
  FilmBookmarks bookmarks;
  const auto rows =
      database_.run(QStringLiteral("SELECT id, bookmarks.position, name FROM bookmarks JOIN films "
                                   "ON film = identity WHERE") +
                        kSameFilm + QStringLiteral(" ORDER BY bookmarks.position, id"),
                    {identity(film), film.duration});
  for (const QVariantList& row : rows.value_or(FilmDatabase::Rows()))
    bookmarks.append({row[0].toLongLong(), row[1].toDouble(), row[2].toString()});
  return bookmarks;
}

bool FilmStore::addBookmark(const FilmKey& film, double position, const QString& name) {
  const qint64 now = QDateTime::currentSecsSinceEpoch();
  return database_.transact([&] {
    return makeRoom(film) &&
           database_.run(QStringLiteral("INSERT OR IGNORE INTO films VALUES "
                                        "(?, ?, 0, x'', x'', 0, 0, ?)"),
                         {identity(film), film.duration, now}) &&
           database_.run(
               QStringLiteral("INSERT INTO bookmarks (film, position, name) VALUES (?, ?, ?)"),
               {identity(film), position, name});
  });
}

bool FilmStore::renameBookmark(qint64 id, const QString& name) {
  return database_.run(QStringLiteral("UPDATE bookmarks SET name = ? WHERE id = ?"), {name, id})
      .has_value();
}

bool FilmStore::removeBookmark(qint64 id) {
  return database_.run(QStringLiteral("DELETE FROM bookmarks WHERE id = ?"), {id}).has_value();
}

}  // namespace tromelo
