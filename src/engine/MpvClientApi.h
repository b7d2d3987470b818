#pragma once

#include <mpv/client.h>

#include <cstdint>
#include <functional>

namespace tromelo {

/// Every function of libmpv that we call, so that tests put others in their place. Arguments and
/// results are libmpv's own. No entry may be empty.
struct MpvClientApi {
  std::function<mpv_handle*()> create;
  std::function<int(mpv_handle*, const char* name, const char* value)> setOptionString;
  std::function<int(mpv_handle*)> initialize;
  std::function<int(mpv_handle*, std::uint64_t reply, const char* name, mpv_format)>
      observeProperty;
  std::function<int(mpv_handle*, const char* level)> requestLogMessages;
  std::function<void(mpv_handle*, void (*callback)(void*), void* context)> setWakeupCallback;
  std::function<mpv_event*(mpv_handle*, double timeout)> waitEvent;
  std::function<int(mpv_handle*, std::uint64_t reply, const char** arguments)> commandAsync;
  std::function<int(mpv_handle*, std::uint64_t reply, const char* name, mpv_format, void* data)>
      setPropertyAsync;
  std::function<int(mpv_handle*, std::uint64_t reply, const char* name, mpv_format)>
      getPropertyAsync;
  std::function<unsigned long()> clientApiVersion;
  std::function<const char*(int code)> errorString;
  std::function<void(mpv_handle*)> terminateDestroy;

  /// Gives a second client of the same engine, which may wait for it, or nothing.
  std::function<mpv_handle*(mpv_handle*, const char* name)> createClient;
  // What only that one needs; may be empty where there is none.
  std::function<int(mpv_handle*, std::uint64_t reply, const char* name, int priority)> hookAdd = {};
  std::function<int(mpv_handle*, std::uint64_t id)> hookContinue = {};
  std::function<int(mpv_handle*, const char* name, mpv_format, void* data)> getProperty = {};
  std::function<int(mpv_handle*, const char* name, const char* value)> setPropertyString = {};
  std::function<int(mpv_handle*, const char** arguments)> command = {};
  std::function<void(void*)> free = {};
  std::function<void(mpv_handle*)> wakeup = {};
  std::function<void(mpv_handle*)> destroy = {};

  /// The library itself, which is loaded the first time. Where there is none, create() gives
  /// nothing.
  static const MpvClientApi& libmpv();
};

}  // namespace tromelo
