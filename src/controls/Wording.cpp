#include "controls/Wording.h"

#include <QRegularExpression>

#include "platform/PlatformWording.h"

namespace tromelo {

QString Wording::shown(const QString& text) { return platformWording(text); }

QString Wording::withoutKey(const QString& tip) {
  const qsizetype key = tip.lastIndexOf(QStringLiteral(" ("));
  return key < 0 ? tip : tip.first(key);
}

QString Wording::onOneLine(const QString& text) {
  static const QRegularExpression lineBreak(QStringLiteral("\\R"));
  return QString(text).replace(lineBreak, QStringLiteral(" "));
}

}  // namespace tromelo
