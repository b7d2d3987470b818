// The engine's pixels in the scene, out of shared memory.
#include "SceneTest.h"
#include "display/PixelFormat.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using ScenePixelsTest = SceneTest;

TEST_F(ScenePixelsTest, EveryFormatArrivesAsItIs) {
  expectFormats([this](TestBuffer& buffer) { buffer.createShm(*client_); });
}

TEST_F(ScenePixelsTest, AlphaIsBlendedWithWhatIsBehind) {
  scene_->setColor(QColor(0, 0, 200));
  TestBuffer buffer({.size = sceneSize, .fourcc = kPixelFormats[0].fourcc});
  buffer.fill([](int, int) { return QColor(100, 0, 0); }, 0);  // adds to what is behind
  buffer.createShm(*client_);
  show(buffer);
  EXPECT_EQ(middle(), QColor(100, 0, 200));

  // Where the engine says that all of it is opaque, alpha counts for nothing.
  const Proxy<wl_region> region(wl_compositor_create_region(client_->compositor.get()));
  wl_region_add(region.get(), 0, 0, sceneSize.width(), sceneSize.height());
  wl_surface_set_opaque_region(toplevel_->surface(), region.get());
  show(buffer);
  EXPECT_EQ(middle(), QColor(100, 0, 0));
  item_->setOpacity(0.5);
  EXPECT_NEAR(middle().red(), 50, 1);
  EXPECT_NEAR(middle().blue(), 100, 1);
}

TEST_F(ScenePixelsTest, OnlyTheDamageIsUploadedAlsoThatOfFramesThatTheSceneMissed) {
  const QRect missed(20, 10, 30, 20);
  const QRect damage(100, 50, 10, 10);
  const TestBuffer& next = addPlain(Qt::green);
  show(addPlain(Qt::red));
  toplevel_->commit(&next, missed);
  show(next, damage);  // the event loop has not run between the two
  expectPixels([&](int x, int y) {
    return QColor(missed.contains(x, y) || damage.contains(x, y) ? Qt::green : Qt::red);
  });
}

TEST_F(ScenePixelsTest, ShowsThePartThatTheEngineCropsTo) {
  TestBuffer buffer({.size = QSize(320, 180)});
  buffer.fill(patternColor);
  buffer.createShm(*client_);
  const Proxy<wp_viewport> viewport(
      wp_viewporter_get_viewport(client_->viewporter.get(), toplevel_->surface()));
  wp_viewport_set_source(viewport.get(), wl_fixed_from_int(40), wl_fixed_from_int(30),
                         wl_fixed_from_int(160), wl_fixed_from_int(90));
  show(buffer);
  expectPixels([](int x, int y) { return patternColor(x + 40, y + 30); });
}

TEST_F(ScenePixelsTest, APictureThatIsNotFollowedStaysInASceneThatIsMadeAnew) {
  show(addPlain());
  scene_->setPersistentSceneGraph(false);
  scene_->setPersistentGraphics(false);
  scene_->hide();
  ASSERT_TRUE(wait([this] { return !scene_->isSceneGraphInitialized(); }));
  scene_->show();
  ASSERT_TRUE(wait([this] { return scene_->isSceneGraphInitialized(); }));
  EXPECT_EQ(middle(), QColor(Qt::red));

  const auto before = std::move(scene_);
  EngineWindowItem* const item = item_;
  makeScene();
  item->setParentItem(scene_->contentItem());
  EXPECT_EQ(middle(), QColor(Qt::red));
}

TEST_F(ScenePixelsTest, ThePictureGoesWhenTheEngineTakesItAway) {
  show(addPlain());
  ASSERT_EQ(middle(), QColor(Qt::red));
  toplevel_->commit(nullptr);
  EXPECT_TRUE(wait([&] { return middle() == QColor(Qt::black); }));
}

TEST_F(ScenePixelsTest, TheLastPictureStaysWhenTheWindowIsTakenDownUntilAnotherIsSet) {
  show(addPlain());
  toplevel_.reset();
  EXPECT_TRUE(wait([&] { return display_->windows().isEmpty(); }));
  settle();
  EXPECT_FALSE(item_->engineWindow());
  EXPECT_EQ(middle(), QColor(Qt::red));
  item_->setEngineWindow(nullptr);
  EXPECT_EQ(middle(), QColor(Qt::black));

  openWindow();
  item_->setEngineWindow(window_);
  show(addPlain(Qt::green));
  EXPECT_EQ(middle(), QColor(Qt::green));
}

}  // namespace tromelo::testing
