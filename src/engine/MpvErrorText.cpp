#include "engine/MpvErrorText.h"

#include "engine/MpvClientApi.h"

namespace tromelo {

std::optional<std::string> mpvErrorText(const MpvClientApi& api, int code) {
  if (code >= 0) return {};
  if (const char* text = api.errorString(code)) return text;
  return "Playback engine error (" + std::to_string(code) + ")";
}

}  // namespace tromelo
