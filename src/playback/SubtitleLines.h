#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

#include "lines/LineProcess.h"
#include "lines/SubtitleLine.h"

namespace tromelo {

/// All lines of the subtitles that are shown, in their order. They are read only while somebody
/// wants them. Main thread only; nothing here waits.
class SubtitleLines : public QObject {
  Q_OBJECT
  /// Why there are none, or not yet: a sentence; empty where there are some.
  Q_PROPERTY(QString note READ note NOTIFY changed)
  Q_PROPERTY(double progress READ progress NOTIFY changed)
  Q_PROPERTY(bool isReading READ isReading NOTIFY changed)

 public:
  /// The subtitles that are shown, if lines can be made of them.
  struct Source {
    enum class Kind { none, pictures, unreadable, text };
    Kind kind = Kind::none;
    LineRequest request = {};
    double begin = 0;  // of the film, by its own clock; seconds

    friend bool operator==(const Source&, const Source&) = default;
  };

  SubtitleLines(HelperProcess::Program reader, Clock& clock) : process_(std::move(reader), clock) {}

  void setSource(const Source& source);
  /// Someone looks at them. What has been read by then stays if it was all.
  void setWanted(bool isWanted);

  const QList<SubtitleLine>& all() const { return lines_; }
  QString note() const;
  double progress() const { return progress_; }  // of reading, up to 1
  bool isReading() const { return state_ == State::reading; }

  /// Calls `found`, maybe later, with when the first line starts that comes after `seconds`; with
  /// none where there is no such line. Of several that wait for it only the last is answered.
  void findNext(double seconds, std::function<void(std::optional<double> start)> found);

 Q_SIGNALS:
  void changed();
  /// The lines from this one on are new.
  void appended(int first);
  /// All are others.
  void replaced();

 private:
  enum class State { idle, reading, whole, failed };
  struct Wish {
    double seconds;
    std::function<void(std::optional<double>)> found;
  };

  void restart();
  void tryAgain();
  void goOn();
  void take(const std::optional<LineNews>& news);
  void add(const QList<SubtitleLine>& fresh);
  void grant();
  void clear();

  LineProcess process_;
  Source source_;
  State state_ = State::idle;
  QList<SubtitleLine> lines_;
  double progress_ = 0;
  bool isWanted_ = false;
  std::optional<Wish> wish_;
};

}  // namespace tromelo
