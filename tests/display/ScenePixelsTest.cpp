// The engine's pixels in the scene, out of shared memory.
#include "SceneTest.h"
#include "display/PixelFormat.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

using ScenePixelsTest = SceneTest;
using Layout = TestBuffer::Layout;

TEST_F(ScenePixelsTest, EveryFormatArrivesAsItIs) {
  for (const PixelFormat& format : kPixelFormats)
    for (const int padding : {0, 64}) {
      SCOPED_TRACE(::testing::Message() << std::hex << format.fourcc << " padding " << padding);
      auto& buffer = buffers_.emplace_back(
          std::make_unique<TestBuffer>(Layout{sceneSize, format.fourcc, padding, padding * 4}));
      // The fourth byte of a format without alpha says nothing.
      buffer->fill(patternColor, format.hasAlpha ? 255 : 17);
      buffer->createShm(*client_);
      show(*buffer);
      EXPECT_EQ(firstDifference(grab(), patternColor), "");
    }
}

TEST_F(ScenePixelsTest, AlphaIsBlendedWithWhatIsBehind) {
  window_->setColor(QColor(0, 0, 200));
  TestBuffer buffer({.size = sceneSize, .fourcc = kPixelFormats[0].fourcc});
  buffer.fill([](int, int) { return QColor(100, 0, 0); }, 0);  // adds to what is behind
  buffer.createShm(*client_);
  show(buffer);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(100, 0, 200));

  // Where the engine says that all of it is opaque, alpha counts for nothing.
  const Proxy<wl_region> region(wl_compositor_create_region(client_->compositor()));
  wl_region_add(region.get(), 0, 0, sceneSize.width(), sceneSize.height());
  wl_surface_set_opaque_region(toplevel_->surface(), region.get());
  show(buffer);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(100, 0, 0));
}

TEST_F(ScenePixelsTest, FadesWithItsItem) {
  TestBuffer buffer({.size = sceneSize});
  buffer.fill([](int, int) { return QColor(200, 100, 50); }, 0);
  buffer.createShm(*client_);
  show(buffer);
  item_->setOpacity(0.5);
  const QColor faded = grab().pixelColor(80, 45);
  EXPECT_NEAR(faded.red(), 100, 1);
  EXPECT_NEAR(faded.green(), 50, 1);
  EXPECT_NEAR(faded.blue(), 25, 1);
}

TEST_F(ScenePixelsTest, OnlyTheDamageIsUploadedAndAllOfIt) {
  const auto base = plainBuffer(*client_, sceneSize, Qt::red);
  const auto next = plainBuffer(*client_, sceneSize, Qt::green);
  show(*base);
  const QRect damage(20, 10, 30, 20);
  show(*next, damage);
  const auto expected = [&](int x, int y) {
    return damage.contains(x, y) ? QColor(Qt::green) : QColor(Qt::red);
  };
  EXPECT_EQ(firstDifference(grab(), expected), "");
}

TEST_F(ScenePixelsTest, TheDamageOfFramesThatTheSceneMissedIsNotLost) {
  const auto base = plainBuffer(*client_, sceneSize, Qt::red);
  const auto next = plainBuffer(*client_, sceneSize, Qt::green);
  show(*base);
  toplevel_->commit(next.get(), QRect(0, 0, 10, 10));
  show(*next, QRect(100, 50, 10, 10));  // the event loop has not run between the two
  const QImage image = grab();
  EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(105, 55), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(50, 30), QColor(Qt::red));
}

TEST_F(ScenePixelsTest, AnotherSizeIsFittedWithoutStretching) {
  const auto buffer = plainBuffer(*client_, QSize(90, 90), Qt::green);
  show(*buffer);
  const auto expected = [](int x, int) {
    return x >= 35 && x < 125 ? QColor(Qt::green) : QColor(Qt::black);
  };
  EXPECT_EQ(firstDifference(grab(), expected), "");
}

TEST_F(ScenePixelsTest, ShowsThePartThatTheEngineCropsTo) {
  TestBuffer buffer({.size = QSize(320, 180)});
  buffer.fill(patternColor);
  buffer.createShm(*client_);
  const Proxy<wp_viewport> viewport(
      wp_viewporter_get_viewport(client_->viewporter(), toplevel_->surface()));
  wp_viewport_set_source(viewport.get(), wl_fixed_from_int(40), wl_fixed_from_int(30),
                         wl_fixed_from_int(160), wl_fixed_from_int(90));
  show(buffer);
  EXPECT_EQ(firstDifference(grab(), [](int x, int y) { return patternColor(x + 40, y + 30); }), "");
}

TEST_F(ScenePixelsTest, APictureThatIsNotFollowedStaysInASceneThatIsMadeAnew) {
  const auto buffer = plainBuffer(*client_, sceneSize);
  show(*buffer);
  window_->setPersistentSceneGraph(false);
  window_->setPersistentGraphics(false);
  window_->hide();
  ASSERT_TRUE(wait([this] { return !window_->isSceneGraphInitialized(); }));
  window_->show();
  ASSERT_TRUE(wait([this] { return window_->isSceneGraphInitialized(); }));
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));

  const auto before = std::move(window_);
  EngineWindowItem* const item = item_;
  makeScene();
  item->setParentItem(window_->contentItem());
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
}

TEST_F(ScenePixelsTest, ThePictureGoesWhenTheEngineTakesItAway) {
  const auto buffer = plainBuffer(*client_, sceneSize);
  show(*buffer);
  ASSERT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
  toplevel_->commit(nullptr);
  EXPECT_TRUE(wait([&] { return !engineWindow_->isVisible(); }));
  EXPECT_TRUE(wait([&] { return grab().pixelColor(80, 45) == QColor(Qt::black); }));
}

TEST_F(ScenePixelsTest, TheLastPictureStaysWhenTheWindowIsTakenDownUntilAnotherIsSet) {
  const auto buffer = plainBuffer(*client_, sceneSize);
  show(*buffer);
  toplevel_.reset();
  EXPECT_TRUE(wait([&] { return display_->windows().isEmpty(); }));
  settle();
  EXPECT_FALSE(item_->engineWindow());
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
  item_->setEngineWindow(nullptr);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::black));

  toplevel_ = std::make_unique<TestToplevel>(*client_);
  toplevel_->start();
  ASSERT_TRUE(wait([&] { return added_.size() == 2; }));
  item_->setEngineWindow(added_.last());
  const auto green = plainBuffer(*client_, sceneSize, Qt::green);
  show(*green);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::green));
}

}  // namespace
}  // namespace tromelo::testing
