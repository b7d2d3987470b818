#include "controls/Wording.h"

#include <QRegularExpression>

namespace tromelo {

QString Wording::onOneLine(const QString& text) {
  static const QRegularExpression lineBreak(QStringLiteral("\\R"));
  return QString(text).replace(lineBreak, QStringLiteral(" "));
}

}  // namespace tromelo
