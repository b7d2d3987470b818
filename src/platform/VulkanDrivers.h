#pragma once

namespace tromelo {

/// Keeps the drivers loaded that are loaded now. The engine makes a Vulkan instance for each film,
/// and with the last instance its drivers would go: loading them again takes milliseconds, and each
/// time Mesa's software driver reserves memory for code, 10 MB of addresses, which it never frees.
/// May wait for a library that is being loaded. Any thread.
void keepVulkanDriversLoaded();

}  // namespace tromelo
