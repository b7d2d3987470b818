#pragma once

#include <set>
#include <string>

namespace tromelo {

class UserDefaults;

/// Paths of the files that are always decoded in software, as bytes.
using SoftwareDecodePaths = std::set<std::string, std::less<>>;

/// What can't be read counts as absent.
SoftwareDecodePaths storedSoftwareDecodePaths(const UserDefaults& defaults);

void store(const SoftwareDecodePaths& paths, UserDefaults& defaults);

}  // namespace tromelo
