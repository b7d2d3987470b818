#include "controls/Mnemonic.h"

namespace tromelo {

namespace {

/// Where the "&" before the letter is, or -1. "&&" stands for an "&" to read.
qsizetype markerIn(const QString& text) {
  for (qsizetype i = text.indexOf(u'&'); i >= 0 && i + 1 < text.size(); i = text.indexOf(u'&', i)) {
    if (text[i + 1] != u'&') return i;
    i += 2;
  }
  return -1;
}

QString unescaped(QString text) { return text.replace(QStringLiteral("&&"), QStringLiteral("&")); }

}  // namespace

QString Mnemonic::letter(const QString& text) {
  const qsizetype marker = markerIn(text);
  return marker < 0 ? QString() : QString(text[marker + 1].toUpper());
}

QString Mnemonic::plainText(const QString& text) {
  const qsizetype marker = markerIn(text);
  return unescaped(marker < 0 ? text : QString(text).remove(marker, 1));
}

QString Mnemonic::markedText(const QString& text, bool underlined) {
  const qsizetype marker = markerIn(text);
  if (marker < 0 || !underlined) return plainText(text).toHtmlEscaped();
  return QStringLiteral("%1<u>%2</u>%3")
      .arg(unescaped(text.first(marker)).toHtmlEscaped(), QString(text[marker + 1]).toHtmlEscaped(),
           unescaped(text.sliced(marker + 2)).toHtmlEscaped());
}

}  // namespace tromelo
