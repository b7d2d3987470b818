// The engine's buffers on a real host, out of shared memory and, where the host takes those, out of
// memfds that pass for a graphics card's.
#include <sys/sysmacros.h>

#include "SceneTest.h"
#include "display/VideoSinkKind.h"

namespace tromelo::testing {

class RealHostTest : public SceneTest {
 protected:
  // A host needn't show what lies below a window that is opaque.
  RealHostTest() { QQuickWindow::setDefaultAlphaBuffer(true); }
  ~RealHostTest() override { QQuickWindow::setDefaultAlphaBuffer(false); }

  VideoSinkKind kind() override {
    VideoSinkKind kind = chooseVideoSink({.asked = {}, .drawsWithOpenGl = [] { return true; }});
    goesToHost_ = kind.way.obstacle == PictureWay::Obstacle::none;
    takesDmabufs_ = kind.report.join(QString()).contains("zwp_linux_dmabuf_v1");
    if (takesDmabufs_)
      kind.dmabuf = DmabufSupport{makedev(226, 128), {{makedev(226, 128), 0, {{0x34325258, {0}}}}}};
    return kind;
  }

  void showOnHost(TestBuffer& buffer) {
    show(buffer);
    ASSERT_TRUE(wait([&] { return !item_->hole().isEmpty(); }));
    const auto answers = toplevel_->commit(&buffer);
    ASSERT_TRUE(wait([&] { return answers->presentation.has_value(); }));
    EXPECT_TRUE(answers->presentation->presented);
  }

  bool goesToHost_ = false;
  bool takesDmabufs_ = false;
};

TEST_F(RealHostTest, ShowsWhatTheEngineDrawsThroughHidingAndShowing) {
  if (!goesToHost_) GTEST_SKIP() << "this host shows no surfaces of the engine's";
  TestBuffer plain({.size = sceneSize});
  plain.createShm(*client_);
  showOnHost(plain);
  item_->setSize(sceneSize / 2);
  EXPECT_EQ(item_->hole().size(), sceneSize / 2);
  item_->setSize(sceneSize);
  for (int i = 0; i < 10; ++i) {
    scene_->hide();
    ASSERT_TRUE(wait([&] { return item_->hole().isEmpty(); }));
    scene_->show();
    showOnHost(plain);
  }
}

TEST_F(RealHostTest, ShowsDmabufs) {
  if (!takesDmabufs_) GTEST_SKIP() << "this host takes no dmabufs";
  TestBuffer buffer({.size = sceneSize});
  buffer.createDmabuf(*client_);
  bool isRefused = false;
  const QObject listener;  // ends before what it sets
  QObject::connect(item_, &EngineWindowItem::refusedByHost, &listener, [&] { isRefused = true; });
  showOnHost(buffer);
  EXPECT_FALSE(isRefused);
}

}  // namespace tromelo::testing
