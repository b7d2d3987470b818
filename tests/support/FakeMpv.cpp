#include "support/FakeMpv.h"

namespace tromelo::testing {

MpvClientApi FakeMpv::api() {
  return {
      .create = [this]() -> mpv_handle* {
        if (cannotBeCreated) return nullptr;
        ++created;
        return reinterpret_cast<mpv_handle*>(this);
      },
      .setOptionString =
          [this](mpv_handle*, const char* name, const char* value) {
            options.emplace_back(name, value);
            const auto result = optionResults.find(name);
            return result == optionResults.end() ? 0 : result->second;
          },
      .initialize = [this](mpv_handle*) { return initializeResult; },
      .observeProperty =
          [this](mpv_handle*, std::uint64_t reply, const char* name, mpv_format format) {
            observed.push_back({reply, name, format});
            return 0;
          },
      .requestLogMessages =
          [this](mpv_handle*, const char* level) {
            logLevel = level;
            return 0;
          },
      .setWakeupCallback =
          [this](mpv_handle*, void (*callback)(void*), void* context) {
            const std::scoped_lock lock(callbackMutex_);
            callback_ = callback;
            context_ = context;
          },
      .waitEvent =
          [this](mpv_handle*, double) {
            taken_ = {};
            if (!events_.empty()) {
              taken_ = events_.front();
              events_.pop_front();
            }
            return &taken_;
          },
      .commandAsync =
          [this](mpv_handle*, std::uint64_t, const char** arguments) {
            std::vector<std::string> words;
            for (; *arguments; ++arguments) words.emplace_back(*arguments);
            return request(std::move(words));
          },
      .setPropertyAsync =
          [this](mpv_handle*, std::uint64_t, const char* name, mpv_format, void* data) {
            return request({"set", name, *static_cast<const char**>(data)});
          },
      .getPropertyAsync = [this](
                              mpv_handle*, std::uint64_t reply, const char* name,
                              mpv_format) { return request({"get", name, std::to_string(reply)}); },
      .clientApiVersion = [this] { return version; },
      .errorString = [](int code) -> const char* {
        return code < -100 ? nullptr : mpv_error_string(code);
      },
      .terminateDestroy =
          [this](mpv_handle*) {
            destroyedBy = std::this_thread::get_id();
            ++destroyed;
          },
  };
}

int FakeMpv::request(std::vector<std::string> words) {
  if (refusal < 0) return refusal;
  if (room == 0) return MPV_ERROR_EVENT_QUEUE_FULL;
  --room;
  requests.push_back(std::move(words));
  return 0;
}

void FakeMpv::queue(mpv_event_id id, void* data, std::uint64_t reply, int error) {
  events_.push_back({id, error, reply, data});
}

void FakeMpv::wake() {
  const std::scoped_lock lock(callbackMutex_);
  if (callback_) callback_(context_);
}

}  // namespace tromelo::testing
