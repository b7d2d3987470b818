#include "overlay/ChromeGroup.h"

#include <algorithm>

namespace tromelo {

namespace {

using namespace std::chrono_literals;

constexpr auto kFadeIn = 180ms;
constexpr auto kFadeOut = 350ms;

}  // namespace

void ChromeGroup::setVisible(bool visible, bool animated) {
  const double opacity = visible ? 1 : 0;
  if (visible) group_.setVisible(true);
  if (animated)
    return fade_.start(opacity, visible ? kFadeIn : kFadeOut, QEasingCurve::InOutQuad,
                       [this] { group_.setVisible(group_.opacity() > 0); });
  fade_.setOpacity(opacity);
  group_.setVisible(visible);
}

bool ChromeGroup::contains(std::optional<QPointF> place) const {
  return place && std::ranges::any_of(group_.childItems(), [&](const QQuickItem* view) {
           return view->isVisible() && view->contains(view->mapFromScene(*place));
         });
}

}  // namespace tromelo
