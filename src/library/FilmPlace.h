#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include "films/FilmMemory.h"

namespace tromelo {

/// How far a person has come in the film that was last seen in a file. Looked up beside us; until
/// that is done, nothing of it is known. Main thread only.
class FilmPlace : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tromelo::FilmMemory* films READ films WRITE setFilms NOTIFY asked)
  Q_PROPERTY(QUrl file READ file WRITE setFile NOTIFY asked)
  Q_PROPERTY(bool shown READ isShown WRITE setShown NOTIFY asked)
  Q_PROPERTY(double seen READ seen NOTIFY changed)
  Q_PROPERTY(QString left READ left NOTIFY changed)

 public:
  using QObject::QObject;

  /// None where nothing is remembered. Outlives it.
  FilmMemory* films() const { return films_; }
  void setFilms(FilmMemory* films);
  const QUrl& file() const { return file_; }
  void setFile(const QUrl& file);

  /// While it isn't, what becomes of the film is of no interest.
  bool isShown() const { return isShown_; }
  void setShown(bool shown);

  /// From 0 to 1; 0 where the film begins afresh.
  double seen() const { return seen_; }
  /// For people; empty where the film begins afresh.
  const QString& left() const { return left_; }

 Q_SIGNALS:
  void asked();
  void changed();

 private:
  void ask();
  void askAnew();
  void take(const FilmProgress& progress);

  QPointer<FilmMemory> films_;
  QUrl file_;
  bool isShown_ = true;
  bool isStale_ = false;
  double seen_ = 0;
  QString left_;
};

}  // namespace tromelo
