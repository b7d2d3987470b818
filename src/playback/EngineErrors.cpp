#include "playback/EngineErrors.h"

#include <QCoreApplication>

namespace tromelo {

namespace {

// Those that a person can meet, for the catalogue.
[[maybe_unused]] constexpr const char* kReasons[] = {
    QT_TRANSLATE_NOOP("EngineErrorText", "Could not create the playback engine"),
    QT_TRANSLATE_NOOP("EngineErrorText",
                      "The playback library libmpv was not found; install it (libmpv2) to play "
                      "videos."),
    QT_TRANSLATE_NOOP("EngineErrorText",
                      "The playback library libmpv is too old; install version 0.38 or newer to "
                      "play videos."),
    QT_TRANSLATE_NOOP("EngineErrorText", "memory allocation failed"),
    QT_TRANSLATE_NOOP("EngineErrorText", "error running command"),
    QT_TRANSLATE_NOOP("EngineErrorText", "loading failed"),
    QT_TRANSLATE_NOOP("EngineErrorText", "audio output initialization failed"),
    QT_TRANSLATE_NOOP("EngineErrorText", "video output initialization failed"),
    QT_TRANSLATE_NOOP("EngineErrorText", "no audio or video data played"),
    QT_TRANSLATE_NOOP("EngineErrorText", "unrecognized file format"),
    QT_TRANSLATE_NOOP("EngineErrorText", "not supported"),
};

}  // namespace

QString engineErrorText(const std::string& reason) {
  return QCoreApplication::translate("EngineErrorText", reason.c_str());
}

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
