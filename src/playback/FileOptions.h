#pragma once

#include <optional>
#include <string>

namespace tromelo {

/// The options that go with one file when it is loaded, as the engine reads them; empty when there
/// are none. `start` is in seconds.
std::string fileOptions(std::optional<double> start, bool decodesInSoftware);

}  // namespace tromelo
