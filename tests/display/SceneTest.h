#pragma once

#include <QQuickWindow>

#include "DisplayTest.h"
#include "display/EngineWindowItem.h"

namespace tromelo::testing {

/// A Qt Quick window on the host with an item for the client's window.
class SceneTest : public DisplayTest {
 protected:
  static constexpr QSize sceneSize{160, 90};

  void SetUp() override;
  void TearDown() override;

  void makeScene();
  void closeScene();
  /// Commits, and waits until the picture is on the screen.
  void show(const TestBuffer& buffer, QRect damage = {});
  /// What the scene looks like, in device pixels.
  QImage grab() const { return window_->grabWindow(); }

  std::unique_ptr<QQuickWindow> window_;
  EngineWindowItem* item_ = nullptr;
  std::unique_ptr<TestToplevel> toplevel_;
  EngineWindow* engineWindow_ = nullptr;
  std::vector<std::unique_ptr<TestBuffer>> buffers_;
};

/// A picture that is different wherever it is turned or mirrored, or its colours are mixed up.
QColor patternColor(int x, int y);

/// The first difference of `image` and the colours that are expected of it; empty when there is
/// none.
std::string firstDifference(const QImage& image, const std::function<QColor(int, int)>& expected);

}  // namespace tromelo::testing
