#include "display/HdrImageNode.h"

#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSGTexture>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// One grey all over.
class HdrItem : public QQuickItem {
 public:
  HdrItem(HdrImageNode::Transfer transfer, int level, QQuickItem* parent)
      : QQuickItem(parent), transfer_(transfer), level_(level) {
    setFlag(ItemHasContents);
    setSize({32, 32});
  }

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override {
    if (node) return node;
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(QColor(level_, level_, level_));
    texture_.reset(window()->createTextureFromImage(image));
    auto* made = new HdrImageNode(transfer_);  // the scene graph's
    made->setPicture(texture_.get(), boundingRect(), {0, 0, 4, 4});
    return made;
  }

 private:
  const HdrImageNode::Transfer transfer_;
  const int level_;
  std::unique_ptr<QSGTexture> texture_;
};

TEST(HdrImageTest, LeavesWhatIsDarkAsItIsAndPressesHighlightsBelowWhite) {
  using Transfer = HdrImageNode::Transfer;
  const struct {
    Transfer transfer;
    int signal;
    int shown;
  } rows[] = {
      {Transfer::pq, 0, 0},
      {Transfer::pq, 112, 135},  // 50 cd/m², a quarter of reference white
      {Transfer::pq, 148, 244},  // reference white
      {Transfer::pq, 192, 255},  // 1,000 cd/m²
      {Transfer::pq, 255, 255},
      {Transfer::hlg, 0, 0},
      {Transfer::hlg, 191, 244},  // reference white
      {Transfer::hlg, 255, 255},
  };
  for (const auto& [transfer, signal, shown] : rows) {
    QQuickWindow window;
    window.resize(32, 32);
    const HdrItem item(transfer, signal, window.contentItem());
    window.show();
    ASSERT_TRUE(waitFor([&] { return window.isExposed(); }));
    EXPECT_NEAR(window.grabWindow().pixelColor(16, 16).red(), shown, 4) << signal;
  }
}

}  // namespace tromelo::testing
