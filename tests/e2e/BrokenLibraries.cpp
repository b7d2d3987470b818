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

unsigned long mpv_client_api_version() {
  if (isBroken("libmpv")) return 0x20002;
  return real<unsigned long (*)()>("mpv_client_api_version")();
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
