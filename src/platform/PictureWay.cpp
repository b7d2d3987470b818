#include "platform/PictureWay.h"

namespace tromelo {

QString reportOf(const PictureWay& way) {
  switch (way.obstacle) {
    case PictureWay::Obstacle::none:
      return way.managesColor ? QStringLiteral("shown by the desktop, which manages colours")
                              : QStringLiteral("shown by the desktop, which manages no colours");
    case PictureWay::Obstacle::notWayland:
      return QStringLiteral("drawn in the window: this is no Wayland session");
    case PictureWay::Obstacle::asked:
      return QStringLiteral("drawn in the window: TROMELO_PICTURE asks for that");
    case PictureWay::Obstacle::lacksProtocol:
      return QStringLiteral("drawn in the window: the desktop lacks ") + way.protocol;
    case PictureWay::Obstacle::refused:
      break;
  }
  return QStringLiteral("drawn in the window: the desktop refused a picture");
}

}  // namespace tromelo
