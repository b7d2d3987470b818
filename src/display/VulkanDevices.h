#pragma once

#include <sys/types.h>

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <vector>

namespace tromelo {

/// A device of the Vulkan drivers on this machine.
struct VulkanDevice {
  QString description;          // for a report
  std::string uuid;             // as it is written: 8-4-4-4-12 digits
  std::vector<dev_t> drmNodes;  // none where the driver doesn't say, or the processor draws

  /// Asks through the loader that the engine uses, which takes a moment. None without a loader.
  static std::optional<std::vector<VulkanDevice>> all();
};

/// There is something for the engine to draw with.
bool hasVulkanDevice();

/// One line for each device, or one that says that there is none; for a report.
QStringList vulkanLines();

/// The UUID of the device that has this DRM node; empty where none of them says so.
std::string vulkanUuidOf(dev_t drmNode, const std::vector<VulkanDevice>& devices);

/// The UUID of the device that the engine is to draw with, where `drmNode` is the scene's; empty
/// where there is nothing to choose, or it can't be told.
std::string vulkanUuidForScene(dev_t drmNode);

}  // namespace tromelo
