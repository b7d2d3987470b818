#pragma once

#include <QString>
#include <string>

namespace tromelo {

// What the engine's failures are for people.

/// The engine's reason for a failure, in the person's language where it is a known one.
QString engineErrorText(const std::string& reason);

/// What keeps a file's picture or its sound from coming out, in one sentence that says what to do.
QString videoOutputFault(bool hasVulkanDevice);
QString audioOutputFault();

}  // namespace tromelo
