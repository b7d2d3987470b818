#pragma once

#include <QSGGeometryNode>
#include <QSGTexture>
#include <cstdint>
#include <memory>

class QSGImageNode;

namespace tromelo {

/// A picture in a scene of standard range and colours: brighter than white is brought down to it,
/// and wide colours to BT.709. What glass lies over and what a fade shows needn't be exact; the
/// engine's own tone mapping isn't to be had for a picture that goes to the host as HDR.
class HdrImageNode final : public QSGGeometryNode {
 public:
  enum class Signal { pq = 0, hlg = 1, displayP3 = 2 };

  explicit HdrImageNode(Signal signal);

  Signal signal() const { return signal_; }
  /// `rect` in the item's units, `source` in the texture's pixels.
  void setPicture(QSGTexture* texture, const QRectF& rect, const QRectF& source);

 private:
  const Signal signal_;
};

}  // namespace tromelo
