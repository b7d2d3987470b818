// A Vulkan layer in which one call goes wrong, the way that drivers do. VULKAN_FAULT says which,
// from 1 on, and how: "present 100 lost". Calls: present, submit, memory, swapchain. Ways: lost
// (and with it all that is done with the device from then on), outdated, memory, hang.
#include <vulkan/vk_layer.h>
#include <vulkan/vulkan.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <set>
#include <sstream>
#include <string>
#include <thread>

namespace {

struct Fault {
  std::string call;
  int number = 0;
  std::string way;

  Fault() {
    const char* text = std::getenv("VULKAN_FAULT");
    std::istringstream(text ? text : "") >> call >> number >> way;
  }
};

struct Device {
  PFN_vkGetDeviceProcAddr next = nullptr;
  VkDevice device = VK_NULL_HANDLE;
  std::atomic<bool> isLost = false;

  template <typename Function>
  Function function(const char* name) const {
    return reinterpret_cast<Function>(next(device, name));
  }
};

const Fault fault;
std::atomic<int> calls = 0;
std::mutex mutex;
PFN_vkGetInstanceProcAddr nextInstance = nullptr;
VkInstance lastInstance = VK_NULL_HANDLE;
std::map<void*, Device> devices;  // by what the loader puts in front of each of its objects

template <typename Handle>
Device& deviceOf(Handle handle) {
  const std::scoped_lock lock(mutex);
  return devices[*reinterpret_cast<void**>(handle)];
}

/// What is to be returned in place of the call, if it goes wrong.
VkResult outcome(Device& device, const char* call) {
  if (device.isLost) return VK_ERROR_DEVICE_LOST;
  if (fault.call != call || ++calls != fault.number) return VK_SUCCESS;
  if (fault.way == "hang") std::this_thread::sleep_for(std::chrono::hours(24));
  device.isLost = fault.way == "lost";
  if (device.isLost) return VK_ERROR_DEVICE_LOST;
  return fault.way == "outdated" ? VK_ERROR_OUT_OF_DATE_KHR : VK_ERROR_OUT_OF_DEVICE_MEMORY;
}

template <typename Info>
Info* linkOf(const void* chain, VkStructureType type) {
  auto* info = static_cast<Info*>(const_cast<void*>(chain));
  while (info && (info->sType != type || info->function != VK_LAYER_LINK_INFO))
    info = static_cast<Info*>(const_cast<void*>(info->pNext));
  return info;
}

VKAPI_ATTR VkResult VKAPI_CALL createInstance(const VkInstanceCreateInfo* info,
                                              const VkAllocationCallbacks* allocator,
                                              VkInstance* instance) {
  auto* link =
      linkOf<VkLayerInstanceCreateInfo>(info->pNext, VK_STRUCTURE_TYPE_LOADER_INSTANCE_CREATE_INFO);
  if (!link) return VK_ERROR_INITIALIZATION_FAILED;
  const auto next = link->u.pLayerInfo->pfnNextGetInstanceProcAddr;
  link->u.pLayerInfo = link->u.pLayerInfo->pNext;
  const auto create = reinterpret_cast<PFN_vkCreateInstance>(next(nullptr, "vkCreateInstance"));
  const VkResult result = create(info, allocator, instance);
  const std::scoped_lock lock(mutex);
  nextInstance = next;
  lastInstance = *instance;
  return result;
}

VKAPI_ATTR VkResult VKAPI_CALL createDevice(VkPhysicalDevice physical,
                                            const VkDeviceCreateInfo* info,
                                            const VkAllocationCallbacks* allocator,
                                            VkDevice* device) {
  auto* link =
      linkOf<VkLayerDeviceCreateInfo>(info->pNext, VK_STRUCTURE_TYPE_LOADER_DEVICE_CREATE_INFO);
  if (!link) return VK_ERROR_INITIALIZATION_FAILED;
  const auto nextOfInstance = link->u.pLayerInfo->pfnNextGetInstanceProcAddr;
  const auto next = link->u.pLayerInfo->pfnNextGetDeviceProcAddr;
  link->u.pLayerInfo = link->u.pLayerInfo->pNext;
  const auto create =
      reinterpret_cast<PFN_vkCreateDevice>(nextOfInstance(lastInstance, "vkCreateDevice"));
  const VkResult result = create(physical, info, allocator, device);
  if (result != VK_SUCCESS) return result;
  Device& made = deviceOf(*device);
  made.next = next;
  made.device = *device;
  made.isLost = false;
  return result;
}

VKAPI_ATTR VkResult VKAPI_CALL present(VkQueue queue, const VkPresentInfoKHR* info) {
  Device& device = deviceOf(queue);
  const VkResult wrong = outcome(device, "present");
  if (wrong != VK_SUCCESS) return wrong;
  return device.function<PFN_vkQueuePresentKHR>("vkQueuePresentKHR")(queue, info);
}

VKAPI_ATTR VkResult VKAPI_CALL submit(VkQueue queue, uint32_t count, const VkSubmitInfo* infos,
                                      VkFence fence) {
  Device& device = deviceOf(queue);
  const VkResult wrong = outcome(device, "submit");
  if (wrong != VK_SUCCESS) return wrong;
  return device.function<PFN_vkQueueSubmit>("vkQueueSubmit")(queue, count, infos, fence);
}

VKAPI_ATTR VkResult VKAPI_CALL submit2(VkQueue queue, uint32_t count, const VkSubmitInfo2* infos,
                                       VkFence fence) {
  Device& device = deviceOf(queue);
  const VkResult wrong = outcome(device, "submit");
  if (wrong != VK_SUCCESS) return wrong;
  return device.function<PFN_vkQueueSubmit2>("vkQueueSubmit2")(queue, count, infos, fence);
}

VKAPI_ATTR VkResult VKAPI_CALL allocate(VkDevice handle, const VkMemoryAllocateInfo* info,
                                        const VkAllocationCallbacks* allocator,
                                        VkDeviceMemory* memory) {
  Device& device = deviceOf(handle);
  const VkResult wrong = outcome(device, "memory");
  if (wrong != VK_SUCCESS) return wrong;
  return device.function<PFN_vkAllocateMemory>("vkAllocateMemory")(handle, info, allocator, memory);
}

// With the device, what is waited for is lost.

VKAPI_ATTR VkResult VKAPI_CALL waitSemaphores(VkDevice handle, const VkSemaphoreWaitInfo* info,
                                              uint64_t timeout) {
  Device& device = deviceOf(handle);
  if (device.isLost) return VK_ERROR_DEVICE_LOST;
  return device.function<PFN_vkWaitSemaphores>("vkWaitSemaphores")(handle, info, timeout);
}

VKAPI_ATTR VkResult VKAPI_CALL waitForFences(VkDevice handle, uint32_t count, const VkFence* fences,
                                             VkBool32 all, uint64_t timeout) {
  Device& device = deviceOf(handle);
  if (device.isLost) return VK_ERROR_DEVICE_LOST;
  return device.function<PFN_vkWaitForFences>("vkWaitForFences")(handle, count, fences, all,
                                                                 timeout);
}

VKAPI_ATTR VkResult VKAPI_CALL acquire(VkDevice handle, VkSwapchainKHR swapchain, uint64_t timeout,
                                       VkSemaphore semaphore, VkFence fence, uint32_t* image) {
  Device& device = deviceOf(handle);
  if (device.isLost) return VK_ERROR_DEVICE_LOST;
  return device.function<PFN_vkAcquireNextImageKHR>("vkAcquireNextImageKHR")(
      handle, swapchain, timeout, semaphore, fence, image);
}

VKAPI_ATTR VkResult VKAPI_CALL createSwapchain(VkDevice handle,
                                               const VkSwapchainCreateInfoKHR* info,
                                               const VkAllocationCallbacks* allocator,
                                               VkSwapchainKHR* swapchain) {
  Device& device = deviceOf(handle);
  const VkResult wrong = outcome(device, "swapchain");
  if (wrong != VK_SUCCESS) return wrong;
  return device.function<PFN_vkCreateSwapchainKHR>("vkCreateSwapchainKHR")(handle, info, allocator,
                                                                           swapchain);
}

VKAPI_ATTR PFN_vkVoidFunction VKAPI_CALL deviceFunction(VkDevice device, const char* name);
VKAPI_ATTR PFN_vkVoidFunction VKAPI_CALL instanceFunction(VkInstance instance, const char* name);

PFN_vkVoidFunction ours(const char* name) {
  static const std::map<std::string, PFN_vkVoidFunction> kOurs{
      {"vkCreateInstance", reinterpret_cast<PFN_vkVoidFunction>(createInstance)},
      {"vkCreateDevice", reinterpret_cast<PFN_vkVoidFunction>(createDevice)},
      {"vkGetInstanceProcAddr", reinterpret_cast<PFN_vkVoidFunction>(instanceFunction)},
      {"vkGetDeviceProcAddr", reinterpret_cast<PFN_vkVoidFunction>(deviceFunction)},
      {"vkQueuePresentKHR", reinterpret_cast<PFN_vkVoidFunction>(present)},
      {"vkQueueSubmit", reinterpret_cast<PFN_vkVoidFunction>(submit)},
      {"vkQueueSubmit2", reinterpret_cast<PFN_vkVoidFunction>(submit2)},
      {"vkQueueSubmit2KHR", reinterpret_cast<PFN_vkVoidFunction>(submit2)},
      {"vkWaitSemaphores", reinterpret_cast<PFN_vkVoidFunction>(waitSemaphores)},
      {"vkWaitSemaphoresKHR", reinterpret_cast<PFN_vkVoidFunction>(waitSemaphores)},
      {"vkWaitForFences", reinterpret_cast<PFN_vkVoidFunction>(waitForFences)},
      {"vkAcquireNextImageKHR", reinterpret_cast<PFN_vkVoidFunction>(acquire)},
      {"vkAllocateMemory", reinterpret_cast<PFN_vkVoidFunction>(allocate)},
      {"vkCreateSwapchainKHR", reinterpret_cast<PFN_vkVoidFunction>(createSwapchain)}};
  const auto found = kOurs.find(name);
  return found == kOurs.end() ? nullptr : found->second;
}

PFN_vkVoidFunction deviceFunction(VkDevice device, const char* name) {
  const auto function = ours(name);
  return function ? function : deviceOf(device).next(device, name);
}

PFN_vkVoidFunction instanceFunction(VkInstance instance, const char* name) {
  const auto function = ours(name);
  return function ? function : nextInstance(instance, name);
}

}  // namespace

extern "C" __attribute__((visibility("default"))) VkResult
vkNegotiateLoaderLayerInterfaceVersion(VkNegotiateLayerInterface* interface) {
  interface->loaderLayerInterfaceVersion = 2;
  interface->pfnGetInstanceProcAddr = instanceFunction;
  interface->pfnGetDeviceProcAddr = deviceFunction;
  interface->pfnGetPhysicalDeviceProcAddr = nullptr;
  return VK_SUCCESS;
}
