#include "support/HeadlessMpv.h"

namespace tromelo::testing {

MpvClientApi headlessMpv(std::map<std::string, std::string> overrides) {
  MpvClientApi api = MpvClientApi::libmpv();
  overrides.insert({"vo", "null"});
  api.setOptionString = [overrides = std::move(overrides)](mpv_handle* handle, const char* name,
                                                           const char* value) {
    const auto found = overrides.find(name);
    return mpv_set_option_string(handle, name,
                                 found == overrides.end() ? value : found->second.c_str());
  };
  // No option of the engine's own asks for an audio output.
  api.initialize = [](mpv_handle* handle) {
    mpv_set_option_string(handle, "ao", "null");
    return mpv_initialize(handle);
  };
  return api;
}

}  // namespace tromelo::testing
