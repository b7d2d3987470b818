#include "playback/HdrNote.h"

#include <QCoreApplication>

namespace tromelo {

namespace {

const char* obstacle(const PictureWay& way, const ScreenHeadroom& screen) {
  switch (way.obstacle) {
    case PictureWay::Obstacle::notWayland:
      return QT_TRANSLATE_NOOP("HdrNote", "needs a Wayland session");
    case PictureWay::Obstacle::asked:
      return QT_TRANSLATE_NOOP("HdrNote", "off: TROMELO_PICTURE");
    case PictureWay::Obstacle::lacksProtocol:
      return QT_TRANSLATE_NOOP("HdrNote", "desktop lacks %1");
    case PictureWay::Obstacle::refused:
      return QT_TRANSLATE_NOOP("HdrNote", "refused by the desktop");
    case PictureWay::Obstacle::none:
      break;
  }
  if (!way.managesColor) return QT_TRANSLATE_NOOP("HdrNote", "no colour management here");
  if (!(screen.potential > 1)) return QT_TRANSLATE_NOOP("HdrNote", "screen is in SDR mode");
  return QT_TRANSLATE_NOOP("HdrNote", "not from this driver");
}

}  // namespace

QString hdrNote(const FileFacts& facts, const DynamicRange& range, const PictureWay& way,
                const ScreenHeadroom& screen) {
  const bool isHdr = range.kind != DynamicRange::Kind::sdr;
  if (!isHdr || !facts.targetGamma || *facts.targetGamma == "pq" || *facts.targetGamma == "hlg")
    return {};
  const QString text = QCoreApplication::translate("HdrNote", obstacle(way, screen));
  return way.obstacle == PictureWay::Obstacle::lacksProtocol ? text.arg(way.protocol) : text;
}

}  // namespace tromelo
