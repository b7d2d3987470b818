#pragma once

#include <QString>
#include <string>

namespace tromelo {

/// The engine's reason for a failure, in the person's language where it is a known one.
QString engineErrorText(const std::string& reason);

}  // namespace tromelo
