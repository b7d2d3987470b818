#include "platform/VulkanDrivers.h"

#include <dlfcn.h>
#include <link.h>

#include <string>
#include <string_view>
#include <vector>

namespace tromelo {

namespace {

/// As Mesa names its own.
bool isVulkanDriver(std::string_view path) {
  return path.substr(path.rfind('/') + 1).starts_with("libvulkan_");
}

}  // namespace

void keepVulkanDriversLoaded() {
  std::vector<std::string> drivers;
  dl_iterate_phdr(
      [](dl_phdr_info* library, size_t, void* found) {
        if (isVulkanDriver(library->dlpi_name))
          static_cast<std::vector<std::string>*>(found)->emplace_back(library->dlpi_name);
        return 0;
      },
      &drivers);
  for (const std::string& driver : drivers)
    dlopen(driver.c_str(), RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

}  // namespace tromelo
