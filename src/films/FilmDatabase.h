#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <functional>
#include <optional>

class QSqlError;

namespace tromelo {

/// The file that films are remembered in: SQLite, with our tables. It is opened when it is first
/// needed, and again where that failed; a damaged one is set aside and begun anew. Whatever happens
/// ends as a fault, never in a crash. Belongs to the thread that made it, which may have to wait.
class FilmDatabase {
 public:
  using Rows = QList<QVariantList>;

  /// The file and its folder are made where they are missing.
  explicit FilmDatabase(QString path);
  ~FilmDatabase();
  FilmDatabase(const FilmDatabase&) = delete;
  FilmDatabase& operator=(const FilmDatabase&) = delete;

  /// The rows that one statement gives; none where it failed.
  std::optional<Rows> run(const QString& statement, const QVariantList& values = {});

  /// All of it or nothing; `work` says whether it went well.
  bool transact(const std::function<bool()>& work);

  /// Nothing can be remembered in this file, however often it is tried.
  bool isOff() const { return isOff_; }

  /// The last thing that went wrong, in one sentence for the person, once; or empty.
  QString takeFault() { return std::exchange(fault_, {}); }

 private:
  enum class Opening { done, failed, damaged };

  bool open();
  Opening openFile();
  Opening prepare(int version);
  bool makeTables();
  std::optional<Rows> tryRun(const QString& statement, const QVariantList& values);
  Opening failed(const QSqlError& error);
  bool isSound();
  bool setAside();
  void close();
  void turnOff(const QString& fault);

  const QString path_;
  const QString connection_;  // its name, which no other has
  bool isOpen_ = false;
  bool isOff_ = false;
  bool isSuspect_ = false;  // found to be damaged while it was used
  QString fault_;
};

}  // namespace tromelo
