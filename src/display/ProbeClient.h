#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QSize>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tromelo {

/// What a display tells its clients.
struct DisplayFacts {
  struct Format {
    std::uint32_t fourcc = 0;
    std::uint64_t modifier = 0;
  };
  struct Dmabuf {
    dev_t mainDevice = 0;
    std::vector<Format> formats;
  };

  std::vector<std::pair<std::string, std::uint32_t>> globals;  // interface and version
  QSize screen;
  int refreshMillihertz = 0;
  std::optional<Dmabuf> dmabuf;
};

/// Connects as the engine would, asks, and leaves. None when it is refused. Blocks for a moment.
std::optional<DisplayFacts> probeDisplay(const QByteArray& socketPath);

}  // namespace tromelo
