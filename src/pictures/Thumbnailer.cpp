#include "pictures/Thumbnailer.h"

#include <QFile>
#include <QImage>
#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

#include "engine/MpvClientApi.h"
#include "pictures/PictureMaker.h"
#include "platform/FilePath.h"
#include "platform/ProcessLimits.h"

namespace tromelo {

namespace {

constexpr std::chrono::seconds kPatience{20};
constexpr double kFirstPlace = 1.0 / 3;
// Of the film, where the ones before are black.
constexpr double kOtherPlaces[] = {0.5, 0.2, 0.67, 0.1, 0.8, 0.05};
constexpr int kLargest = 4096;       // pixels
constexpr double kNearlyBlack = 24;  // of 255, on average

double brightness(const QImage& picture) {
  double sum = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (const QRgb pixel : std::span(reinterpret_cast<const QRgb*>(picture.constScanLine(y)),
                                      static_cast<std::size_t>(picture.width())))
      sum += qGray(pixel);
  return sum / (double(picture.width()) * picture.height());
}

/// The first that isn't nearly black, else the brightest; null where there is none.
QImage choosePicture(PictureMaker& maker, const ThumbnailRequest& request) {
  const QSize room(request.size, request.size);
  // The film has to be open before anyone knows how long it is.
  const auto start = maker.make(request.path, room, 0);
  QImage best = start ? start->image : QImage();
  const double duration = maker.duration();
  if (duration <= 0) return best;
  double most = -1;
  const auto isBright = [&](double place) {
    const auto picture = maker.make(request.path, room, place * duration);
    const double light = picture ? brightness(picture->image) : -1;
    if (light > most) {
      most = light;
      best = picture->image;
    }
    return light >= kNearlyBlack;
  };
  if (isBright(kFirstPlace)) return best;
  for (const double place : kOtherPlaces)
    if (isBright(place)) break;
  if (start && most < kNearlyBlack && brightness(start->image) > most) best = start->image;
  return best;
}

std::optional<int> sizeOf(std::string_view text) {
  int size = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), size);
  const bool isSize = error == std::errc() && end == text.data() + text.size() && size > 0;
  return isSize ? std::optional(std::min(size, kLargest)) : std::nullopt;
}

std::optional<ThumbnailRequest> requestOf(std::span<char* const> arguments) {
  ThumbnailRequest request;
  std::vector<std::string_view> files;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] != std::string_view("-s")) {
      files.emplace_back(arguments[i]);
      continue;
    }
    const auto size = i + 1 < arguments.size() ? sizeOf(arguments[++i]) : std::nullopt;
    if (!size) return {};
    request.size = *size;
  }
  if (files.size() != 2) return {};
  request.path = pathFromFileUrl(urlFromArgument(files[0]));
  request.output = files[1];
  return request;
}

}  // namespace

int writeThumbnail(const ThumbnailRequest& request) {
  PictureMaker maker(MpvClientApi::libmpv());
  const QImage picture = choosePicture(maker, request);
  if (picture.isNull()) {
    std::fprintf(stderr, "%s has no picture.\n", request.path.c_str());
    return 1;
  }
  if (picture.save(QFile::decodeName(QByteArray::fromStdString(request.output)), "PNG")) return 0;
  std::fprintf(stderr, "%s can't be written.\n", request.output.c_str());
  return 1;
}

int runThumbnailer(std::span<char* const> arguments) {
  const auto request = requestOf(arguments);
  if (!request) {
    std::fputs("Usage: tromelo --thumbnail [-s PIXELS] FILE PICTURE.png\n", stderr);
    return 2;
  }
  limitThisProcess();
  endAfter(kPatience);
  return writeThumbnail(*request);
}

}  // namespace tromelo
