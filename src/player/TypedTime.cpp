#include "player/TypedTime.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <limits>

#include "player/Format.h"

namespace tromelo {

namespace {

using Place = TypedTime::Place;

// From here on the film would be over before anything of it is seen, in seconds.
constexpr double kLast = 1;

/// The plain character for what keyboards of other scripts have in its place; null for what can't
/// be seen.
QChar plain(QChar typed) {
  if (typed.isDigit()) return QChar(u'0' + typed.digitValue());
  if (typed.category() == QChar::Other_Format) return {};
  switch (typed.unicode()) {
    case u'：':
      return u':';
    case u'＋':
      return u'+';
    case u'−':
    case u'–':
    case u'－':
      return u'-';
    case u',':
    case u'٫':
    case u'．':
      return u'.';
    default:
      return typed.toLower();
  }
}

QString plainText(QStringView typed) {
  QString text;
  for (const QChar one : typed)
    if (const QChar character = plain(one); !character.isNull()) text += character;
  return text.trimmed();
}

/// Hours, minutes, seconds: none where one that isn't the first is as much as the one before it.
std::optional<double> secondsOf(const QRegularExpressionMatch& match) {
  double seconds = 0;
  bool isFirst = true;
  for (const char* field : {"h", "m", "s"}) {
    const QString digits = match.captured(QLatin1String(field));
    const double number = digits.toDouble();
    if (!isFirst && number >= 60) return {};
    seconds = seconds * 60 + number;
    isFirst &= digits.isEmpty();
  }
  return seconds;
}

}  // namespace

std::optional<Place> TypedTime::parse(QStringView typed) {
  static const QRegularExpression clock(QStringLiteral(
      R"(^(?<sign>[+-]?)\s*(?:(?:(?<h>\d{1,9}):)?(?<m>\d{1,9}):)?(?<s>\d{1,9}(?:\.\d{0,9})?)$)"));
  static const QRegularExpression units(QStringLiteral(
      R"(^(?<sign>[+-]?)\s*(?=\d)(?:(?<h>\d{1,9})h\s*)?(?:(?<m>\d{1,9})m\s*)?(?:(?<s>\d{1,9}(?:\.\d{0,9})?)s)?$)"));
  const QString text = plainText(typed);
  for (const QRegularExpression* form : {&clock, &units}) {
    const QRegularExpressionMatch match = form->match(text);
    if (!match.hasMatch()) continue;
    const auto seconds = secondsOf(match);
    if (!seconds) return {};
    const QString sign = match.captured(QLatin1String("sign"));
    return Place{.seconds = sign == u'-' ? -*seconds : *seconds, .isFromHere = !sign.isEmpty()};
  }
  return {};
}

double TypedTime::target(const QString& typed, double elapsed, double duration) {
  const auto place = parse(typed);
  if (!place) return std::numeric_limits<double>::quiet_NaN();
  const double second = place->isFromHere ? elapsed + place->seconds : place->seconds;
  const double last = duration > 0 ? duration - kLast : second;
  return std::max(std::min(second, last), 0.0);
}

QString TypedTime::hint(const QString& typed, double elapsed, double duration) {
  if (typed.trimmed().isEmpty()) return tr("Such as 1:02:03, 62:03, 90, +30 or -1:00");
  const auto place = parse(typed);
  if (!place) return tr("No time yet. Write it as 1:02:03, 90 or +30");
  const double second = place->isFromHere ? elapsed + place->seconds : place->seconds;
  if (duration > 0 && second > duration)
    return tr("The film ends at %1").arg(Format::clock(duration));
  return tr("Goes to %1").arg(Format::clock(target(typed, elapsed, duration)));
}

}  // namespace tromelo
