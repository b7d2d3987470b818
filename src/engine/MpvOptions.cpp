#include "engine/MpvOptions.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace tromelo {

std::vector<MpvOption> engineOptions(const std::string& logFile) {
  constexpr bool kMayBeUnknown = true;
  return {
      {"vo", "gpu-next"},
      {"gpu-api", "vulkan"},
      {"gpu-context", "waylandvk"},  // the private display is a Wayland one
      {"hwdec", "auto-safe"},
      {"target-colorspace-hint", "yes"},
      {"hdr-compute-peak", "auto"},
      {"force-window", "no"},
      {"title-bar", "no"},
      {"keepaspect-window", "yes"},
      {"autofit-larger", "80%x80%"},
      {"native-fs", "yes"},
      {"title", "${media-title}"},
      {"window-dragging", "no"},
      {"cursor-autohide", "no"},
      {"input-default-bindings", "no"},
      {"input-vo-keyboard", "no"},
      {"osc", "no", kMayBeUnknown},
      {"osd-level", "0"},
      {"load-scripts", "no"},
      {"ytdl", "no", kMayBeUnknown},
      {"keep-open", "yes"},
      {"idle", "yes"},
      {"config", "no"},
      {"terminal", "no"},
      {"volume", "100"},
      {"sub-auto", "fuzzy"},
      {"log-file", logFile},
      {"msg-level", "all=info"},
  };
}

std::vector<MpvOption> platformOptions(const std::string& vulkanDevice) {
  std::vector<MpvOption> options{
      // A machine without a GPU has software Vulkan only, which libmpv refuses unless told.
      {"gpu-sw", "yes", true},
      // Where films that come in a folder of their own have their subtitles.
      {"sub-file-paths", "Subs:subs:Subtitles:subtitles"},
      // Where the film says that its pictures are made of two halves; older engines can't.
      {"deinterlace", "auto", true},
  };
  std::ranges::copy(plainOptions(), std::back_inserter(options));
  // The graphics card that draws the scene, where there are several: another one's pictures would
  // have to be carried over. A card that libmpv doesn't find is no reason not to play.
  if (!vulkanDevice.empty())
    options.push_back({.name = "vulkan-device", .value = vulkanDevice, .mayBeRefused = true});
  return options;
}

std::vector<MpvOption> plainOptions() {
  return {
      // The program itself keeps the screen awake.
      {"stop-screensaver", "no"},
      // The engine's own dialogs on the picture, and profiles for a configuration that is never
      // read.
      {"load-stats-overlay", "no", true},
      {"load-console", "no", true},
      {"load-auto-profiles", "no", true},
      {"load-select", "no", true},
      {"load-commands", "no", true},
      {"load-positioning", "no", true},
      // The clipboard would be a second client of the private display, which has none to offer.
      {"clipboard-backends", "", true},
  };
}

std::vector<MpvOption> diagnosticOptions() {
  const char* socket = std::getenv("TROMELO_IPC");
  if (!socket || !*socket) return {};
  return {{"input-ipc-server", socket, true}};
}

}  // namespace tromelo
