#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <chrono>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// A window with views, which a test finds by their names and uses as a hand would.
struct ViewDriver {
  virtual ~ViewDriver() = default;
  virtual QQuickWindow& window() { return host_; }

  /// Those of this name that are in the window, in their order.
  QList<QQuickItem*> items(const QString& name, const QQuickItem* within = nullptr) {
    QList<QQuickItem*> found;
    for (QQuickItem* child : (within ? within : window().contentItem())->childItems()) {
      if (child->objectName() == name) found << child;
      found << items(name, child);
    }
    return found;
  }
  QQuickItem* item(const char* name) { return items(name).value(0); }
  bool isShown(const char* name) { return item(name) && item(name)->isVisible(); }
  QString text(const char* name, const char* property = "text") {
    return item(name)->property(property).toString();
  }
  /// Rows place what is in them when a picture is drawn.
  void layOut() { window().grabWindow(); }
  QRectF frame(const QQuickItem* view) { return view->mapRectToScene({QPointF(), view->size()}); }
  QRectF frame(const char* name) { return frame(item(name)); }
  /// What can be seen of this name, from top to bottom and left to right.
  QList<QQuickItem*> all(const char* name, const QQuickItem* within = nullptr) {
    QList<QQuickItem*> found = items(name, within);
    found.removeIf([](const QQuickItem* one) { return !one->isVisible(); });
    std::ranges::stable_sort(found, {}, [this](QQuickItem* one) {
      return std::pair(frame(one).top(), frame(one).left());
    });
    return found;
  }
  QQuickItem* only(const char* name, const QQuickItem* within = nullptr) {
    const auto found = all(name, within);
    return found.size() == 1 ? found.first() : nullptr;
  }
  static QStringList texts(const QList<QQuickItem*>& items, const char* property = "text") {
    QStringList found;
    for (const QQuickItem* one : items) found << one->property(property).toString();
    return found;
  }

  void mouse(QEvent::Type type, QPointF place, Qt::MouseButtons held,
             Qt::MouseButton button = Qt::NoButton) {
    pointer_ = window().position() + place;
    QMouseEvent event(type, place, pointer_, button, held, Qt::NoModifier);
    event.setTimestamp(static_cast<quint64>(time_.count()));
    QCoreApplication::sendEvent(&window(), &event);
  }
  void move(QPointF place) { mouse(QEvent::MouseMove, place, Qt::NoButton); }
  void drag(QPointF place) { mouse(QEvent::MouseMove, place, Qt::LeftButton); }
  void press(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonPress, place, button, button);
  }
  void release(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonRelease, place, Qt::NoButton, button);
    time_ += std::chrono::milliseconds(50);
  }
  void click(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    press(place, button);
    release(place, button);
    afterClick();
  }
  virtual void afterClick() {}
  void click(const QQuickItem* one, Qt::MouseButton button = Qt::LeftButton) {
    ASSERT_TRUE(one);
    layOut();
    click(frame(one).center(), button);
    settle();
    layOut();
  }
  void click(const char* name) { click(item(name)); }
  void scroll(QPointF place) {
    QWheelEvent event(place, place, {0, -120}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &event);
  }

  void key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&window(), Qt::Key(key), modifiers);
    settle();
    layOut();
  }

  QQuickWindow host_;
  QPointF pointer_;  // on the screen
  std::chrono::milliseconds time_ = std::chrono::seconds(1);
};

}  // namespace tromelo::testing
