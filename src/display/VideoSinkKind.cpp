#include "display/VideoSinkKind.h"

namespace tromelo {

// Each is defined beside its sink, and is none where the host lacks what it needs.
std::optional<VideoSinkKind> sceneItemSink(const VideoSinkHost& host);

namespace {

// The best first. The last works everywhere.
constexpr std::optional<VideoSinkKind> (*kKinds[])(const VideoSinkHost& host){
    sceneItemSink,
};

}  // namespace

VideoSinkKind chooseVideoSink(const VideoSinkHost& host) {
  std::optional<VideoSinkKind> chosen;
  for (const auto kind : kKinds)
    if ((chosen = kind(host))) break;
  return chosen.value();
}

}  // namespace tromelo
