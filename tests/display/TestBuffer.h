#pragma once

#include <QColor>
#include <QSize>
#include <cstdint>
#include <functional>

#include "TestClient.h"
#include "platform/UniqueFd.h"

namespace tromelo::testing {

/// Pixels of a test's own in memory that has a descriptor, and the wl_buffer for them.
class TestBuffer {
 public:
  struct Layout {
    QSize size;
    std::uint32_t fourcc = 0x34325258;  // XR24
    int padding = 0;                    // bytes after each line
    int offset = 0;                     // bytes before the first

    int stride() const { return size.width() * 4 + padding; }
    std::size_t length() const {
      return std::size_t(offset) + std::size_t(stride() * size.height());
    }
  };

  /// No wl_buffer yet; the memory is zero.
  explicit TestBuffer(const Layout& layout);
  ~TestBuffer();
  TestBuffer(const TestBuffer&) = delete;
  TestBuffer& operator=(const TestBuffer&) = delete;

  /// Premultiplied; `alpha` is what the fourth byte gets, also in formats where it means nothing.
  void fill(const std::function<QColor(int x, int y)>& color, int alpha = 255);

  void createShm(TestClient& client);
  void createDmabuf(TestClient& client, std::uint64_t modifier = 0);
  void destroyBuffer() { buffer_.reset(); }

  wl_buffer* get() const { return buffer_.get(); }
  int releases() const { return releases_; }
  /// As when an engine cuts off memory that it has handed over.
  void truncate();

 private:
  void watch();

  Layout layout_;
  UniqueFd fd_;
  unsigned char* memory_ = nullptr;
  Proxy<wl_buffer> buffer_;
  int releases_ = 0;
};

}  // namespace tromelo::testing
