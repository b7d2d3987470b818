#include "lines/LineMessage.h"

#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

constexpr qsizetype kLongestMessage = 16 * 1024;  // bytes

bool takeOne(const QByteArray& message, LineNews& news) {
  if (message == "end") return news.isEnd = true;
  const auto words = message.split(' ');
  bool isNumber = false;
  bool areNumbers = true;
  const auto number = [&](const QByteArray& word) {
    const double value = word.toDouble(&isNumber);
    areNumbers &= isNumber && std::isfinite(value);
    return value;
  };
  if (words.size() == 2 && words[0] == "at") {
    news.progress = std::clamp(number(words[1]), 0.0, 1.0);
    return areNumbers;
  }
  if (words.size() < 4 || words[0] != "line") return false;
  SubtitleLine line{number(words[1]), number(words[2]), {}};
  const qsizetype head = 5 + words[1].size() + 1 + words[2].size() + 1;
  line.text = QString::fromUtf8(QByteArrayView(message).sliced(head));
  line.end = std::max(line.end, line.start);
  news.lines.append(line);
  return areNumbers;
}

}  // namespace

QStringList LineRequest::arguments() const {
  const auto text = [](const std::string& bytes) {
    return QString::fromLatin1(QByteArray::fromStdString(bytes).toPercentEncoding("/"));
  };
  return {text(path), QString::number(stream), QString::number(isOwnFile), text(codepage)};
}

std::optional<LineRequest> LineRequest::parse(const QList<QByteArray>& arguments) {
  if (arguments.size() != 4) return {};
  const auto text = [](const QByteArray& word) {
    return QByteArray::fromPercentEncoding(word).toStdString();
  };
  bool isNumber = false;
  const int stream = arguments[1].toInt(&isNumber);
  if (!isNumber) return {};
  return LineRequest{text(arguments[0]), stream, arguments[2] == "1", text(arguments[3])};
}

QByteArray lineMessage(const SubtitleLine& line) {
  return "line " + QByteArray::number(line.start, 'f', 3) + ' ' +
         QByteArray::number(line.end, 'f', 3) + ' ' + line.text.toUtf8() + '\n';
}

QByteArray progressMessage(double progress) {
  return "at " + QByteArray::number(progress, 'f', 3) + '\n';
}

QByteArray endMessage() { return "end\n"; }

bool takeLineNews(QByteArray& received, LineNews& news) {
  qsizetype start = 0;
  for (qsizetype end = 0; (end = received.indexOf('\n', start)) >= 0; start = end + 1)
    if (!takeOne(received.sliced(start, end - start), news)) return false;
  received.remove(0, start);
  return received.size() <= kLongestMessage;
}

}  // namespace tromelo
