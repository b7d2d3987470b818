// The engine's pixels in the scene, out of memory that EGL imports. A software EGL on a Wayland
// host takes a memfd for a GPU's buffer.
#include <sys/sysmacros.h>

#include <atomic>

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include "SceneTest.h"
#include "display/PixelFormat.h"
#include "display/SceneDrawing.h"
#include "display/SelftestLines.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

constexpr std::uint64_t linear = 0;
constexpr std::uint64_t someTiling = 0x0100000000000001;
constexpr std::uint64_t unknownTiling = 0x0100000000000002;  // announced, but EGL doesn't know it

/// Before the first window.
TEST(SceneDrawingTest, IsAsThePersonAsked) {
  const bool asksForSoftware = qgetenv("QT_QUICK_BACKEND") == "software";
  const SceneDrawing drawing = SceneDrawing::choose();
  EXPECT_EQ(drawing.withOpenGl, !asksForSoftware);
  EXPECT_FALSE(drawing.lacksOpenGl);
}

class DmabufTest : public SceneTest {
 protected:
  std::optional<DmabufSupport> dmabuf() const override {
    DmabufSupport::Tranche tranche{makedev(226, 128), 0, {}};
    for (const PixelFormat& format : kPixelFormats)
      tranche.formats.push_back({format.fourcc, {linear, unknownTiling}});
    return DmabufSupport{tranche.device, {tranche}};
  }

  TestBuffer& add(TestBuffer::Layout layout, std::uint64_t modifier = linear) {
    auto& buffer = buffers_.emplace_back(std::make_unique<TestBuffer>(layout));
    buffer->createDmabuf(*client_, modifier);
    return *buffer;
  }
  TestBuffer& addImported(QColor color) {
    TestBuffer& buffer = add({.size = sceneSize});
    buffer.fill([color](int, int) { return color; });
    return buffer;
  }
};

TEST_F(DmabufTest, EveryFormatArrivesAsItIs) {
  expectFormats([this](TestBuffer& buffer) { buffer.createDmabuf(*client_); });
}

TEST_F(DmabufTest, ABufferIsShownAgainWithItsNewContentAndMemoryMayBeShared) {
  TestBuffer& buffer = addImported(Qt::red);
  show(buffer);
  EXPECT_EQ(middle(), QColor(Qt::red));
  show(addPlain(Qt::blue));
  EXPECT_EQ(middle(), QColor(Qt::blue));
  buffer.fill([](int, int) { return QColor(Qt::green); });
  show(buffer);
  EXPECT_EQ(middle(), QColor(Qt::green));
}

TEST_F(DmabufTest, ABufferGoesBackWhenTheNextIsOnTheScreenAndNotBefore) {
  TestBuffer& first = addImported(Qt::red);
  TestBuffer& second = addImported(Qt::green);
  show(first);
  std::atomic<int> releasesBeforeSwap = -1;
  QObject::connect(
      scene_.get(), &QQuickWindow::afterRendering, scene_.get(),
      [&] {
        // On the render thread, while the main thread leaves the client alone.
        client_->roundtrip();
        client_->roundtrip();
        releasesBeforeSwap = first.releases();
      },
      static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection));
  toplevel_->commit(&second);
  ASSERT_TRUE(waitFor([&] { return releasesBeforeSwap >= 0; }));
  EXPECT_EQ(releasesBeforeSwap, 0);
  EXPECT_TRUE(wait([&] { return first.releases() == 1; }));
  EXPECT_EQ(second.releases(), 0);
}

TEST_F(DmabufTest, TheEngineMayDestroyABufferThatIsShownOrOnItsWay) {
  TestBuffer& first = addImported(Qt::red);
  const auto answers = toplevel_->commit(&first);
  first.destroyBuffer();
  ASSERT_TRUE(wait([&] { return answers->presentation.has_value(); }));
  EXPECT_TRUE(answers->presentation->presented);
  EXPECT_EQ(middle(), QColor(Qt::red));
  show(addImported(Qt::green));
  EXPECT_EQ(middle(), QColor(Qt::green));
}

TEST_F(DmabufTest, AnErrorThatSomebodyLeftRefusesNothing) {
  QObject::connect(
      scene_.get(), &QQuickWindow::beforeSynchronizing, scene_.get(),
      [] { QOpenGLContext::currentContext()->functions()->glEnable(GL_INVALID_ENUM); },
      Qt::DirectConnection);
  show(addImported(Qt::red));
  EXPECT_EQ(middle(), QColor(Qt::red));
}

/// Also where the processor draws, which imports nothing.
TEST_F(DmabufTest, WhatCannotBeImportedIsRefusedAndTheNextComeThroughSharedMemory) {
  int refused = 0;
  const QObject listener;  // ends before what it counts
  QObject::connect(item_, &EngineWindowItem::pictureRefused, &listener, [&] { ++refused; });
  TestBuffer& buffer = add({.size = sceneSize}, unknownTiling);
  toplevel_->commit(&buffer);
  EXPECT_TRUE(wait([&] { return refused > 0 && buffer.releases() == 1; }));
  EXPECT_TRUE(display_->withdrawDmabufs());
  EXPECT_FALSE(display_->withdrawDmabufs());
  EXPECT_EQ(qgetenv("MESA_VK_WSI_DEBUG"), "sw");
  EXPECT_TRUE(wait([&] { return !TestClient(display_->socketPath()).dmabuf; }));
  show(addPlain(Qt::blue));
  EXPECT_EQ(middle(), QColor(Qt::blue));
}

TEST_F(DmabufTest, TheSelftestImportsAFrameForReal) {
  const auto sink = std::make_shared<KeepingSink>();
  window_->setSink(sink);
  const auto lineOf = [&](std::uint64_t modifier) {
    TestBuffer& buffer = add({.size = sceneSize}, modifier);
    toplevel_->commit(&buffer);
    std::shared_ptr<Frame> frame;
    EXPECT_TRUE(wait([&] { return (frame = sink->takeLast()) != nullptr; }));
    return importLine(*frame);
  };
  EXPECT_EQ(lineOf(linear), "import: the frame is a texture without a copy");
  EXPECT_EQ(lineOf(unknownTiling), "import: refused, the player falls back to shared memory");
}

TEST_F(DmabufTest, AnnouncesItsDeviceFormatsAndModifiers) {
  const QString lines = displayLines(display_->socketPath()).join('\n');
  EXPECT_TRUE(lines.contains("dmabuf main device: 226:128"));
  for (const char* format : {"AR24", "XR24", "AB24", "XB24"})
    EXPECT_TRUE(lines.contains(
        QStringLiteral("dmabuf format: %1 with linear, 0x0100000000000002").arg(format)));
}

TEST_F(DmabufTest, WhatWasNotAnnouncedIsRefused) {
  constexpr std::uint32_t tenBit = 0x30335258;  // XR30
  const struct {
    const char* name;
    std::uint32_t fourcc;
    std::uint64_t modifier;
    int padding;
  } cases[] = {
      {"modifier", kPixelFormats[0].fourcc, someTiling, 0},
      {"format", tenBit, linear, 0},
      {"stride shorter than a line", kPixelFormats[0].fourcc, linear, -sceneSize.width() * 2},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    TestClient client(display_->socketPath());
    TestBuffer buffer({sceneSize, row.fourcc, row.padding});
    buffer.createDmabuf(client, row.modifier);
    TestToplevel toplevel(client);
    toplevel.start();
    EXPECT_TRUE(client.faultyInterface().starts_with("zwp_linux"));
    buffer.destroyBuffer();
  }
  show(addImported(Qt::green));
}

}  // namespace tromelo::testing
