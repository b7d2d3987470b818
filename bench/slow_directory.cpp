// Loaded before a player, it lets every look at a file of SLOW_DIRECTORY take five seconds, as a
// share does that has to wake up first.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

void waitWhereSlow(const char* path) {
  const char* slow = std::getenv("SLOW_DIRECTORY");
  if (slow && path && std::strncmp(path, slow, std::strlen(slow)) == 0)
    std::this_thread::sleep_for(std::chrono::seconds(5));
}

/// What would have been called, after the wait.
template <typename Function>
Function* real(const char* name, const char* path) {
  waitWhereSlow(path);
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int access(const char* path, int mode) noexcept {
  return real<int(const char*, int)>("access", path)(path, mode);
}

int faccessat(int directory, const char* path, int mode, int flags) noexcept {
  return real<int(int, const char*, int, int)>("faccessat", path)(directory, path, mode, flags);
}

int stat(const char* path, struct stat* result) noexcept {
  return real<int(const char*, struct stat*)>("stat", path)(path, result);
}

int lstat(const char* path, struct stat* result) noexcept {
  return real<int(const char*, struct stat*)>("lstat", path)(path, result);
}

int statx(int directory, const char* path, int flags, unsigned mask,
          struct statx* result) noexcept {
  return real<int(int, const char*, int, unsigned, struct statx*)>("statx", path)(
      directory, path, flags, mask, result);
}

}  // extern "C"
