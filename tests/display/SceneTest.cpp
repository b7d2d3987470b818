#include "SceneTest.h"

#include "support/WaitFor.h"

namespace tromelo::testing {

void SceneTest::SetUp() {
  DisplayTest::SetUp();
  makeScene();
  toplevel_ = std::make_unique<TestToplevel>(*client_);
  toplevel_->start();
  engineWindow_ = announcedWindow();
  ASSERT_TRUE(engineWindow_);
  item_->setEngineWindow(engineWindow_);
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
  window_ = std::make_unique<QQuickWindow>();
  window_->setFlag(Qt::FramelessWindowHint);
  window_->setColor(Qt::black);
  window_->resize(sceneSize);
  item_ = new EngineWindowItem(window_->contentItem());
  item_->setSize(sceneSize);
  window_->show();
  ASSERT_TRUE(wait([this] { return window_->isExposed(); }));
}

void SceneTest::closeScene() {
  item_ = nullptr;
  window_.reset();
  settle();
}

void SceneTest::show(const TestBuffer& buffer, QRect damage) {
  const auto answers = toplevel_->commit(&buffer, damage);
  ASSERT_TRUE(wait([&] { return answers->presentation && answers->frameCallbacks == 1; }));
  ASSERT_TRUE(answers->presentation->presented);
}

QColor patternColor(int x, int y) {
  return QColor((x * 7 + y) % 256, (y * 11) % 256, ((x + 3 * y) * 5) % 256);
}

std::string firstDifference(const QImage& image, const std::function<QColor(int, int)>& expected) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (const QColor found = image.pixelColor(x, y), wanted = expected(x, y);
          found.rgb() != wanted.rgb())
        return QStringLiteral("at %1, %2: %3 instead of %4")
            .arg(x)
            .arg(y)
            .arg(found.name(), wanted.name())
            .toStdString();
  return {};
}

}  // namespace tromelo::testing
