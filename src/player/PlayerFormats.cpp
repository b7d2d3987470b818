#include "player/PlayerFormats.h"

#include <cmath>
#include <cstdint>

namespace tromelo {

namespace {

// What a clock can show; a double beyond it has no whole number of this type.
constexpr double kEndOfTime = 9.2e18;

QString twoDigits(std::int64_t number) {
  return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

}  // namespace

QString formatClock(double seconds) {
  if (!std::isfinite(seconds) || seconds < 0 || seconds > kEndOfTime) return QStringLiteral("0:00");
  const auto whole = static_cast<std::int64_t>(seconds);
  const std::int64_t minutes = whole / 60 % 60;
  const QString tail = u':' + twoDigits(whole % 60);
  if (whole < 3600) return QString::number(minutes) + tail;
  return QString::number(whole / 3600) + u':' + twoDigits(minutes) + tail;
}

QString formatSpeed(double speed) {
  QString text = QString::number(speed, 'f', 2);
  while (text.endsWith(u'0')) text.chop(1);
  if (text.endsWith(u'.')) text.chop(1);
  return text + u'×';
}

QString formatDelay(double seconds) {
  const auto milliseconds = std::llround(seconds * 1000);
  const auto sign = milliseconds > 0 ? QStringLiteral("+") : QString();
  return QStringLiteral("%1%2 ms").arg(sign).arg(milliseconds);
}

}  // namespace tromelo
