#include "overlay/PopoverBody.h"

#include "overlay/PopoverFrame.h"

namespace tromelo {

void PopoverBody::componentComplete() {
  QQuickItem::componentComplete();
  for (const QQuickItem* item = button_; item; item = item->parentItem()) follow(*item);
  follow(*bar_);
  follow(*parentItem());
  connect(this, &QQuickItem::implicitWidthChanged, this, &PopoverBody::place);
  connect(this, &QQuickItem::implicitHeightChanged, this, &PopoverBody::place);
  place();
}

void PopoverBody::follow(const QQuickItem& item) {
  for (const auto changed :
       {&QQuickItem::xChanged, &QQuickItem::yChanged, &QQuickItem::widthChanged,
        &QQuickItem::heightChanged, &QQuickItem::visibleChanged})
    connect(&item, changed, this, &PopoverBody::place, Qt::UniqueConnection);
}

void PopoverBody::place() {
  if (!bar_ || !button_ || !parentItem()) return;
  const QQuickItem& anchor = button_->isVisible() ? *button_ : *bar_;
  const double middle = parentItem()->mapRectFromItem(&anchor, anchor.boundingRect()).center().x();
  const double barTop = parentItem()->mapRectFromItem(bar_, bar_->boundingRect()).top();
  const QRectF room(margin_, margin_, parentItem()->width() - 2 * margin_, barTop - gap_ - margin_);
  const QRectF frame = PopoverFrame::within(room, middle, {implicitWidth(), implicitHeight()});
  setPosition(frame.topLeft());
  setSize(frame.size());
}

}  // namespace tromelo
