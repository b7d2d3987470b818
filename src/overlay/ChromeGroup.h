#pragma once

#include <QPointF>
#include <QQuickItem>
#include <optional>

#include "player/WindowFade.h"

namespace tromelo {

/// The floating views that come and go together: the children of one item. Main thread only.
class ChromeGroup {
 public:
  /// Both outlive it.
  ChromeGroup(QQuickItem& group, const ReducedMotion& reducedMotion)
      : group_(group), fade_(group, reducedMotion) {}

  /// Hidden, they cost nothing and take no clicks. A fade begins where the one before it is.
  void setVisible(bool visible, bool animated);
  /// Whether a place in the scene is on one of them that is shown.
  bool contains(std::optional<QPointF> place) const;

 private:
  QQuickItem& group_;
  WindowFade fade_;
};

}  // namespace tromelo
