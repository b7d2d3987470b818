#include "display/VideoSinkKind.h"

#include <utility>

namespace tromelo {

// Each is defined beside its sink, and is none where the host lacks what it needs. What it finds
// out of the host, it says.
std::optional<VideoSinkKind> hostSubsurfaceSink(const VideoSinkHost& host, PictureWay& way);
std::optional<VideoSinkKind> sceneItemSink(const VideoSinkHost& host, PictureWay& way);

namespace {

// The best first. The last works everywhere.
constexpr std::optional<VideoSinkKind> (*kKinds[])(const VideoSinkHost& host, PictureWay&){
    hostSubsurfaceSink,
    sceneItemSink,
};

}  // namespace

VideoSinkKind chooseVideoSink(const VideoSinkHost& host) {
  std::optional<VideoSinkKind> chosen;
  PictureWay way;
  for (const auto kind : kKinds)
    if ((chosen = kind(host, way))) break;
  chosen->way = std::move(way);
  return *std::move(chosen);
}

}  // namespace tromelo
