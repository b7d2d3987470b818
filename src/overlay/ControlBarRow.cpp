#include "overlay/ControlBarRow.h"

#include <algorithm>

namespace tromelo {

namespace {

/// As a positioner sees it: what isn't shown, or has no width, takes no gap either.
double widthOf(const QQuickItem& group, double gap) {
  double width = -gap;
  for (const QQuickItem* child : group.childItems())
    if (child->isVisible() && child->width() > 0) width += child->width() + gap;
  return std::max(width, 0.0);
}

}  // namespace

void ControlBarRow::componentComplete() {
  QQuickItem::componentComplete();
  for (const QQuickItem* group : {transport_.get(), options_.get()}) {
    follow(*group);
    connect(group, &QQuickItem::childrenChanged, this, [this, group] {
      follow(*group);
      share();
    });
  }
  connect(this, &QQuickItem::visibleChanged, this, &ControlBarRow::share);
  share();
}

void ControlBarRow::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.width() != before.width()) share();
}

void ControlBarRow::follow(const QQuickItem& group) {
  for (const QQuickItem* child : group.childItems())
    for (const auto changed : {&QQuickItem::widthChanged, &QQuickItem::visibleChanged})
      connect(child, changed, this, &ControlBarRow::share, Qt::UniqueConnection);
}

void ControlBarRow::share() {
  // While the whole bar is hidden nothing in it tells whether it would be shown.
  if (!isComponentComplete() || !isVisible() || !transport_ || !options_) return;
  Shares shares = fit(wideGaps_);
  if (shares.volumeWidth < fullVolume_) shares = fit(tightGaps_);
  if (shares.volumeWidth < leastVolume_) shares.volumeWidth = 0;
  shares.transportX = std::max(shares.transportX, mute_);
  if (std::exchange(shares_, shares) != shares) Q_EMIT shared();
}

/// A negative width of the slider says by how much they are too wide.
ControlBarRow::Shares ControlBarRow::fit(QPointF gaps) const {
  const double transport = widthOf(*transport_, gaps.x());
  const double right = width() - widthOf(*options_, gaps.y()) - gap_ - transport;
  return {.gaps = gaps,
          .transportX = std::min((width() - transport) / 2, right),
          .volumeWidth = std::min(right - mute_ - 2 * gap_, fullVolume_)};
}

}  // namespace tromelo
