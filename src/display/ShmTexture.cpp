#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QQuickWindow>
#include <optional>

#include "display/FrameTexture.h"
#include "display/GlTexture.h"
#include "display/PixelFormat.h"

namespace tromelo {

namespace {

// Beyond this, one upload of everything is cheaper than many of parts.
constexpr int kMaximumRectangles = 8;
constexpr double kWorthwhileShare = 0.75;

// From desktop OpenGL and OpenGL ES 3, where GLES2's header doesn't have them.
constexpr GLenum kUnpackRowLength = 0x0CF2;
constexpr GLenum kSwizzleRed = 0x8E42;
constexpr GLenum kSwizzleBlue = 0x8E44;
constexpr GLenum kRed = 0x1903;
constexpr GLenum kBlue = 0x1905;
constexpr GLenum kTenBitInternal = 0x8059;  // RGB10_A2
constexpr GLenum kTenBitType = 0x8368;      // UNSIGNED_INT_2_10_10_10_REV
constexpr GLenum kHalfInternal = 0x881A;    // RGBA16F
constexpr GLenum kHalfType = 0x140B;        // HALF_FLOAT

struct Storage {
  GLenum internalFormat, type;
};

Storage storageOf(const PixelFormat& format) {
  switch (format.depth) {
    case PixelFormat::Depth::bits10:
      return {kTenBitInternal, kTenBitType};
    case PixelFormat::Depth::half:
      return {kHalfInternal, kHalfType};
    case PixelFormat::Depth::bits8:
      break;
  }
  return {GL_RGBA, GL_UNSIGNED_BYTE};
}

double area(const QRegion& region) {
  double sum = 0;
  for (const QRect& rect : region) sum += double(rect.width()) * rect.height();
  return sum;
}

QRegion worthUploading(const QRegion& damage, QSize size) {
  const QRect whole(QPoint(), size);
  const QRegion region = damage & whole;
  const bool isWorthwhile = region.rectCount() <= kMaximumRectangles &&
                            area(region) < kWorthwhileShare * size.width() * size.height();
  return isWorthwhile ? region : QRegion(whole);
}

/// One texture for all frames of a size. The bytes are uploaded as they are; the sampler puts the
/// colours in their places.
class ShmTexture final : public FrameTexture {
 public:
  QSGTexture* prepare(QQuickWindow* window, const Frame& frame) override;
  void update(Frame& frame, const QRegion& damage) override;

 private:
  void allocate(QSize size, const PixelFormat& format);
  void upload(const ShmPixels& pixels, const QRegion& region) const;

  std::optional<GlTexture> texture_;
  QSize size_;
  PixelFormat format_;
  bool isBlank_ = true;
};

QSGTexture* ShmTexture::prepare(QQuickWindow* window, const Frame& frame) {
  const ClientBuffer& buffer = *frame.content().buffer;
  const PixelFormat format = *pixelFormat(buffer.fourcc);
  if (!texture_ || size_ != buffer.size || format_ != format) allocate(buffer.size, format);
  return texture_->handle(window, size_, format_.hasAlpha && !frame.content().opaque);
}

void ShmTexture::allocate(QSize size, const PixelFormat& format) {
  texture_.emplace();
  texture_->bind();
  size_ = size;
  format_ = format;
  isBlank_ = true;
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  const auto [internalFormat, type] = storageOf(format);
  gl->glTexImage2D(GL_TEXTURE_2D, 0, GLint(internalFormat), size.width(), size.height(), 0, GL_RGBA,
                   type, nullptr);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  if (format.blueFirst) {
    gl->glTexParameteri(GL_TEXTURE_2D, kSwizzleRed, kBlue);
    gl->glTexParameteri(GL_TEXTURE_2D, kSwizzleBlue, kRed);
  }
  gl->glBindTexture(GL_TEXTURE_2D, 0);
}

void ShmTexture::update(Frame& frame, const QRegion& damage) {
  const auto& pixels = *std::get<std::shared_ptr<const ShmPixels>>(frame.content().buffer->pixels);
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  texture_->bind();
  upload(pixels, isBlank_ ? QRegion(QRect(QPoint(), size_)) : worthUploading(damage, size_));
  gl->glBindTexture(GL_TEXTURE_2D, 0);
  isBlank_ = false;
  frame.releaseBuffer();
}

void ShmTexture::upload(const ShmPixels& pixels, const QRegion& region) const {
  const int bytes = format_.bytesPerPixel();
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  gl->glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  gl->glPixelStorei(kUnpackRowLength, pixels.stride() / bytes);
  for (const QRect& rect : region) {
    const auto offset = std::ptrdiff_t(rect.y()) * pixels.stride() + rect.x() * bytes;
    gl->glTexSubImage2D(GL_TEXTURE_2D, 0, rect.x(), rect.y(), rect.width(), rect.height(), GL_RGBA,
                        storageOf(format_).type, pixels.data() + offset);
  }
  gl->glPixelStorei(kUnpackRowLength, 0);
}

}  // namespace

std::unique_ptr<FrameTexture> createShmTexture() { return std::make_unique<ShmTexture>(); }

}  // namespace tromelo
