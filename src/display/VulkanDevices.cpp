#include "display/VulkanDevices.h"

#include <sys/sysmacros.h>

#include <QDir>
#include <QLibrary>
#include <QUuid>
#include <algorithm>

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

std::vector<dev_t> nodes(const VkPhysicalDeviceDrmPropertiesEXT& drm) {
  std::vector<dev_t> found;
  if (drm.hasRender) found.push_back(makedev(unsigned(drm.renderMajor), unsigned(drm.renderMinor)));
  if (drm.hasPrimary)
    found.push_back(makedev(unsigned(drm.primaryMajor), unsigned(drm.primaryMinor)));
  return found;
}

/// A Vulkan instance of our own.
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
  VulkanDevice describe(VkPhysicalDevice device) const;

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

VulkanDevice Instance::describe(VkPhysicalDevice device) const {
  // A driver that doesn't know one of them leaves it as it is.
  VkPhysicalDeviceDrmPropertiesEXT drm{};
  drm.sType = VK_STRUCTURE_TYPE_PHYSICAL_DEVICE_DRM_PROPERTIES_EXT;
  VkPhysicalDeviceIDProperties id{};
  id.sType = VK_STRUCTURE_TYPE_PHYSICAL_DEVICE_ID_PROPERTIES;
  id.pNext = &drm;
  VkPhysicalDeviceDriverProperties driver{};
  driver.sType = VK_STRUCTURE_TYPE_PHYSICAL_DEVICE_DRIVER_PROPERTIES;
  driver.pNext = &id;
  VkPhysicalDeviceProperties2 properties{};
  properties.sType = VK_STRUCTURE_TYPE_PHYSICAL_DEVICE_PROPERTIES_2;
  properties.pNext = &driver;
  function<PFN_vkGetPhysicalDeviceProperties2>("vkGetPhysicalDeviceProperties2")(device,
                                                                                 &properties);
  const QByteArrayView uuid(id.deviceUUID, VK_UUID_SIZE);
  return {QStringLiteral("%1, %2, %3 %4")
              .arg(QString::fromUtf8(properties.properties.deviceName),
                   kind(properties.properties.deviceType), QString::fromUtf8(driver.driverName),
                   QString::fromUtf8(driver.driverInfo)),
          QUuid::fromRfc4122(uuid).toString(QUuid::WithoutBraces).toStdString(), nodes(drm)};
}

/// Opening every Vulkan driver takes longer than all else at a start, and is of no use where there
/// is one graphics card.
bool hasSeveralGraphicsCards() {
  return QDir(QStringLiteral("/dev/dri"))
             .entryList({QStringLiteral("renderD*")}, QDir::System)
             .size() > 1;
}

}  // namespace

std::optional<std::vector<VulkanDevice>> VulkanDevice::all() {
  const Instance instance;
  if (!instance.hasLoader()) return std::nullopt;
  std::vector<VulkanDevice> devices;
  for (VkPhysicalDevice device : instance.devices()) devices.push_back(instance.describe(device));
  return devices;
}

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

std::string vulkanUuidOf(dev_t drmNode, const std::vector<VulkanDevice>& devices) {
  const auto found = std::ranges::find_if(devices, [drmNode](const VulkanDevice& device) {
    return std::ranges::find(device.drmNodes, drmNode) != device.drmNodes.end();
  });
  return found == devices.end() ? std::string() : found->uuid;
}

std::string vulkanUuidForScene(dev_t drmNode) {
  if (!hasSeveralGraphicsCards()) return {};
  return vulkanUuidOf(drmNode, VulkanDevice::all().value_or(std::vector<VulkanDevice>()));
}

}  // namespace tromelo
