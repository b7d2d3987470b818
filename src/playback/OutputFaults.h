#pragma once

#include <QString>

namespace tromelo {

/// What keeps a file's picture or its sound from coming out, in one sentence that says what to do.

QString videoOutputFault(bool hasVulkanDevice);
QString audioOutputFault();

}  // namespace tromelo
