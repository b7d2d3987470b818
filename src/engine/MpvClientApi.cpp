#include "engine/MpvClientApi.h"

#include <dlfcn.h>

namespace tromelo {

namespace {

// libmpv brings some two hundred libraries along. Linked with the program they would all be
// searched for each symbol of Qt's and the drivers', which took a fifth of a start's time.
void* library() {
  static void* const loaded = dlopen("libmpv.so.2", RTLD_LAZY | RTLD_LOCAL);
  return loaded;
}

/// A function that the library lacks answers nothing: no handle is made, and the engine says so.
template <typename Function>
std::function<Function> entry(const char* name) {
  if (void* found = library() ? dlsym(library(), name) : nullptr)
    return reinterpret_cast<Function*>(found);
  return [](auto...) { return typename std::function<Function>::result_type(); };
}

}  // namespace

const MpvClientApi& MpvClientApi::libmpv() {
  static const MpvClientApi api{
      .create = entry<decltype(mpv_create)>("mpv_create"),
      .setOptionString = entry<decltype(mpv_set_option_string)>("mpv_set_option_string"),
      .initialize = entry<decltype(mpv_initialize)>("mpv_initialize"),
      .observeProperty = entry<decltype(mpv_observe_property)>("mpv_observe_property"),
      .requestLogMessages = entry<decltype(mpv_request_log_messages)>("mpv_request_log_messages"),
      .setWakeupCallback = entry<decltype(mpv_set_wakeup_callback)>("mpv_set_wakeup_callback"),
      .waitEvent = entry<decltype(mpv_wait_event)>("mpv_wait_event"),
      .commandAsync = entry<decltype(mpv_command_async)>("mpv_command_async"),
      .setPropertyAsync = entry<decltype(mpv_set_property_async)>("mpv_set_property_async"),
      .getPropertyAsync = entry<decltype(mpv_get_property_async)>("mpv_get_property_async"),
      .clientApiVersion = entry<decltype(mpv_client_api_version)>("mpv_client_api_version"),
      .errorString = entry<decltype(mpv_error_string)>("mpv_error_string"),
      .terminateDestroy = entry<decltype(mpv_terminate_destroy)>("mpv_terminate_destroy"),
      .createClient = entry<decltype(mpv_create_client)>("mpv_create_client"),
      .hookAdd = entry<decltype(mpv_hook_add)>("mpv_hook_add"),
      .hookContinue = entry<decltype(mpv_hook_continue)>("mpv_hook_continue"),
      .getProperty = entry<decltype(mpv_get_property)>("mpv_get_property"),
      .setPropertyString = entry<decltype(mpv_set_property_string)>("mpv_set_property_string"),
      .command = entry<decltype(mpv_command)>("mpv_command"),
      .free = entry<decltype(mpv_free)>("mpv_free"),
      .wakeup = entry<decltype(mpv_wakeup)>("mpv_wakeup"),
      .destroy = entry<decltype(mpv_destroy)>("mpv_destroy"),
  };
  return api;
}

}  // namespace tromelo
