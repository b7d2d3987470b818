#include "engine/MpvTranslation.h"

#include <string_view>

#include "engine/MpvClientApi.h"
#include "engine/MpvConversion.h"

namespace tromelo {

std::optional<std::string> mpvErrorText(const MpvClientApi& api, int code) {
  if (code >= 0) return {};
  if (const char* text = api.errorString(code)) return text;
  return "Playback engine error (" + std::to_string(code) + ")";
}

namespace {

template <typename T>
const T* payload(const mpv_event& received) {
  return static_cast<const T*>(received.data);
}

std::optional<MpvEvent> translateLog(const mpv_event_log_message* message) {
  if (!message || !message->prefix || !message->text) return {};
  const std::string_view prefix(message->prefix);
  const auto says = [text = std::string_view(message->text)](std::string_view words) {
    return text.find(words) != std::string_view::npos;
  };
  if (prefix == "vd" && says("hardware decoding")) return event::HardwareDecodeError{};
  // No event or property tells of an output that is missing while the other plays on.
  if (prefix == "cplayer" && says("(--vo) device")) return event::VideoOutputFailed{};
  if (prefix.starts_with("vo/") && says("ERROR_DEVICE_LOST")) return event::VideoDeviceLost{};
  if (prefix == "cplayer" && says("initialize audio device")) return event::AudioOutputFailed{};
  return {};
}

/// Of the commands that we send only "loadfile" has a result.
std::optional<MpvEvent> translateResult(const mpv_event_command* reply) {
  const auto node = reply ? mpvNode(reply->result) : std::nullopt;
  const auto* result = node ? node->as<MpvMap>() : nullptr;
  const auto* entry = result ? mpvEntry<std::int64_t>(*result, "playlist_entry_id") : nullptr;
  if (!entry) return {};
  return event::FileQueued{*entry};
}

std::optional<MpvEvent> translateReply(const MpvClientApi& api, const mpv_event& reply) {
  auto text = mpvErrorText(api, reply.error);
  if (!text) return translateResult(payload<mpv_event_command>(reply));
  return event::CommandFailed{std::move(*text)};
}

std::optional<MpvEvent> translateStart(const mpv_event_start_file* start) {
  return event::StartFile{start ? start->playlist_entry_id : 0};
}

std::optional<MpvEvent> translateEnd(const MpvClientApi& api, const mpv_event_end_file* end) {
  if (!end) return {};
  event::EndFile ended{.error = {}, .entry = end->playlist_entry_id};
  if (end->reason == MPV_END_FILE_REASON_ERROR) {
    ended.error = mpvErrorText(api, end->error).value_or("Playback failed");
    ended.lacksSoundDevice = end->error == MPV_ERROR_AO_INIT_FAILED;
  }
  return ended;
}

std::optional<MpvEvent> translateChange(std::uint64_t reply, const mpv_event_property* change) {
  const auto property = mpvProperty(reply);
  if (!property || !change) return {};
  return event::Property{*property, mpvValue(*change)};
}

}  // namespace

std::optional<MpvEvent> translateMpvEvent(const MpvClientApi& api, const mpv_event& received) {
  switch (received.event_id) {
    case MPV_EVENT_SHUTDOWN:
      return event::Shutdown{};
    case MPV_EVENT_LOG_MESSAGE:
      return translateLog(payload<mpv_event_log_message>(received));
    case MPV_EVENT_COMMAND_REPLY:
      return translateReply(api, received);
    case MPV_EVENT_START_FILE:
      return translateStart(payload<mpv_event_start_file>(received));
    case MPV_EVENT_END_FILE:
      return translateEnd(api, payload<mpv_event_end_file>(received));
    case MPV_EVENT_FILE_LOADED:
      return event::FileLoaded{};
    case MPV_EVENT_PLAYBACK_RESTART:
      return event::PlaybackRestart{};
    case MPV_EVENT_VIDEO_RECONFIG:
      return event::VideoReconfigured{};
    case MPV_EVENT_IDLE:
      return event::Idle{};
    case MPV_EVENT_PROPERTY_CHANGE:
      return translateChange(received.reply_userdata, payload<mpv_event_property>(received));
    default:
      return {};
  }
}

}  // namespace tromelo
