#include "overlay/RowDrag.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QQuickWindow>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace tromelo {

namespace {

using namespace std::chrono_literals;

constexpr double kThreshold = 6;  // points; less than what makes a list scroll
constexpr double kEdge = 32;      // points from an edge within which the list scrolls
constexpr double kFastest = 16;   // points a tick, at the edge and beyond it
constexpr auto kTick = 16ms;

/// Points that a list of this height scrolls by for a pointer at `y`.
double scrollStep(double y, double height) {
  const double above = std::clamp(kEdge - y, 0.0, kEdge);
  const double below = std::clamp(y - (height - kEdge), 0.0, kEdge);
  return std::round((below - above) / kEdge * kFastest);
}

double number(const QQuickItem& item, const char* property) {
  return item.property(property).toDouble();
}

}  // namespace

RowDrag::RowDrag(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptedMouseButtons(Qt::LeftButton);
  setFiltersChildMouseEvents(true);
}

void RowDrag::setModel(QAbstractItemModel* model) {
  if (model_ == model) return;
  if (model_) model_->disconnect(this);
  model_ = model;
  if (model_) {
    connect(model_, &QAbstractItemModel::rowsInserted, this, &RowDrag::end);
    connect(model_, &QAbstractItemModel::rowsRemoved, this, &RowDrag::end);
    connect(model_, &QAbstractItemModel::rowsMoved, this, &RowDrag::end);
    connect(model_, &QAbstractItemModel::modelReset, this, &RowDrag::end);
  }
  Q_EMIT modelChanged();
}

double RowDrag::top() const {
  return list_->y() + number(*list_, "originY") - number(*list_, "contentY");
}

double RowDrag::pitch() const {
  return (number(*list_, "contentHeight") + number(*list_, "spacing")) / std::max(count(), 1);
}

bool RowDrag::childMouseEventFilter(QQuickItem* child, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::MouseButtonRelease) isPressed_ = false;
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  if (mouse.device()->type() == QInputDevice::DeviceType::TouchScreen) return false;
  const double y = mapFromScene(mouse.scenePosition()).y();
  if (type == QEvent::MouseButtonPress) {
    const auto* rows = list_->property("contentItem").value<QQuickItem*>();
    isPressed_ = mouse.button() == Qt::LeftButton && rows && rows->isAncestorOf(child);
    pressed_ = y;
  }
  if (!isPressed_ || isOn() || std::abs(y - pressed_) < kThreshold) return false;
  begin();
  if (isOn()) follow(y);
  return isOn();
}

void RowDrag::begin() {
  isPressed_ = false;
  const int row = static_cast<int>(std::floor((pressed_ - top()) / pitch()));
  if (row < 0 || row >= count() || count() < 2) return;
  row_ = row;
  grip_ = pressed_ - top() - row * pitch();
  grabMouse();
  setKeepMouseGrab(true);
  // Before the player's own keys.
  window()->installEventFilter(this);
}

void RowDrag::follow(double y) {
  pointer_ = y;
  const double last = list_->y() + list_->height() - pitch();
  rowY_ = std::clamp(y - grip_, list_->y(), std::max(last, list_->y()));
  const int place = static_cast<int>(std::lround((rowY_ - top()) / pitch()));
  gap_ = std::clamp(place > row_ ? place + 1 : place, 0, count());
  gapY_ = top() + gap_ * pitch() - number(*list_, "spacing") / 2;
  const bool nearEdge = scrollStep(y - list_->y(), list_->height()) != 0;
  if (!nearEdge)
    scrolling_.stop();
  else if (!scrolling_.isActive())
    scrolling_.start(kTick, this);
  Q_EMIT changed();
}

/// The nearest place to which the list can scroll.
double RowDrag::within(double contentY) const {
  const double start = number(*list_, "originY") - number(*list_, "topMargin");
  const double whole = number(*list_, "contentHeight") + number(*list_, "topMargin") +
                       number(*list_, "bottomMargin");
  return std::clamp(contentY, start, std::max(start, start + whole - list_->height()));
}

void RowDrag::center(int row) {
  constexpr int kCenter = 1;  // ListView.Center
  QMetaObject::invokeMethod(list_, "positionViewAtIndex", row, kCenter);
  // It stops at the first row and at the last, and leaves no room around them.
  const double place = number(*list_, "contentY");
  const double first = number(*list_, "originY");
  const double last = first + number(*list_, "contentHeight") - list_->height();
  if (place <= first) list_->setProperty("contentY", within(place - number(*list_, "topMargin")));
  if (place >= last) list_->setProperty("contentY", within(place + number(*list_, "bottomMargin")));
}

void RowDrag::scroll() {
  const double from = number(*list_, "contentY");
  const double to = within(from + scrollStep(pointer_ - list_->y(), list_->height()));
  if (to == from) return scrolling_.stop();
  list_->setProperty("contentY", to);
  follow(pointer_);
}

void RowDrag::end() {
  isPressed_ = false;
  if (!isOn()) return;
  row_ = -1;
  scrolling_.stop();
  if (window()) window()->removeEventFilter(this);
  setKeepMouseGrab(false);
  ungrabMouse();
  Q_EMIT changed();
}

bool RowDrag::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
  end();
  return true;
}

void RowDrag::mouseMoveEvent(QMouseEvent* event) {
  if (isOn()) follow(event->position().y());
}

void RowDrag::mouseReleaseEvent(QMouseEvent*) {
  if (!isOn()) return;
  const int row = row_;
  const int gap = gap_;
  end();
  Q_EMIT dropped(row, gap);
}

void RowDrag::timerEvent(QTimerEvent* event) {
  if (event->timerId() == scrolling_.timerId()) scroll();
}

void RowDrag::itemChange(ItemChange change, const ItemChangeData& data) {
  const bool isGone =
      change == ItemSceneChange || (change == ItemVisibleHasChanged && !isVisible());
  if (isGone) end();
  QQuickItem::itemChange(change, data);
}

}  // namespace tromelo
