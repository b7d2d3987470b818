#include "overlay/SliderInput.h"

#include <QQuickWindow>
#include <algorithm>
#include <cmath>

#include "overlay/SliderTravel.h"

namespace tromelo {

namespace {

constexpr double kKnobReach = 7;  // from its middle, in points: a press there doesn't move it

}  // namespace

SliderInput::SliderInput(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptedMouseButtons(Qt::LeftButton);
  setAcceptHoverEvents(true);
  placeKnob();
  for (const auto changed : {&SliderInput::isDraggedChanged, &SliderInput::knobXChanged,
                             &SliderInput::maximumValueChanged})
    connect(this, changed, this, &SliderInput::pointedAtChanged);
  connect(this, &QQuickItem::enabledChanged, this, &SliderInput::pointedAtChanged);
}

void SliderInput::setShown(double value) {
  if (shown_ == value) return;
  shown_ = value;
  placeKnob();
  Q_EMIT shownChanged();
}

void SliderInput::setMaximumValue(double value) {
  if (maximumValue_ == value) return;
  maximumValue_ = value;
  placeKnob();
  Q_EMIT maximumValueChanged();
}

void SliderInput::setStepSize(double size) {
  if (stepSize_ == size) return;
  stepSize_ = size;
  Q_EMIT stepSizeChanged();
}

void SliderInput::placeKnob() {
  const double pixels = window() ? window()->effectiveDevicePixelRatio() : 1;
  const double place =
      std::round(SliderTravel::place(shown_ / maximumValue_, width()) * pixels) / pixels;
  if (knobX_ == place) return;
  knobX_ = place;
  Q_EMIT knobXChanged();
}

void SliderInput::mousePressEvent(QMouseEvent* event) {
  const double fromKnob = event->position().x() - knobX_;
  const bool isOnKnob = std::abs(fromKnob) <= kKnobReach;
  grip_ = isOnKnob ? fromKnob : 0;
  setDragged(true);
  if (!isOnKnob) moveTo(event->position().x());
}

void SliderInput::mouseMoveEvent(QMouseEvent* event) {
  if (isDragged_) moveTo(event->position().x());
}

void SliderInput::mouseReleaseEvent(QMouseEvent*) { setDragged(false); }

void SliderInput::mouseUngrabEvent() { setDragged(false); }

void SliderInput::setDragged(bool isDragged) {
  if (isDragged_ == isDragged) return;
  isDragged_ = isDragged;
  Q_EMIT isDraggedChanged();
  isDragged ? Q_EMIT begun() : Q_EMIT ended();
}

void SliderInput::setHover(std::optional<double> place) {
  if (hover_ == place) return;
  hover_ = place;
  Q_EMIT pointedAtChanged();
}

double SliderInput::pointedX() const {
  // On the travel of the knob, which ends before the slider does.
  return SliderTravel::place(pointedValue() / maximumValue_, width());
}

double SliderInput::pointedValue() const {
  if (isDragged_ || !hover_) return shown_;
  return SliderTravel::valueAt(*hover_, width()) * maximumValue_;
}

void SliderInput::moveTo(double place) {
  Q_EMIT moved(SliderTravel::valueAt(place - grip_, width()) * maximumValue_);
}

void SliderInput::ask(double value) {
  Q_EMIT begun();
  Q_EMIT moved(std::clamp(value, minimumValue(), maximumValue_));
  Q_EMIT ended();
}

void SliderInput::geometryChange(const QRectF& geometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(geometry, oldGeometry);
  placeKnob();
}

void SliderInput::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) placeKnob();
  // Nobody tells what leaves its window that the hand has let go of it.
  if (change == ItemSceneChange) setDragged(false);
}

}  // namespace tromelo
