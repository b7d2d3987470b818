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
  TestBuffer& addPlain(QColor color = Qt::red) { return addBuffer(sceneSize, color); }
  /// Commits, and waits until the picture is on the screen.
  void show(const TestBuffer& buffer, QRect damage = {});
  /// What the scene looks like, in device pixels.
  QImage grab() const { return scene_->grabWindow(); }
  QColor middle() const { return grab().pixelColor(80, 45); }
  /// Of every format and with lines of any length, once `create` has made the buffer.
  void expectFormats(const std::function<void(TestBuffer&)>& create);
  void expectPixels(const std::function<QColor(int, int)>& expected) const;

  std::unique_ptr<QQuickWindow> scene_;
  EngineWindowItem* item_ = nullptr;
};

/// A picture that is different wherever it is turned or mirrored, or its colours are mixed up.
QColor patternColor(int x, int y);

}  // namespace tromelo::testing
