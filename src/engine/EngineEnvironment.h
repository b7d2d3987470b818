#pragma once

#include <QString>

namespace tromelo {

/// The Vulkan driver manifest that came with the program, if one did: a file beside the program or
/// in the system's data directories. Empty when there is none.
QString shippedVulkanManifest();

/// What libmpv and the Vulkan loader read from the process when the engine is created: the driver
/// manifest (unless the person chose one, or `vulkanManifest` is empty), libmpv's "bundled" mark
/// and the numeric locale that libmpv insists on. Call it while no other thread reads the
/// environment.
void prepareEngineEnvironment(const QString& vulkanManifest);

}  // namespace tromelo
