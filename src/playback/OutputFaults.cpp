#include "playback/OutputFaults.h"

#include <QCoreApplication>

namespace tromelo {

QString videoOutputFault(bool hasVulkanDevice) {
  if (hasVulkanDevice)
    return QCoreApplication::translate("OutputFaults",
                                       "The picture can't be drawn with the Vulkan driver of your "
                                       "graphics card; update it to play videos.");
  return QCoreApplication::translate("OutputFaults",
                                     "No Vulkan driver was found; install one for your graphics "
                                     "card (mesa-vulkan-drivers) to play videos.");
}

QString audioOutputFault() {
  return QCoreApplication::translate("OutputFaults",
                                     "No sound device was found; check your sound settings.");
}

}  // namespace tromelo
