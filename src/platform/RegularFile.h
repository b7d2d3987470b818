#pragma once

#include <fcntl.h>
#include <sys/stat.h>

#include <string>

#include "platform/UniqueFd.h"

namespace tromelo {

/// A regular file that can be read, and nothing else: a pipe or a device would wait for who writes
/// into it. `facts` is filled in where it is one. May wait for the disk.
inline UniqueFd openRegularFile(const std::string& path, struct stat& facts) {
  UniqueFd file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!file || fstat(file.get(), &facts) != 0 || !S_ISREG(facts.st_mode)) return {};
  return file;
}

}  // namespace tromelo
