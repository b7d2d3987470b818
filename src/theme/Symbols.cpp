#include "theme/Symbols.h"

#include <QHash>

namespace tromelo {

namespace {

const QHash<QString, char16_t>& glyphs() {
  static const QHash<QString, char16_t> table{
      {QStringLiteral("arrow.counterclockwise"), u'\ue042'},
      {QStringLiteral("arrow.down.right.and.arrow.up.left"), u'\ue5d1'},
      {QStringLiteral("arrow.up.left.and.arrow.down.right"), u'\ue5d0'},
      {QStringLiteral("backward.end.fill"), u'\ue045'},
      {QStringLiteral("bookmark.fill"), u'\ue866'},
      {QStringLiteral("captions.bubble"), u'\ue048'},
      {QStringLiteral("checkmark"), u'\ue5ca'},
      {QStringLiteral("chevron.up.chevron.down"), u'\ue5d7'},
      {QStringLiteral("exclamationmark.triangle.fill"), u'\ue002'},
      {QStringLiteral("eye.slash"), u'\ue8f5'},
      {QStringLiteral("film"), u'\ue02c'},
      {QStringLiteral("film.stack"), u'\ue04a'},
      {QStringLiteral("folder"), u'\ue2c8'},
      {QStringLiteral("folder.badge.plus"), u'\ue2cc'},
      {QStringLiteral("forward.end.fill"), u'\ue044'},
      {QStringLiteral("gearshape"), u'\ue8b8'},
      {QStringLiteral("gobackward.10"), u'\ue059'},
      {QStringLiteral("goforward.10"), u'\ue056'},
      {QStringLiteral("info.circle"), u'\ue88f'},
      {QStringLiteral("keyboard"), u'\ue312'},
      {QStringLiteral("list.and.film"), u'\ue04a'},
      {QStringLiteral("list.bullet.rectangle"), u'\ue8de'},
      {QStringLiteral("minus"), u'\ue15b'},
      {QStringLiteral("pause.fill"), u'\ue034'},
      {QStringLiteral("pencil"), u'\ue3c9'},
      {QStringLiteral("play.fill"), u'\ue037'},
      {QStringLiteral("plus"), u'\ue145'},
      {QStringLiteral("repeat"), u'\ue040'},
      {QStringLiteral("shuffle"), u'\ue043'},
      {QStringLiteral("speaker.slash.fill"), u'\ue04f'},
      {QStringLiteral("speaker.wave.1.fill"), u'\ue04e'},
      {QStringLiteral("speaker.wave.2.fill"), u'\ue04d'},
      {QStringLiteral("speaker.wave.3.fill"), u'\ue050'},
      {QStringLiteral("square.and.arrow.down"), u'\ue161'},
      {QStringLiteral("timer"), u'\ue425'},
      {QStringLiteral("xmark"), u'\ue5cd'},
      {QStringLiteral("xmark.circle.fill"), u'\ue5c9'},
  };
  return table;
}

}  // namespace

QString Symbols::family() { return QStringLiteral("Material Icons"); }

QString Symbols::glyph(const QString& name) {
  if (name.isEmpty()) return {};
  const auto found = glyphs().constFind(name);
  if (found != glyphs().cend()) return QString(QChar(*found));
  qWarning("There is no symbol named %s.", qPrintable(name));
  return {};
}

}  // namespace tromelo
