#pragma once

#include <QRect>
#include <QRectF>

namespace tromelo {

struct PicturePlacement {
  QRectF rect;           // in the item, in its units
  bool isExact = false;  // a pixel of the picture is a pixel of the screen

  friend bool operator==(const PicturePlacement&, const PicturePlacement&) = default;
};

/// Where a picture of `picture` device pixels goes in an item of `item` units: centred, and as
/// large as fits with its aspect.
PicturePlacement placePicture(QSize picture, QSizeF item, qreal devicePixelRatio);

/// The same in whole units, for a host that knows no others; at least one of each.
QRect placeInPoints(QSize picture, QSizeF item, qreal devicePixelRatio);

}  // namespace tromelo
