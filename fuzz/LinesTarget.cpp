#include <cmath>

#include "Targets.h"
#include "lines/LineMessage.h"
#include "lines/LineText.h"
#include "lines/SubtitleBytes.h"

namespace tromelo::fuzz {

namespace {

constexpr double kRounding = 0.001;  // seconds

void askAsTold(Input request) {
  QList<QByteArray> arguments;
  while (!request.isEmpty()) arguments << QByteArray(request.word());
  const auto asked = LineRequest::parse(arguments);
  if (!asked) return;
  arguments.clear();
  for (const QString& each : asked->arguments()) arguments << each.toLatin1();
  check(LineRequest::parse(arguments) == asked);
}

void hearAsTold(QByteArray received) {
  LineNews news;
  if (!takeLineNews(received, news)) return;
  check(news.progress >= 0 && news.progress <= 1);
  for (const SubtitleLine& line : news.lines) {
    check(std::isfinite(line.start) && line.end >= line.start);
    QByteArray again = lineMessage(line);
    LineNews heard;
    check(takeLineNews(again, heard) && again.isEmpty() && heard.lines.size() == 1);
    check(heard.lines[0].text == line.text);
    check(std::abs(heard.lines[0].start - line.start) <= kRounding);
  }
}

}  // namespace

/// What the process that reads subtitle lines is asked for and what comes from it, in lines of
/// their own; then a file of subtitles, and the code page that it is said to be in.
void lines(Input input) {
  askAsTold(Input(input.line()));
  hearAsTold(QByteArray(input.until("\n\n")) + '\n');
  const std::string codepage(input.line());
  const QByteArray readable = readableSubtitles(QByteArray(input.rest()), codepage);
  check(isUnicode(readable));
  const QString text = textOfEvent(QString::fromUtf8(readable));
  check(!text.contains(u'\n') && !foldedText(text).contains(QChar::LineSeparator));
}

}  // namespace tromelo::fuzz
