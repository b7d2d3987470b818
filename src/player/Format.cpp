#include "player/Format.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "playback/SpeedLadder.h"

namespace tromelo {

namespace {

// What a clock can show; a double beyond it has no whole number of this type.
constexpr double kEndOfTime = 9.2e18;

QString twoDigits(std::int64_t number) {
  return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

}  // namespace

QString Format::clock(double seconds) {
  if (!std::isfinite(seconds) || seconds < 0 || seconds > kEndOfTime) return QStringLiteral("0:00");
  const auto whole = static_cast<std::int64_t>(seconds);
  const std::int64_t minutes = whole / 60 % 60;
  const QString tail = u':' + twoDigits(whole % 60);
  if (whole < 3600) return QString::number(minutes) + tail;
  return QString::number(whole / 3600) + u':' + twoDigits(minutes) + tail;
}

QString Format::remaining(double duration, double shown) {
  return u'-' + clock(std::max(duration - shown, 0.0));
}

QString Format::speed(double speed) {
  QString text = QString::number(speed, 'f', 2);
  while (text.endsWith(u'0')) text.chop(1);
  if (text.endsWith(u'.')) text.chop(1);
  return text + u'×';
}

bool Format::isSameSpeed(double one, double other) { return tromelo::isSameSpeed(one, other); }

QList<double> Format::speeds() { return {speedLadder().begin(), speedLadder().end()}; }

QString Format::delay(double seconds) {
  const auto milliseconds = std::llround(seconds * 1000);
  const auto sign = milliseconds > 0 ? QStringLiteral("+") : QString();
  return QStringLiteral("%1%2 ms").arg(sign).arg(milliseconds);
}

QString Format::volumeSymbol(double volume, bool isMuted) {
  if (isMuted || volume == 0) return QStringLiteral("speaker.slash.fill");
  if (volume < 34) return QStringLiteral("speaker.wave.1.fill");
  if (volume < 67) return QStringLiteral("speaker.wave.2.fill");
  return QStringLiteral("speaker.wave.3.fill");
}

QString Format::chapterTitle(const QList<Chapter>& chapters, int position) {
  return position >= 0 && position < chapters.size() ? chapters[position].title : QString();
}

QString Format::chapterAt(const QList<Chapter>& chapters, double seconds) {
  return chapterTitleAt(chapters, seconds);
}

}  // namespace tromelo
