#include "display/HdrImageNode.h"

#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSGTexture>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// One colour all over.
class HdrItem : public QQuickItem {
 public:
  HdrItem(HdrImageNode::Signal signal, QRgb pixel, QQuickItem* parent)
      : QQuickItem(parent), signal_(signal), pixel_(pixel) {
    setFlag(ItemHasContents);
    setSize({32, 32});
  }

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override {
    if (node) return node;
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(pixel_);
    texture_.reset(window()->createTextureFromImage(image));
    auto* made = new HdrImageNode(signal_);  // the scene graph's
    made->setPicture(texture_.get(), boundingRect(), {0, 0, 4, 4});
    return made;
  }

 private:
  const HdrImageNode::Signal signal_;
  const QRgb pixel_;
  std::unique_ptr<QSGTexture> texture_;
};

TEST(HdrImageTest, LeavesWhatIsDarkAsItIsPressesHighlightsBelowWhiteAndNarrowsColours) {
  using Signal = HdrImageNode::Signal;
  const auto grey = [](int level) { return qRgb(level, level, level); };
  const struct {
    Signal signal;
    QRgb pixel;
    int red;  // that is shown
  } rows[] = {
      {Signal::pq, grey(0), 0},
      {Signal::pq, grey(112), 135},  // 50 cd/m², a quarter of reference white
      {Signal::pq, grey(148), 244},  // reference white
      {Signal::pq, grey(192), 255},  // 1,000 cd/m²
      {Signal::pq, grey(255), 255},
      {Signal::hlg, grey(0), 0},
      {Signal::hlg, grey(191), 244},  // reference white
      {Signal::hlg, grey(255), 255},
      {Signal::displayP3, grey(255), 255},
      {Signal::displayP3, qRgb(128, 64, 64), 138},
  };
  for (const auto& [signal, pixel, red] : rows) {
    QQuickWindow window;
    window.resize(32, 32);
    const HdrItem item(signal, pixel, window.contentItem());
    window.show();
    ASSERT_TRUE(waitFor([&] { return window.isExposed(); }));
    EXPECT_NEAR(window.grabWindow().pixelColor(16, 16).red(), red, 4) << qRed(pixel);
  }
}

}  // namespace tromelo::testing
