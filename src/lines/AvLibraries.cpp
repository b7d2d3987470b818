#include "lines/AvLibraries.h"

#include <dlfcn.h>

#include <optional>
#include <string>

namespace tromelo {

namespace {

void* openLibrary(const char* name, int version) {
  const std::string file = std::string(name) + ".so." + std::to_string(version);
  return dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
}

std::optional<AvLibraries> load() {
  void* const format = openLibrary("libavformat", LIBAVFORMAT_VERSION_MAJOR);
  void* const codec = openLibrary("libavcodec", LIBAVCODEC_VERSION_MAJOR);
  void* const util = openLibrary("libavutil", LIBAVUTIL_VERSION_MAJOR);
  if (!format || !codec || !util) return {};
  AvLibraries libraries;
#define TROMELO_FIND(library, name)                                                   \
  libraries.name = reinterpret_cast<decltype(libraries.name)>(dlsym(library, #name)); \
  if (!libraries.name) return {};
  TROMELO_AV_FUNCTIONS(TROMELO_FIND)
#undef TROMELO_FIND
  return libraries;
}

}  // namespace

const AvLibraries* AvLibraries::loaded() {
  static const std::optional<AvLibraries> libraries = load();
  return libraries ? &*libraries : nullptr;
}

}  // namespace tromelo
