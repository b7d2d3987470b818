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
namespace {

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
  TestBuffer& addPlain(QColor color) {
    TestBuffer& buffer = add({.size = sceneSize});
    buffer.fill([color](int, int) { return color; });
    return buffer;
  }
};

TEST_F(DmabufTest, EveryFormatArrivesAsItIs) {
  for (const PixelFormat& format : kPixelFormats)
    for (const int padding : {0, 64}) {
      SCOPED_TRACE(::testing::Message() << std::hex << format.fourcc << " padding " << padding);
      TestBuffer& buffer = add({sceneSize, format.fourcc, padding});
      buffer.fill(patternColor, format.hasAlpha ? 255 : 17);
      show(buffer);
      EXPECT_EQ(firstDifference(grab(), patternColor), "");
    }
}

TEST_F(DmabufTest, ABufferIsShownAgainWithItsNewContentAndWithoutACopy) {
  TestBuffer& buffer = addPlain(Qt::red);
  show(buffer);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
  buffer.fill([](int, int) { return QColor(Qt::green); });
  show(buffer);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::green));
}

TEST_F(DmabufTest, ABufferGoesBackWhenTheNextIsOnTheScreenAndNotBefore) {
  TestBuffer& first = addPlain(Qt::red);
  TestBuffer& second = addPlain(Qt::green);
  show(first);
  std::atomic<int> releasesBeforeSwap = -1;
  QObject::connect(
      window_.get(), &QQuickWindow::afterRendering, window_.get(),
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
  TestBuffer& first = addPlain(Qt::red);
  const auto answers = toplevel_->commit(&first);
  first.destroyBuffer();
  ASSERT_TRUE(wait([&] { return answers->presentation.has_value(); }));
  EXPECT_TRUE(answers->presentation->presented);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
  show(addPlain(Qt::green));
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::green));
}

TEST_F(DmabufTest, KindsOfMemoryMayChangeFromFrameToFrame) {
  const auto shared = plainBuffer(*client_, sceneSize, Qt::blue);
  show(addPlain(Qt::red));
  show(*shared);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::blue));
  show(addPlain(Qt::green));
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::green));
}

TEST_F(DmabufTest, AnErrorThatSomebodyLeftRefusesNothing) {
  QObject::connect(
      window_.get(), &QQuickWindow::beforeSynchronizing, window_.get(),
      [] { QOpenGLContext::currentContext()->functions()->glEnable(GL_INVALID_ENUM); },
      Qt::DirectConnection);
  show(addPlain(Qt::red));
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::red));
}

/// Also where the processor draws, which imports nothing.
TEST_F(DmabufTest, WhatCannotBeImportedIsRefusedAndTheNextComeThroughSharedMemory) {
  int refused = 0;
  QObject::connect(item_, &EngineWindowItem::pictureRefused, item_, [&] { ++refused; });
  TestBuffer& buffer = add({.size = sceneSize}, unknownTiling);
  toplevel_->commit(&buffer);
  EXPECT_TRUE(wait([&] { return refused > 0 && buffer.releases() == 1; }));
  EXPECT_TRUE(display_->withdrawDmabufs());
  EXPECT_FALSE(display_->withdrawDmabufs());
  EXPECT_EQ(qgetenv("MESA_VK_WSI_DEBUG"), "sw");
  EXPECT_TRUE(wait([&] {
    return !TestClient(display_->socketPath()).globals().contains("zwp_linux_dmabuf_v1");
  }));
  const auto shared = plainBuffer(*client_, sceneSize, Qt::blue);
  show(*shared);
  EXPECT_EQ(grab().pixelColor(80, 45), QColor(Qt::blue));
}

TEST_F(DmabufTest, TheSelftestImportsAFrameForReal) {
  const auto sink = std::make_shared<KeepingSink>();
  engineWindow_->setSink(sink);
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
  const QStringList lines = displayLines(display_->socketPath());
  EXPECT_TRUE(lines.contains("dmabuf main device: 226:128"));
  EXPECT_EQ(lines.filter("dmabuf format: "),
            (QStringList{"dmabuf format: AR24 with linear, 0x0100000000000002",
                         "dmabuf format: XR24 with linear, 0x0100000000000002",
                         "dmabuf format: AB24 with linear, 0x0100000000000002",
                         "dmabuf format: XB24 with linear, 0x0100000000000002"}));
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
  show(addPlain(Qt::green));
}

}  // namespace
}  // namespace tromelo::testing
