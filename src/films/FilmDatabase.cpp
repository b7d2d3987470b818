#include "films/FilmDatabase.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <array>
#include <atomic>
#include <utility>

namespace tromelo {

namespace {

constexpr int kVersion = 2;
constexpr int kLockWaitMilliseconds = 2000;

// SQLite's own numbers.
constexpr int kBusy = 5;
constexpr int kLocked = 6;
constexpr int kCorrupt = 11;
constexpr int kNotADatabase = 26;

// Files of a former version lack those that came later.
const std::array kTables{
    "CREATE TABLE IF NOT EXISTS films (identity TEXT PRIMARY KEY NOT NULL, duration REAL NOT NULL,"
    " position REAL NOT NULL, audio BLOB NOT NULL, subtitle BLOB NOT NULL,"
    " audio_delay REAL NOT NULL, subtitle_delay REAL NOT NULL, played INTEGER NOT NULL)"
    " WITHOUT ROWID",
    "CREATE TABLE IF NOT EXISTS places (path BLOB PRIMARY KEY NOT NULL,"
    " film TEXT NOT NULL REFERENCES films ON DELETE CASCADE, seen INTEGER NOT NULL) WITHOUT ROWID",
    "CREATE INDEX IF NOT EXISTS places_of_film ON places (film)",
    "CREATE TABLE IF NOT EXISTS bookmarks (id INTEGER PRIMARY KEY,"
    " film TEXT NOT NULL REFERENCES films ON DELETE CASCADE, position REAL NOT NULL,"
    " name TEXT NOT NULL)",
    "CREATE INDEX IF NOT EXISTS bookmarks_of_film ON bookmarks (film, position)",
    "CREATE TABLE IF NOT EXISTS adjustments (film TEXT NOT NULL REFERENCES films ON DELETE CASCADE,"
    " name TEXT NOT NULL, value BLOB NOT NULL, PRIMARY KEY (film, name)) WITHOUT ROWID"};

QString nextConnection() {
  static std::atomic<int> count = 0;
  return QStringLiteral("films-%1").arg(++count);
}

/// The first of its names that is free.
QString asideName(const QString& path) {
  for (int number = 1;; ++number) {
    QString name = path + QStringLiteral(".damaged-%1").arg(number);
    if (!QFile::exists(name)) return name;
  }
}

/// The kind of error; the upper bits hold details.
int codeOf(const QSqlError& error) { return error.nativeErrorCode().toInt() & 0xff; }

QString sentence(const char* text) { return QCoreApplication::translate("FilmDatabase", text); }

}  // namespace

FilmDatabase::FilmDatabase(QString path) : path_(std::move(path)), connection_(nextConnection()) {}

FilmDatabase::~FilmDatabase() { close(); }

void FilmDatabase::close() {
  if (!QSqlDatabase::contains(connection_)) return;
  QSqlDatabase::database(connection_, false).close();
  QSqlDatabase::removeDatabase(connection_);
  isOpen_ = false;
}

void FilmDatabase::turnOff(const QString& fault) {
  isOff_ = true;
  fault_ = fault;
}

std::optional<FilmDatabase::Rows> FilmDatabase::run(const QString& statement,
                                                    const QVariantList& values) {
  if (!open()) return {};
  return tryRun(statement, values);
}

bool FilmDatabase::transact(const std::function<bool()>& work) {
  // A writer from the start: one that reads first may find that another has written meanwhile.
  if (!run(QStringLiteral("BEGIN IMMEDIATE"))) return false;
  if (work() && tryRun(QStringLiteral("COMMIT"), {})) return true;
  if (isOpen_)
    QSqlQuery(QSqlDatabase::database(connection_, false)).exec(QStringLiteral("ROLLBACK"));
  return false;
}

std::optional<FilmDatabase::Rows> FilmDatabase::tryRun(const QString& statement,
                                                       const QVariantList& values) {
  Rows rows;
  QSqlError error;
  {
    QSqlQuery query(QSqlDatabase::database(connection_, false));
    query.setForwardOnly(true);
    bool isFine = query.prepare(statement);
    for (const QVariant& value : values) query.addBindValue(value);
    isFine = isFine && query.exec();
    while (isFine && query.next()) {
      QVariantList row;
      for (int column = 0, count = query.record().count(); column < count; ++column)
        row.append(query.value(column));
      rows.append(std::move(row));
    }
    error = query.lastError();
  }
  if (!error.isValid()) return rows;
  if (failed(error) == Opening::damaged) {
    isSuspect_ = true;
    close();  // the next one looks closer
  }
  return {};
}

FilmDatabase::Opening FilmDatabase::failed(const QSqlError& error) {
  const int code = codeOf(error);
  if (code == kCorrupt || code == kNotADatabase) return Opening::damaged;
  fault_ = code == kBusy || code == kLocked
               ? sentence(QT_TRANSLATE_NOOP("FilmDatabase",
                                            "Where you stop in films can't be remembered now: "
                                            "another program holds %1; close it."))
                     .arg(path_)
               : sentence(QT_TRANSLATE_NOOP("FilmDatabase",
                                            "Where you stop in films can't be remembered in %1: "
                                            "%2; free some space there or make it yours."))
                     .arg(path_, error.databaseText());
  return Opening::failed;
}

bool FilmDatabase::open() {
  if (isOpen_ || isOff_) return isOpen_;
  QDir().mkpath(QFileInfo(path_).absolutePath());
  // Two programs that start at once don't set each other's new file aside.
  QLockFile lock(path_ + QStringLiteral(".lock"));
  lock.tryLock(kLockWaitMilliseconds);
  Opening result = openFile();
  if (result == Opening::damaged) {
    close();
    result = setAside() ? openFile() : Opening::failed;
  }
  isOpen_ = result == Opening::done;
  if (!isOpen_) close();
  return isOpen_;
}

FilmDatabase::Opening FilmDatabase::openFile() {
  QSqlDatabase file = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
  if (!file.isValid()) {
    turnOff(sentence(QT_TRANSLATE_NOOP("FilmDatabase",
                                       "Where you stop in films can't be remembered: Qt's SQLite "
                                       "driver is missing; install it (libqt6sql6-sqlite).")));
    return Opening::failed;
  }
  file.setDatabaseName(path_);
  file.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kLockWaitMilliseconds));
  if (!file.open()) return failed(file.lastError());
  QSqlQuery version(file);
  if (!version.exec(QStringLiteral("PRAGMA user_version")) || !version.next())
    return failed(version.lastError());
  const int number = version.value(0).toInt();
  version.finish();
  return prepare(number);
}

