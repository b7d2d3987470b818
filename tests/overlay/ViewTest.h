#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include "player/PlayerTest.h"
#include "support/ViewDriver.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// One view by itself in a window, and an engine that reports what a test says.
class ViewTest : public PlayerTest, protected ViewDriver {
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

  const QString module_;
  QQmlEngine engine_;
  QQuickItem layer_;
  std::unique_ptr<QQuickItem> view_;
};

}  // namespace tromelo::testing
