#pragma once

#include <string_view>

#include "engine/MpvClientApi.h"

namespace tromelo::testing {

/// The real libmpv, but its picture and sound go nowhere; without a device it can't open the sound.
inline MpvClientApi headlessMpv(bool hasSoundDevice = true) {
  MpvClientApi api = MpvClientApi::libmpv();
  api.setOptionString = [](mpv_handle* handle, const char* name, const char* value) {
    return mpv_set_option_string(handle, name, name == std::string_view("vo") ? "null" : value);
  };
  // No option of the engine's own asks for an audio output.
  api.initialize = [hasSoundDevice](mpv_handle* handle) {
    mpv_set_option_string(handle, "ao", hasSoundDevice ? "null" : "pcm");
    mpv_set_option_string(handle, "ao-pcm-file", "/no/such/folder/file");
    return mpv_initialize(handle);
  };
  return api;
}

}  // namespace tromelo::testing
