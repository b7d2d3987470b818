#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <optional>

namespace tromelo {

/// A slider without a look: a press on it takes the knob there and drags it. It shows the value
/// that it is given and asks for others; who uses it gives it those. Takes no keyboard focus.
class SliderInput : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double shown READ shown WRITE setShown NOTIFY shownChanged)
  // By these names assistive technology finds them; what it writes is asked for like a drag.
  Q_PROPERTY(double value READ shown WRITE ask NOTIFY shownChanged)
  Q_PROPERTY(double minimumValue READ minimumValue CONSTANT)
  Q_PROPERTY(double maximumValue READ maximumValue WRITE setMaximumValue NOTIFY maximumValueChanged)
  Q_PROPERTY(double stepSize READ stepSize WRITE setStepSize NOTIFY stepSizeChanged)
  /// The middle of the knob, in whole pixels of the screen: it stays while it wouldn't be seen to
  /// move.
  Q_PROPERTY(double knobX READ knobX NOTIFY knobXChanged)
  Q_PROPERTY(bool isDragged READ isDragged NOTIFY isDraggedChanged)
  /// A pointer rests on it or drags it; and then where, and at what value.
  Q_PROPERTY(bool isPointedAt READ isPointedAt NOTIFY pointedAtChanged)
  Q_PROPERTY(double pointedX READ pointedX NOTIFY pointedAtChanged)
  Q_PROPERTY(double pointedValue READ pointedValue NOTIFY pointedAtChanged)

 public:
  explicit SliderInput(QQuickItem* parent = nullptr);

  double shown() const { return shown_; }
  void setShown(double value);
  void ask(double value);
  double minimumValue() const { return 0; }
  double maximumValue() const { return maximumValue_; }
  void setMaximumValue(double value);
  /// Of one step by assistive technology.
  double stepSize() const { return stepSize_; }
  void setStepSize(double size);
  double knobX() const { return knobX_; }
  bool isDragged() const { return isDragged_; }
  bool isPointedAt() const { return isEnabled() && (isDragged_ || hover_); }
  double pointedX() const;
  double pointedValue() const;

 Q_SIGNALS:
  void shownChanged();
  void maximumValueChanged();
  void stepSizeChanged();
  void knobXChanged();
  void isDraggedChanged();
  void pointedAtChanged();
  /// One begun, any number of moved, one ended.
  void begun();
  void moved(double value);
  void ended();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseUngrabEvent() override;
  void hoverEnterEvent(QHoverEvent* event) override { setHover(event->position().x()); }
  void hoverMoveEvent(QHoverEvent* event) override { setHover(event->position().x()); }
  void hoverLeaveEvent(QHoverEvent*) override { setHover({}); }
  void geometryChange(const QRectF& geometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void placeKnob();
  void setDragged(bool isDragged);
  void setHover(std::optional<double> place);
  void moveTo(double place);

  double shown_ = 0;
  double maximumValue_ = 1;
  double stepSize_ = 1;
  double knobX_ = 0;
  double grip_ = 0;  // where the pointer holds the knob, from its middle
  bool isDragged_ = false;
  std::optional<double> hover_;  // where a pointer is that drags nothing
};

}  // namespace tromelo
