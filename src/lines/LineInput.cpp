#include "lines/LineInput.h"

#include <QBuffer>
#include <QFile>
#include <utility>

#include "lines/SubtitleBytes.h"
#include "platform/RegularFile.h"

namespace tromelo {

namespace {

constexpr qint64 kLargestText = 32 * 1024 * 1024;  // bytes; subtitles of text are smaller
constexpr int kPiece = 256 * 1024;                 // bytes that are read at once
constexpr double kOften = 0.01;                    // of the file, from one progress to the next

/// Text has none of the bytes that nothing but a program reads.
bool isText(const QByteArray& bytes) { return !bytes.contains('\0'); }

std::unique_ptr<QIODevice> openInput(const LineRequest& request) {
  struct stat facts{};
  UniqueFd found = openRegularFile(request.path, facts);
  auto file = std::make_unique<QFile>();
  if (!found || !file->open(found.get(), QIODevice::ReadOnly | QIODevice::Unbuffered,
                            QFileDevice::AutoCloseHandle))
    return nullptr;
  found.release();
  if (!request.isOwnFile || file->size() > kLargestText) return file;
  QByteArray text = file->readAll();
  if (isText(text)) text = readableSubtitles(text, request.codepage);
  auto buffer = std::make_unique<QBuffer>();
  buffer->setData(text);
  buffer->open(QIODevice::ReadOnly);
  return buffer;
}

}  // namespace

LineInput::LineInput(const AvLibraries& av, const LineRequest& request,
                     std::function<void(double)> progress)
    : av_(av), progress_(std::move(progress)), bytes_(openInput(request)) {
  if (!bytes_) return;
  auto* const room = static_cast<unsigned char*>(av_.av_malloc(kPiece));
  io_ = av_.avio_alloc_context(room, kPiece, 0, this, &read, nullptr, &seek);
}

LineInput::~LineInput() {
  if (!io_) return;
  av_.av_freep(&io_->buffer);
  av_.avio_context_free(&io_);
}

int LineInput::read(void* self, std::uint8_t* to, int most) {
  auto& input = *static_cast<LineInput*>(self);
  const qint64 count = input.bytes_->read(reinterpret_cast<char*>(to), most);
  input.tellProgress();
  return count > 0 ? static_cast<int>(count) : AVERROR_EOF;
}

std::int64_t LineInput::seek(void* self, std::int64_t to, int whence) {
  QIODevice& bytes = *static_cast<LineInput*>(self)->bytes_;
  if (whence == AVSEEK_SIZE) return bytes.size();
  return whence == SEEK_SET && bytes.seek(to) ? to : -1;
}

void LineInput::tellProgress() {
  const double now = bytes_->size() > 0 ? double(bytes_->pos()) / double(bytes_->size()) : 1;
  // The index may be at the end.
  if (now < told_ + kOften && now > told_ - kOften) return;
  told_ = now;
  progress_(now);
}

}  // namespace tromelo
