// Loaded before the program's libraries: each fault that BROKEN names makes one of them fail the
// way that it does on a system which lacks something.
#include <dlfcn.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace {

bool isBroken(const char* part) {
  const char* broken = std::getenv("BROKEN");
  return broken && std::strcmp(broken, part) == 0;
}

template <typename Function>
Function real(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

unsigned long mpv_client_api_version() { return 0x20002; }

void* dlopen(const char* file, int flags) {
  const auto open = real<void* (*)(const char*, int)>("dlopen");
  const bool isLibmpv = file && std::strstr(file, "libmpv");
  if (isLibmpv && isBroken("no libmpv")) return nullptr;
  if (isLibmpv && isBroken("old libmpv")) file = nullptr;  // the version above is the whole of it
  return open(file, flags);
}

char* mkdtemp(char* path) {
  if (isBroken("folder") && std::strstr(path, "/tromelo-display-")) {
    errno = EROFS;
    return nullptr;
  }
  return real<char* (*)(char*)>("mkdtemp")(path);
}

void* wlr_headless_backend_create(void* loop) {
  if (isBroken("wlroots")) return nullptr;
  return real<void* (*)(void*)>("wlr_headless_backend_create")(loop);
}
}
