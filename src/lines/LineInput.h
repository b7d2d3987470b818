#pragma once

#include <QIODevice>
#include <functional>
#include <memory>

#include "lines/AvLibraries.h"
#include "lines/LineMessage.h"

namespace tromelo {

/// The bytes that libavformat reads, and all that it gets: it opens no file by itself. Waits for
/// the disk.
class LineInput {
 public:
  /// `progress` is called now and then while it is read. `av` outlives it.
  LineInput(const AvLibraries& av, const LineRequest& request,
            std::function<void(double progress)> progress);
  ~LineInput();
  LineInput(const LineInput&) = delete;
  LineInput& operator=(const LineInput&) = delete;

  /// Null where the file can't be read.
  AVIOContext* io() { return io_; }

 private:
  static int read(void* self, std::uint8_t* to, int most);
  static std::int64_t seek(void* self, std::int64_t to, int whence);
  void tellProgress();

  const AvLibraries& av_;
  std::function<void(double)> progress_;
  std::unique_ptr<QIODevice> bytes_;
  AVIOContext* io_ = nullptr;
  double told_ = 0;
};

}  // namespace tromelo