FilmDatabase::Opening FilmDatabase::prepare(int version) {
  if (version > kVersion) {
    turnOff(sentence(QT_TRANSLATE_NOOP("FilmDatabase",
                                       "Where you stop in films isn't remembered: %1 is a newer "
                                       "Tromelo's; update this one."))
                .arg(path_));
    return Opening::failed;
  }
  if (isSuspect_ && !isSound()) return Opening::damaged;
  isSuspect_ = false;
  QSqlQuery query(QSqlDatabase::database(connection_, false));
  // What a person has the program forget isn't left on the disk.
  for (const char* setting : {"PRAGMA foreign_keys = ON", "PRAGMA synchronous = NORMAL",
                              "PRAGMA secure_delete = ON", "PRAGMA journal_mode = WAL"}) {
    // A file that can only be read is of use as well; writing says what is wrong.
    if (!query.exec(QString::fromLatin1(setting)) && failed(query.lastError()) == Opening::damaged)
      return Opening::damaged;
  }
  query.finish();
  if (version == kVersion || makeTables()) return Opening::done;
  return isSuspect_ ? Opening::damaged : Opening::failed;
}

bool FilmDatabase::makeTables() {
  QSqlDatabase file = QSqlDatabase::database(connection_, false);
  QSqlQuery query(file);
  bool isFine = query.exec(QStringLiteral("BEGIN IMMEDIATE"));
  for (const char* table : kTables) isFine = isFine && query.exec(QString::fromLatin1(table));
  isFine = isFine && query.exec(QStringLiteral("PRAGMA user_version = %1").arg(kVersion)) &&
           query.exec(QStringLiteral("COMMIT"));
  if (!isFine) isSuspect_ = failed(query.lastError()) == Opening::damaged;
  return isFine;
}

bool FilmDatabase::isSound() {
  QSqlQuery check(QSqlDatabase::database(connection_, false));
  return check.exec(QStringLiteral("PRAGMA quick_check(1)")) && check.next() &&
         check.value(0).toString() == QStringLiteral("ok");
}

bool FilmDatabase::setAside() {
  isSuspect_ = false;
  const QString aside = asideName(path_);
  if (!QFile::rename(path_, aside)) {
    turnOff(
        sentence(QT_TRANSLATE_NOOP("FilmDatabase",
                                   "Where you stop in films can't be remembered: %1 is damaged, "
                                   "and can't be set aside; move it away."))
            .arg(path_));
    return false;
  }
  // What was written last belongs to it.
  QFile::rename(path_ + QStringLiteral("-wal"), aside + QStringLiteral("-wal"));
  QFile::remove(path_ + QStringLiteral("-shm"));
  fault_ = sentence(QT_TRANSLATE_NOOP("FilmDatabase",
                                      "The memory of your films was damaged and begins anew; the "
                                      "old one is kept as %1."))
               .arg(aside);
  return true;
}

}  // namespace tromelo
