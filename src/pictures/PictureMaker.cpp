#include "pictures/PictureMaker.h"

#include <sys/prctl.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdio>
#include <iostream>

#include "engine/MpvClientApi.h"
#include "pictures/PictureMessage.h"
#include "pictures/StandardRange.h"
#include "platform/ProcessLimits.h"

namespace tromelo {

namespace {

/// By its absolute path: anything else could be an address to the engine.
bool isRegularFile(const std::string& path) {
  struct stat facts{};
  return path.starts_with('/') && stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

QImage imageOf(const FilmFrame& frame) {
  const QImage shared(reinterpret_cast<const uchar*>(frame.pixels.constData()), frame.size.width(),
                      frame.size.height(), frame.stride, QImage::Format_RGB32);
  QImage image = shared.copy();
  bringToStandardRange(image, frame.transfer);
  return image;
}

bool say(const QByteArray& bytes) {
  return std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout) ==
             static_cast<std::size_t>(bytes.size()) &&
         std::fflush(stdout) == 0;
}

}  // namespace

std::optional<FilmPicture> PictureMaker::make(const std::string& path, QSize room, double seconds) {
  if (room.isEmpty() || !isRegularFile(path)) return {};
  const auto frame = frames_.at(path, room, seconds);
  if (!frame) return {};
  return FilmPicture{frame->seconds, imageOf(*frame)};
}

int runPictureMaker() {
  limitThisProcess();
  prctl(PR_SET_PDEATHSIG, SIGKILL);  // in the middle of a film that takes forever, too
  PictureMaker maker(MpvClientApi::libmpv());
  for (std::string line; std::getline(std::cin, line);) {
    const auto request = PictureRequest::parse(QByteArray::fromStdString(line));
    if (!request) return 1;
    auto picture = maker.make(request->path, request->room, request->seconds);
    const PictureAnswer answer{request->number, picture ? picture->seconds : 0,
                               picture ? std::move(picture->image) : QImage()};
    if (!say(answer.bytes())) return 1;
  }
  return 0;
}

}  // namespace tromelo
