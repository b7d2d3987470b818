#include "engine/MpvTranslation.h"

#include <gtest/gtest.h>

#include "engine/MpvClientApi.h"
#include "support/Table.h"

namespace tromelo::testing {

std::optional<MpvEvent> translated(mpv_event_id id, void* data = nullptr, int error = 0,
                                   std::uint64_t reply = 0) {
  return translateMpvEvent(MpvClientApi::libmpv(), {id, error, reply, data});
}

std::optional<MpvEvent> translatedLog(const char* prefix, const char* text) {
  mpv_event_log_message message{prefix, "warn", text, MPV_LOG_LEVEL_WARN};
  return translated(MPV_EVENT_LOG_MESSAGE, &message);
}

std::optional<MpvEvent> translatedEnd(mpv_end_file_reason reason, int error) {
  mpv_event_end_file end{};
  end.reason = reason;
  end.error = error;
  end.playlist_entry_id = 7;
  return translated(MPV_EVENT_END_FILE, &end);
}

TEST(Translation, EventsWithoutPayload) {
  EXPECT_EQ(translated(MPV_EVENT_FILE_LOADED), MpvEvent(event::FileLoaded{}));
  EXPECT_EQ(translated(MPV_EVENT_PLAYBACK_RESTART), MpvEvent(event::PlaybackRestart{}));
  EXPECT_EQ(translated(MPV_EVENT_VIDEO_RECONFIG), MpvEvent(event::VideoReconfigured{}));
  EXPECT_EQ(translated(MPV_EVENT_IDLE), MpvEvent(event::Idle{}));
  EXPECT_EQ(translated(MPV_EVENT_SHUTDOWN), MpvEvent(event::Shutdown{}));
  for (const mpv_event_id other : {MPV_EVENT_SET_PROPERTY_REPLY, MPV_EVENT_GET_PROPERTY_REPLY,
                                   MPV_EVENT_SEEK, MPV_EVENT_HOOK}) {
    EXPECT_EQ(translated(other, nullptr, MPV_ERROR_GENERIC), std::nullopt) << other;
  }
}

TEST(Translation, OnlyTheVideoDecodersWarningsAboutHardwareCount) {
  const std::optional<MpvEvent> hardwareError = event::HardwareDecodeError{};
  EXPECT_EQ(translatedLog("vd", "Error while decoding (hardware decoding)!"), hardwareError);
  EXPECT_EQ(translatedLog("ad", "Error while decoding (hardware decoding)!"), std::nullopt);
  EXPECT_EQ(translatedLog("vd", "Error while decoding frame"), std::nullopt);
  EXPECT_EQ(translatedLog(nullptr, "hardware decoding"), std::nullopt);
  EXPECT_EQ(translatedLog("vd", nullptr), std::nullopt);
  EXPECT_EQ(translated(MPV_EVENT_LOG_MESSAGE), std::nullopt);
}

TEST(Translation, ThePlayersWordsOnItsOutputsCount) {
  const char* noVideo = "Error opening/initializing the selected video_out (--vo) device.\n";
  const char* noAudio = "Could not open/initialize audio device -> no sound.\n";
  EXPECT_EQ(translatedLog("cplayer", noVideo), MpvEvent(event::VideoOutputFailed{}));
  EXPECT_EQ(translatedLog("vo/gpu-next/libplacebo", "vkQueueSubmit2: VK_ERROR_DEVICE_LOST"),
            MpvEvent(event::VideoDeviceLost{}));
  EXPECT_EQ(translatedLog("cplayer", noAudio), MpvEvent(event::AudioOutputFailed{}));
  EXPECT_EQ(translatedLog("vo", noVideo), std::nullopt);
  EXPECT_EQ(translatedLog("cplayer", "No audio."), std::nullopt);
}

TEST(Translation, StartAndEndOfFile) {
  mpv_event_start_file start{7};
  EXPECT_EQ(translated(MPV_EVENT_START_FILE, &start), MpvEvent(event::StartFile{7}));
  const auto ended = [](std::optional<std::string> error, bool lacksSoundDevice = false) {
    return std::optional<MpvEvent>(event::EndFile{std::move(error), 7, lacksSoundDevice});
  };
  const Table<const char*, std::optional<MpvEvent>, std::optional<MpvEvent>> rows{
      {"played to its end", translatedEnd(MPV_END_FILE_REASON_EOF, 0), ended({})},
      {"stopped", translatedEnd(MPV_END_FILE_REASON_STOP, 0), ended({})},
      {"redirected", translatedEnd(MPV_END_FILE_REASON_REDIRECT, 0), ended({})},
      {"failed", translatedEnd(MPV_END_FILE_REASON_ERROR, MPV_ERROR_LOADING_FAILED),
       ended(mpv_error_string(MPV_ERROR_LOADING_FAILED))},
      {"without sound", translatedEnd(MPV_END_FILE_REASON_ERROR, MPV_ERROR_AO_INIT_FAILED),
       ended(mpv_error_string(MPV_ERROR_AO_INIT_FAILED), true)},
      {"failed without a reason", translatedEnd(MPV_END_FILE_REASON_ERROR, 0),
       ended("Playback failed")},
      {"no payload", translated(MPV_EVENT_END_FILE), std::nullopt},
  };
  for (const auto& [what, got, expected] : rows) EXPECT_EQ(got, expected) << what;
}

TEST(Translation, RepliesToCommandsMatterWhenTheyFailOrQueueAFile) {
  mpv_event_command reply{};
  EXPECT_EQ(translated(MPV_EVENT_COMMAND_REPLY, &reply), std::nullopt);
  mpv_node entry{.u = {.int64 = 7}, .format = MPV_FORMAT_INT64};
  std::string key = "playlist_entry_id";
  char* keys = key.data();
  mpv_node_list map{1, &entry, &keys};
  reply.result = {.u = {.list = &map}, .format = MPV_FORMAT_NODE_MAP};
  EXPECT_EQ(translated(MPV_EVENT_COMMAND_REPLY, &reply), MpvEvent(event::FileQueued{7}));
  EXPECT_EQ(translated(MPV_EVENT_COMMAND_REPLY, nullptr, MPV_ERROR_COMMAND),
            MpvEvent(event::CommandFailed{mpv_error_string(MPV_ERROR_COMMAND)}));
}

TEST(Translation, ChangesOfOurPropertiesOnly) {
  double position = 3.5;
  mpv_event_property change{"time-pos", MPV_FORMAT_DOUBLE, &position};
  mpv_event_property unavailable{"duration", MPV_FORMAT_NONE, nullptr};
  EXPECT_EQ(translated(MPV_EVENT_PROPERTY_CHANGE, &change, 0, 2),
            MpvEvent(event::Property{MpvProperty::timePos, 3.5}));
  EXPECT_EQ(translated(MPV_EVENT_PROPERTY_CHANGE, &unavailable, 0, 3),
            MpvEvent(event::Property{MpvProperty::duration, {}}));
  for (const std::uint64_t foreign : {std::size_t{0}, allMpvProperties().size() + 1}) {
    EXPECT_EQ(translated(MPV_EVENT_PROPERTY_CHANGE, &change, 0, foreign), std::nullopt) << foreign;
  }
  EXPECT_EQ(translated(MPV_EVENT_PROPERTY_CHANGE, nullptr, 0, 2), std::nullopt);
}

}  // namespace tromelo::testing
