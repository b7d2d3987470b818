#include "SentRequests.h"

#include <utility>

namespace tromelo::testing {

MpvClientApi SentRequests::api() {
  MpvClientApi api = MpvClientApi::libmpv();
  api.create = [this] { return reinterpret_cast<mpv_handle*>(&handle_); };
  api.setOptionString = [](mpv_handle*, const char*, const char*) { return 0; };
  api.initialize = [](mpv_handle*) { return 0; };
  api.observeProperty = [](mpv_handle*, std::uint64_t, const char*, mpv_format) { return 0; };
  api.requestLogMessages = [](mpv_handle*, const char*) { return 0; };
  api.setWakeupCallback = [](mpv_handle*, void (*)(void*), void*) {};
  api.waitEvent = [this](mpv_handle*, double) { return &none_; };
  api.commandAsync = [this](mpv_handle*, std::uint64_t, const char** arguments) {
    std::string line = *arguments;
    while (*++arguments) line += std::string(" ") + *arguments;
    sent_.push_back(line);
    return 0;
  };
  api.setPropertyAsync = [this](mpv_handle*, std::uint64_t, const char* name, mpv_format,
                                void* data) {
    sent_.push_back(std::string(name) + "=" + *static_cast<char**>(data));
    return 0;
  };
  api.terminateDestroy = [](mpv_handle*) {};
  return api;
}

std::vector<std::string> SentRequests::take() { return std::exchange(sent_, {}); }

}  // namespace tromelo::testing
