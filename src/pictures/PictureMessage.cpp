#include "pictures/PictureMessage.h"

#include <QList>
#include <cmath>
#include <cstring>

namespace tromelo {

namespace {

constexpr qsizetype kLongestHead = 100;  // bytes
constexpr int kPixel = 4;                // bytes

/// The four numbers that both kinds of lines begin with.
struct Head {
  quint32 number = 0;
  double seconds = 0;
  QSize size;
};

QByteArray lineOf(const Head& head) {
  return QByteArray::number(head.number) + ' ' + QByteArray::number(head.seconds, 'f', 3) + ' ' +
         QByteArray::number(head.size.width()) + ' ' + QByteArray::number(head.size.height());
}

std::optional<Head> headOf(const QList<QByteArray>& words) {
  if (words.size() < 4) return {};
  bool areNumbers[4];
  const Head head{words[0].toUInt(&areNumbers[0]),
                  words[1].toDouble(&areNumbers[1]),
                  {words[2].toInt(&areNumbers[2]), words[3].toInt(&areNumbers[3])}};
  for (const bool isNumber : areNumbers)
    if (!isNumber) return {};
  if (!std::isfinite(head.seconds) || head.size.width() < 0 || head.size.height() < 0) return {};
  return head;
}

}  // namespace

QByteArray PictureRequest::line() const {
  const auto name = QByteArray::fromStdString(path).toPercentEncoding("/");
  return lineOf({number, seconds, room}) + ' ' + name + '\n';
}

std::optional<PictureRequest> PictureRequest::parse(const QByteArray& line) {
  const auto words = line.split(' ');
  const auto head = headOf(words);
  if (!head || words.size() != 5) return {};
  return PictureRequest{head->number, head->seconds, head->size,
                        QByteArray::fromPercentEncoding(words[4]).toStdString()};
}

QByteArray PictureAnswer::bytes() const {
  QByteArray bytes = lineOf({number, seconds, picture.size()}) + '\n';
  for (int y = 0; y < picture.height(); ++y)
    bytes.append(reinterpret_cast<const char*>(picture.constScanLine(y)),
                 qsizetype{kPixel} * picture.width());
  return bytes;
}

std::variant<PictureAnswer, UnreadAnswer> takePictureAnswer(QByteArray& received, QSize room) {
  const qsizetype end = received.indexOf('\n');
  if (end < 0 && received.size() <= kLongestHead) return UnreadAnswer::incomplete;
  const auto head =
      end < 0 || end > kLongestHead ? std::nullopt : headOf(received.first(end).split(' '));
  // A film that is turned on its side fills a room that is too.
  const int longest = std::max(room.width(), room.height());
  if (!head || head->size.width() > longest || head->size.height() > longest)
    return UnreadAnswer::nonsense;

  const qsizetype line = qsizetype{kPixel} * head->size.width();
  const qsizetype start = end + 1;
  const qsizetype whole = start + line * head->size.height();
  if (received.size() < whole) return UnreadAnswer::incomplete;
  PictureAnswer answer{head->number, head->seconds, {}};
  if (!head->size.isEmpty()) answer.picture = QImage(head->size, QImage::Format_RGB32);
  for (int y = 0; y < answer.picture.height(); ++y)
    std::memcpy(answer.picture.scanLine(y), received.constData() + start + y * line,
                static_cast<std::size_t>(line));
  received.remove(0, whole);
  return answer;
}

}  // namespace tromelo
