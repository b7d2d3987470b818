#include "TestBuffer.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include "display/PixelFormat.h"

namespace tromelo::testing {

TestBuffer::TestBuffer(const Layout& layout)
    : layout_(layout), fd_(memfd_create("tromelo-test", MFD_CLOEXEC)) {
  if (ftruncate(fd_.get(), off_t(layout.length())) != 0) return;
  memory_ = static_cast<unsigned char*>(
      mmap(nullptr, layout.length(), PROT_READ | PROT_WRITE, MAP_SHARED, fd_.get(), 0));
}

TestBuffer::~TestBuffer() { munmap(memory_, layout_.length()); }

void TestBuffer::fill(const std::function<QColor(int, int)>& color, int alpha) {
  const bool blueFirst = pixelFormat(layout_.fourcc)->blueFirst;
  for (int y = 0; y < layout_.size.height(); ++y)
    for (int x = 0; x < layout_.size.width(); ++x) {
      const QColor c = color(x, y);
      unsigned char* pixel = memory_ + layout_.offset + y * layout_.stride() + x * 4;
      pixel[blueFirst ? 2 : 0] = static_cast<unsigned char>(c.red());
      pixel[1] = static_cast<unsigned char>(c.green());
      pixel[blueFirst ? 0 : 2] = static_cast<unsigned char>(c.blue());
      pixel[3] = static_cast<unsigned char>(alpha);
    }
}

void TestBuffer::createShm(TestClient& client) {
  const Proxy<wl_shm_pool> pool(
      wl_shm_create_pool(client.shm.get(), fd_.get(), int(layout_.length())));
  buffer_.reset(wl_shm_pool_create_buffer(pool.get(), layout_.offset, layout_.size.width(),
                                          layout_.size.height(), layout_.stride(),
                                          shmNumber(layout_.fourcc)));
  watch();
}

void TestBuffer::createDmabuf(TestClient& client, std::uint64_t modifier) {
  const Proxy<zwp_linux_buffer_params_v1> params(
      zwp_linux_dmabuf_v1_create_params(client.dmabuf.get()));
  zwp_linux_buffer_params_v1_add(params.get(), fd_.get(), 0, std::uint32_t(layout_.offset),
                                 std::uint32_t(layout_.stride()), std::uint32_t(modifier >> 32),
                                 std::uint32_t(modifier));
  buffer_.reset(zwp_linux_buffer_params_v1_create_immed(params.get(), layout_.size.width(),
                                                        layout_.size.height(), layout_.fourcc, 0));
  watch();
  client.roundtrip();
}

void TestBuffer::truncate() { EXPECT_EQ(ftruncate(fd_.get(), 0), 0); }

void TestBuffer::watch() {
  static constexpr wl_buffer_listener listener{
      .release = [](void* self, wl_buffer*) { ++static_cast<TestBuffer*>(self)->releases_; }};
  wl_buffer_add_listener(buffer_.get(), &listener, this);
}

}  // namespace tromelo::testing
