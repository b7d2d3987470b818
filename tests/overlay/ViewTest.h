#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include "player/PlayerTest.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// One view by itself in a window, and an engine that reports what a test says.
class ViewTest : public PlayerTest {
 protected:
  explicit ViewTest(const char* module = "Tromelo.Overlay") : module_(QString::fromLatin1(module)) {
    host_.resize(800, 450);
    layer_.setParentItem(host_.contentItem());
    layer_.setSize(host_.size());
    host_.show();
  }

  /// With the model, and the chrome where it takes that too.
  QQuickItem& show(const char* type, QVariantMap properties = {}) {
    QQmlComponent component(&engine_, module_, QString::fromLatin1(type));
    properties.insert(QStringLiteral("parent"), QVariant::fromValue(&layer_));
    view_.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
    if (!view_) qFatal("%s", qPrintable(component.errorString()));
    settle();
    takeSent();
    return *view_;
  }
  QVariant model() { return QVariant::fromValue(&playback_); }
  QVariant chrome() { return QVariant::fromValue(&player().chrome()); }

  void report(const MpvEvent& event) { playback_.engine().onEvent(event); }
  void report(MpvProperty property, MpvValue value) {
    report(MpvEvent(std::in_place_type<event::Property>, property, std::move(value)));
  }
  void load(double duration) {
    report(event::StartFile{});
    report(event::FileLoaded{});
    report(MpvProperty::duration, MpvValue(duration));
    takeSent();
  }
  void reportPlaylist(int count, int current) {
    MpvList list;
    for (int i = 0; i < count; ++i) {
      MpvMap entry{{"filename", MpvNode{"/films/" + std::to_string(i)}}};
      if (i == current) entry["current"] = MpvNode{true};
      list.push_back(MpvNode{entry});
    }
    report(MpvProperty::playlist, MpvNode{list});
  }
  void reportChapters(const std::vector<double>& times) {
    MpvList list;
    for (const double time : times)
      list.push_back(MpvNode{MpvMap{{"title", MpvNode{"A chapter"}}, {"time", MpvNode{time}}}});
    report(MpvProperty::chapterList, MpvNode{list});
  }

  /// Those of this name that are in the window, in their order.
  QList<QQuickItem*> items(const QString& name, const QQuickItem* within = nullptr) {
    QList<QQuickItem*> found;
    for (QQuickItem* child : (within ? within : host_.contentItem())->childItems()) {
      if (child->objectName() == name) found << child;
      found << items(name, child);
    }
    return found;
  }
  QQuickItem* item(const char* name) { return items(QString::fromUtf8(name)).value(0); }
  bool isShown(const char* name) { return item(name) && item(name)->isVisible(); }
  QString text(const char* name, const char* property = "text") {
    return item(name)->property(property).toString();
  }
  /// Rows place what is in them when a picture is drawn.
  void layOut() { host_.grabWindow(); }
  QRectF frame(const QQuickItem* view) { return view->mapRectToScene({QPointF(), view->size()}); }

  void mouse(QEvent::Type type, QPointF place, Qt::MouseButtons held) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, host_.position() + place, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&host_, &event);
  }
  void press(QPointF place) { mouse(QEvent::MouseButtonPress, place, Qt::LeftButton); }
  void drag(QPointF place) { mouse(QEvent::MouseMove, place, Qt::LeftButton); }
  void release(QPointF place) { mouse(QEvent::MouseButtonRelease, place, Qt::NoButton); }
  void click(QPointF place) {
    press(place);
    release(place);
    EXPECT_EQ(host_.activeFocusItem(), host_.contentItem()) << "nothing took the keyboard";
  }
  void click(const char* name) {
    layOut();
    click(frame(item(name)).center());
  }

  const QString module_;
  QQmlEngine engine_;
  QQuickWindow host_;
  QQuickItem layer_;
  std::unique_ptr<QQuickItem> view_;
};

}  // namespace tromelo::testing
