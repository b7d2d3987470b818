#include "engine/PreloadHook.h"

#include <type_traits>
#include <utility>

#include "engine/MpvClientApi.h"

namespace tromelo {

PreloadHook::PreloadHook(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine,
                         Prepare prepare)
    : api_(api), prepare_(std::move(prepare)), client_(std::move(api), engine, "preload") {
  if (!client_.handle()) return;
  // Before the first file is asked for.
  api_->hookAdd(client_.handle(), 0, "on_preloaded", 0);
  client_.start([] {},
                [this](const mpv_event& event) {
                  if (event.event_id == MPV_EVENT_HOOK)
                    answer(*static_cast<mpv_event_hook*>(event.data));
                });
}

void PreloadHook::answer(const mpv_event_hook& hook) {
  const std::uint64_t id = hook.id;  // asking the engine may reuse the event
  for (const Wish& wish : prepare_(openedFile())) send(wish);
  api_->hookContinue(client_.handle(), id);
}

OpenedFile PreloadHook::openedFile() const {
  const auto place = number<std::int64_t>("playlist-playing-pos");
  return {.entry = number<std::int64_t>(("playlist/" + std::to_string(place) + "/id").c_str()),
          .path = text("path"),
          .duration = number<double>("duration"),
          .hasStart = text("start") != "none",
          .versions = text("mpv-version") + ' ' + text("ffmpeg-version")};
}

std::string PreloadHook::text(const char* name) const {
  char* value = nullptr;
  if (api_->getProperty(client_.handle(), name, MPV_FORMAT_STRING, static_cast<void*>(&value)) <
          0 ||
      !value)
    return {};
  std::string copy = value;
  api_->free(value);
  return copy;
}

template <typename T>
T PreloadHook::number(const char* name) const {
  T value = 0;
  constexpr auto format = std::is_same_v<T, double> ? MPV_FORMAT_DOUBLE : MPV_FORMAT_INT64;
  return api_->getProperty(client_.handle(), name, format, &value) < 0 ? T(0) : value;
}

void PreloadHook::send(const Wish& wish) const {
  if (const auto* write = std::get_if<MpvPropertyWrite>(&wish)) {
    api_->setPropertyString(client_.handle(), write->name.c_str(), write->value.c_str());
    return;
  }
  api_->command(client_.handle(), mpvWords(std::get<MpvCommand>(wish).arguments).data());
}

}  // namespace tromelo
