#pragma once

#include <QByteArray>
#include <QSize>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "display/DmabufSupport.h"

namespace tromelo {

/// What a display tells its clients.
struct DisplayFacts {
  std::vector<std::pair<std::string, std::uint32_t>> globals;  // interface and version
  QSize screen;
  int refreshMillihertz = 0;
  std::optional<DmabufSupport> dmabuf;
};

/// Connects as the engine would, asks, and leaves. None when it is refused. Blocks for a moment.
std::optional<DisplayFacts> probeDisplay(const QByteArray& socketPath);

}  // namespace tromelo
