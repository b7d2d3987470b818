#pragma once

#include <QSize>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <variant>

struct wlr_buffer;

namespace tromelo {

/// The pixels of one shared-memory buffer, mapped for reading.
class ShmPixels {
 public:
  /// Maps `length` bytes at `offset` of `fd`; data() is null when the system refuses.
  ShmPixels(int fd, std::size_t offset, std::size_t length, int stride);
  ~ShmPixels();
  ShmPixels(const ShmPixels&) = delete;
  ShmPixels& operator=(const ShmPixels&) = delete;

  const std::byte* data() const { return data_; }
  int stride() const { return stride_; }  // bytes
  /// For who passes the memory on. The descriptor is the buffer's and good while it is locked.
  int fd() const { return fd_; }
  std::size_t offset() const { return offset_; }

 private:
  int fd_;
  std::size_t offset_;
  void* mapping_;
  std::size_t mappedLength_;
  const std::byte* data_;
  int stride_;
};

/// Pixels in a buffer of the GPU's. The descriptors are the buffer's and good while it is locked.
struct DmabufPixels {
  struct Plane {
    int fd = -1;
    std::uint32_t offset = 0;
    std::uint32_t stride = 0;
  };
  std::uint64_t modifier = 0;
  int planeCount = 0;
  std::array<Plane, 4> planes;
};

/// What there is to know of one of the engine's buffers, from its first commit until the engine
/// destroys it. Two commits of one buffer share this object, so it can key a cache. Any thread.
struct ClientBuffer {
  std::uint32_t fourcc = 0;  // one that was announced
  QSize size;
  std::variant<std::shared_ptr<const ShmPixels>, DmabufPixels> pixels;

  /// Display's thread. None when the buffer is of an unknown kind, or names memory that isn't
  /// there.
  static std::shared_ptr<const ClientBuffer> of(wlr_buffer* buffer);
};

}  // namespace tromelo
