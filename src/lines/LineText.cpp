#include "lines/LineText.h"

#include <QStringList>

namespace tromelo {

namespace {

constexpr int kFieldsBeforeText = 8;
constexpr qsizetype kLongest = 2000;  // characters: nobody reads more at once

QStringView textField(QStringView event) {
  for (int field = 0; field < kFieldsBeforeText; ++field) {
    const qsizetype comma = event.indexOf(u',');
    if (comma < 0) return {};
    event = event.sliced(comma + 1);
  }
  return event;
}

/// Whether what follows is a drawing's outline, and no text, as these marks have it.
bool draws(QStringView marks, bool drawsSoFar) {
  for (qsizetype at = marks.indexOf(u"\\p"); at >= 0; at = marks.indexOf(u"\\p", at + 1))
    if (at + 2 < marks.size() && marks[at + 2].isDigit()) drawsSoFar = marks[at + 2] != u'0';
  return drawsSoFar;
}

QString withoutMarks(QStringView text) {
  QString read;
  bool isDrawing = false;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const qsizetype end = text[at] == u'{' ? text.indexOf(u'}', at) : -1;
    if (end >= 0) {
      isDrawing = draws(text.sliced(at, end - at), isDrawing);
      at = end;
    } else if (!isDrawing) {
      const QChar next = text[at] == u'\\' && at + 1 < text.size() ? text[at + 1] : QChar();
      if (next == u'N' || next == u'n' || next == u'h') ++at;
      if (next == u'N' || next == u'n')
        read += u'\n';
      else
        read += next == u'h' ? QChar(u' ') : text[at];
    }
  }
  return read;
}

}  // namespace

QString textOfEvent(QStringView event) {
  QStringList rows;
  for (const QString& row : withoutMarks(textField(event)).split(u'\n'))
    if (const QString shown = row.simplified(); !shown.isEmpty()) rows << shown;
  return rows.join(QChar::LineSeparator).left(kLongest);
}

QString foldedText(const QString& text) {
  QString folded;
  for (const QChar character : text.normalized(QString::NormalizationForm_KD).toCaseFolded())
    if (character.category() != QChar::Mark_NonSpacing)
      folded += character == QChar::LineSeparator ? QChar(u' ') : character;
  return folded.replace(u'ß', QStringLiteral("ss"));  // which Qt folds to itself
}

}  // namespace tromelo
