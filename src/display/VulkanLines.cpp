#include <QLibrary>
#include <vector>

#include "display/SelftestLines.h"

#define VK_NO_PROTOTYPES
#include <vulkan/vulkan.h>

namespace tromelo {

namespace {

QString kind(VkPhysicalDeviceType type) {
  switch (type) {
    case VK_PHYSICAL_DEVICE_TYPE_INTEGRATED_GPU:
      return QStringLiteral("integrated");
    case VK_PHYSICAL_DEVICE_TYPE_DISCRETE_GPU:
      return QStringLiteral("discrete");
    case VK_PHYSICAL_DEVICE_TYPE_VIRTUAL_GPU:
      return QStringLiteral("virtual");
    case VK_PHYSICAL_DEVICE_TYPE_CPU:
      return QStringLiteral("software");
    default:
      return QStringLiteral("other");
  }
}

/// A Vulkan instance of the selftest's own, through the loader that the engine uses.
class Instance {
 public:
  Instance() : loader_(QStringLiteral("vulkan"), 1) {
    resolve_ =
        reinterpret_cast<PFN_vkGetInstanceProcAddr>(loader_.resolve("vkGetInstanceProcAddr"));
    if (!resolve_) return;
    const VkApplicationInfo application{.sType = VK_STRUCTURE_TYPE_APPLICATION_INFO,
                                        .pNext = nullptr,
                                        .pApplicationName = nullptr,
                                        .applicationVersion = 0,
                                        .pEngineName = nullptr,
                                        .engineVersion = 0,
                                        .apiVersion = VK_API_VERSION_1_2};
    VkInstanceCreateInfo info{};
    info.sType = VK_STRUCTURE_TYPE_INSTANCE_CREATE_INFO;
    info.pApplicationInfo = &application;
    const auto create = function<PFN_vkCreateInstance>("vkCreateInstance");
    if (create(&info, nullptr, &instance_) != VK_SUCCESS) instance_ = VK_NULL_HANDLE;
  }
  ~Instance() {
    if (instance_) function<PFN_vkDestroyInstance>("vkDestroyInstance")(instance_, nullptr);
  }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  bool hasLoader() const { return resolve_ != nullptr; }
  std::vector<VkPhysicalDevice> devices() const;
  QString describe(VkPhysicalDevice device) const;

 private:
  template <typename Function>
  Function function(const char* name) const {
    return reinterpret_cast<Function>(resolve_(instance_, name));
  }

  QLibrary loader_;
  PFN_vkGetInstanceProcAddr resolve_ = nullptr;
  VkInstance instance_ = VK_NULL_HANDLE;
};

std::vector<VkPhysicalDevice> Instance::devices() const {
  if (!instance_) return {};
  const auto list = function<PFN_vkEnumeratePhysicalDevices>("vkEnumeratePhysicalDevices");
  std::uint32_t count = 0;
  if (list(instance_, &count, nullptr) != VK_SUCCESS) return {};
  std::vector<VkPhysicalDevice> devices(count);
  list(instance_, &count, devices.data());
  devices.resize(count);
  return devices;
}

QString Instance::describe(VkPhysicalDevice device) const {
  VkPhysicalDeviceDriverProperties driver{};
  driver.sType = VK_STRUCTURE_TYPE_PHYSICAL_DEVICE_DRIVER_PROPERTIES;
  VkPhysicalDeviceProperties2 properties{};
  properties.sType = VK_STRUCTURE_TYPE_PHYSICAL_DEVICE_PROPERTIES_2;
  properties.pNext = &driver;
  function<PFN_vkGetPhysicalDeviceProperties2>("vkGetPhysicalDeviceProperties2")(device,
                                                                                 &properties);
  return QStringLiteral("%1, %2, %3 %4")
      .arg(QString::fromUtf8(properties.properties.deviceName),
           kind(properties.properties.deviceType), QString::fromUtf8(driver.driverName),
           QString::fromUtf8(driver.driverInfo));
}

}  // namespace

bool hasVulkanDevice() {
  const Instance instance;
  return instance.hasLoader() && !instance.devices().empty();
}

QStringList vulkanLines() {
  const Instance instance;
  if (!instance.hasLoader()) return {QStringLiteral("Vulkan: no loader")};
  QStringList lines;
  for (VkPhysicalDevice device : instance.devices())
    lines += QStringLiteral("Vulkan device: ") + instance.describe(device);
  if (lines.isEmpty()) lines += QStringLiteral("Vulkan: no device");
  return lines;
}

}  // namespace tromelo
