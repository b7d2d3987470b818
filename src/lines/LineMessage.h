#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <optional>
#include <string>

#include "lines/SubtitleLine.h"

namespace tromelo {

/// Which lines are to be read: what goes to the process that reads them, as its arguments.
struct LineRequest {
  std::string path;           // of the film, or of a file that has the subtitles only; absolute
  int stream = -1;            // libavformat's number; below 0: the first that has subtitles
  bool isOwnFile = false;     // of the subtitles, whose characters may be coded in any way
  std::string codepage = {};  // see readableSubtitles()

  QStringList arguments() const;
  static std::optional<LineRequest> parse(const QList<QByteArray>& arguments);

  friend bool operator==(const LineRequest&, const LineRequest&) = default;
};

/// What that process says, a line of text for each.
struct LineNews {
  QList<SubtitleLine> lines = {};
  double progress = 0;  // of the file, up to 1
  bool isEnd = false;   // these were all
};

QByteArray lineMessage(const SubtitleLine& line);
QByteArray progressMessage(double progress);
QByteArray endMessage();

/// Takes the whole messages that `received` begins with from it, and adds them to `news`. False: it
/// isn't ours.
bool takeLineNews(QByteArray& received, LineNews& news);

}  // namespace tromelo
