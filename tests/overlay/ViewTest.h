#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include "player/PlayerTest.h"
#include "support/ViewDriver.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// One view by itself in a window, and an engine that reports what a test says.
struct ViewTest : PlayerTest, protected ViewDriver {
  explicit ViewTest(const char* module = "Tromelo.Overlay") : module_(module) {
    host_.resize(800, 450);
    layer_.setParentItem(host_.contentItem());
    layer_.setSize(host_.size());
    host_.show();
  }

  void afterClick() override {
    EXPECT_EQ(host_.activeFocusItem(), host_.contentItem()) << "nothing took the keyboard";
  }

  /// With the model, and the chrome where it takes that too.
  QQuickItem& show(const char* type, QVariantMap properties = {}) {
    QQmlComponent component(&engine_, module_, type);
    properties.insert("parent", QVariant::fromValue(&layer_));
    view_.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
    if (!view_) qFatal("%s", qPrintable(component.errorString()));
    settle();
    takeSent();
    return *view_;
  }
  QVariant playback() { return QVariant::fromValue(&playback_); }
  QVariant shownChrome() { return QVariant::fromValue(&chrome()); }

  void load(double duration) {
    Reports::load(duration);
    takeSent();
  }
  using Reports::reportPlaylist;
  void reportPlaylist(int count, int current) {
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) names.push_back(std::to_string(i));
    reportPlaylist(names, std::size_t(current));
  }

  const QString module_;
  QQmlEngine engine_;
  QQuickItem layer_;
  std::unique_ptr<QQuickItem> view_;
};

}  // namespace tromelo::testing
