#include "player/KeyPress.h"

namespace tromelo {

namespace {

/// Keys side by side on a keyboard, from the key with code `first` on.
struct KeyRow {
  quint32 first;  // as X11 and Wayland count
  QStringView latin;
};

constexpr KeyRow kKeyRows[]{
    {24, u"qwertyuiop[]"},
    {38, u"asdfghjkl"},
    {52, u"zxcvbnm"},
};

/// What a keyboard for another script has beside its own letters; null for other keys.
QChar latinTwin(quint32 code) {
  for (const auto& [first, latin] : kKeyRows)
    if (code >= first && code - first < latin.size()) return latin[code - first];
  return {};
}

bool isOfOtherScript(QChar character) {
  return (character.isLetter() || character.isMark()) &&
         character.script() != QChar::Script_Latin && character.script() != QChar::Script_Common;
}

/// Control makes a control character of what is typed.
QString typedBy(const QKeyEvent& event) {
  if (!event.modifiers().testFlag(Qt::ControlModifier)) return event.text();
  return event.key() < 0x10000 ? QString(QChar(event.key())) : QString();
}

QString charactersOf(const QKeyEvent& event) {
  const QString typed = typedBy(event);
  if (typed.size() != 1) return typed;
  const bool isShifted = event.modifiers().testFlag(Qt::ShiftModifier);
  QChar character = typed.front();
  if (isOfOtherScript(character)) {
    const QChar twin = latinTwin(event.nativeScanCode());
    if (twin.isLetter() || (!twin.isNull() && !isShifted)) character = twin;
  }
  return isShifted ? character.toUpper() : character.toLower();
}

}  // namespace

KeyPress KeyPress::from(const QKeyEvent& event) {
  return {Qt::Key(event.key()), event.modifiers() & kModifiers, charactersOf(event),
          event.isAutoRepeat()};
}

}  // namespace tromelo
