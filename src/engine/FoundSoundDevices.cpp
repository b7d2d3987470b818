#include "engine/FoundSoundDevices.h"

#include <memory>

#include "engine/MpvClientApi.h"
#include "engine/MpvConversion.h"
#include "engine/MpvOptions.h"

namespace tromelo {

namespace {

constexpr double kPatience = 10;  // seconds; a sound server may hang

}  // namespace

MpvValue findSoundDevices(const MpvClientApi& api) {
  const std::unique_ptr<mpv_handle, decltype(api.terminateDestroy)> engine(api.create(),
                                                                           api.terminateDestroy);
  if (!engine) return {};
  for (const MpvOption& option : plainOptions())
    api.setOptionString(engine.get(), option.name.c_str(), option.value.c_str());
  for (const char* unwanted : {"config", "terminal", "load-scripts", "ytdl", "osc"})
    api.setOptionString(engine.get(), unwanted, "no");
  if (api.initialize(engine.get()) < 0 ||
      api.getPropertyAsync(engine.get(), 1, "audio-device-list", MPV_FORMAT_NODE) < 0)
    return {};
  for (;;) {
    const mpv_event* event = api.waitEvent(engine.get(), kPatience);
    if (event->event_id == MPV_EVENT_NONE || event->event_id == MPV_EVENT_SHUTDOWN) return {};
    if (event->event_id != MPV_EVENT_GET_PROPERTY_REPLY) continue;
    if (event->error < 0) return {};
    return mpvValue(*static_cast<const mpv_event_property*>(event->data));
  }
}

}  // namespace tromelo
