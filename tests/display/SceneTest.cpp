#include "SceneTest.h"

#include "display/PixelFormat.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

void SceneTest::SetUp() {
  DisplayTest::SetUp();
  makeScene();
  openWindow();
  item_->setEngineWindow(window_);
}

void SceneTest::TearDown() {
  toplevel_.reset();
  buffers_.clear();
  closeScene();
  client_.reset();
  display_.reset();
  // What the host's connection and its driver keep is theirs.
}

void SceneTest::makeScene() {
  scene_ = std::make_unique<QQuickWindow>();
  scene_->setFlag(Qt::FramelessWindowHint);
  scene_->setColor(Qt::black);
  scene_->resize(sceneSize);
  item_ = new EngineWindowItem(scene_->contentItem());
  item_->setSize(sceneSize);
  scene_->show();
  ASSERT_TRUE(wait([this] { return scene_->isExposed(); }));
}

void SceneTest::closeScene() {
  item_ = nullptr;
  scene_.reset();
  settle();
}

void SceneTest::show(const TestBuffer& buffer, QRect damage) {
  const auto answers = toplevel_->commit(&buffer, damage);
  ASSERT_TRUE(wait([&] { return answers->presentation && answers->frameCallbacks == 1; }));
  ASSERT_TRUE(answers->presentation->presented);
}

void SceneTest::expectFormats(const std::function<void(TestBuffer&)>& create) {
  for (const PixelFormat& format : kPixelFormats)
    for (const int padding : {0, 64}) {
      SCOPED_TRACE(::testing::Message() << std::hex << format.fourcc << " padding " << padding);
      TestBuffer buffer({sceneSize, format.fourcc, padding, padding * 4});
      // The fourth byte of a format without alpha says nothing.
      buffer.fill(patternColor, format.hasAlpha ? 255 : 17);
      create(buffer);
      show(buffer);
      expectPixels(patternColor);
    }
}

void SceneTest::expectPixels(const std::function<QColor(int, int)>& expected) const {
  const QImage image = grab();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      ASSERT_EQ(QColor(image.pixel(x, y)).name(), expected(x, y).name()) << x << ", " << y;
}

QColor patternColor(int x, int y) {
  return QColor((x * 7 + y) % 256, (y * 11) % 256, ((x + 3 * y) * 5) % 256);
}

}  // namespace tromelo::testing
