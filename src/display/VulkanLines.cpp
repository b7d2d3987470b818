#include "display/SelftestLines.h"
#include "display/VulkanDevices.h"

namespace tromelo {

bool hasVulkanDevice() {
  const auto devices = VulkanDevice::all();
  return devices && !devices->empty();
}

QStringList vulkanLines() {
  const auto devices = VulkanDevice::all();
  if (!devices) return {QStringLiteral("Vulkan: no loader")};
  QStringList lines;
  for (const VulkanDevice& device : *devices)
    lines += QStringLiteral("Vulkan device: ") + device.description;
  if (lines.isEmpty()) lines += QStringLiteral("Vulkan: no device");
  return lines;
}

}  // namespace tromelo
