#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QtTypes>
#include <map>
#include <string>

namespace tromelo {

/// What a film is known by. Films that begin and end alike still differ in how long they are.
struct FilmKey {
  QByteArray identity;  // FilmIdentity::text()
  double duration = 0;  // seconds, as the engine tells it when it has opened the file

  friend bool operator==(const FilmKey&, const FilmKey&) = default;
};

/// What a person has changed about a film: values by names that are theirs alone who know them.
using AdjustmentValues = std::map<std::string, std::string>;

/// How a person left a film.
struct FilmRecord {
  double position = 0;  // seconds
  // The engine's number of the chosen track, "no", or the path of the file that it comes from;
  // empty: the choice is the engine's.
  std::string audio = {};
  std::string subtitle = {};
  double audioDelay = 0;     // seconds
  double subtitleDelay = 0;  // seconds
  AdjustmentValues adjustments = {};

  friend bool operator==(const FilmRecord&, const FilmRecord&) = default;
};

/// How far a person has come in a film.
struct FilmProgress {
  double position = 0;  // seconds
  double duration = 0;  // seconds

  friend bool operator==(const FilmProgress&, const FilmProgress&) = default;
};

/// A moment of a film that a person has given a name.
class FilmBookmark {
  Q_GADGET
  Q_PROPERTY(double position MEMBER position CONSTANT)
  Q_PROPERTY(QString name MEMBER name CONSTANT)

 public:
  qint64 id = 0;
  double position = 0;  // seconds
  QString name;

  friend bool operator==(const FilmBookmark&, const FilmBookmark&) = default;
};
using FilmBookmarks = QList<FilmBookmark>;  // by their positions

}  // namespace tromelo
