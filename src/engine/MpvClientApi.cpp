#include "engine/MpvClientApi.h"

namespace tromelo {

const MpvClientApi& MpvClientApi::libmpv() {
  static const MpvClientApi api{
      .create = mpv_create,
      .setOptionString = mpv_set_option_string,
      .initialize = mpv_initialize,
      .observeProperty = mpv_observe_property,
      .requestLogMessages = mpv_request_log_messages,
      .setWakeupCallback = mpv_set_wakeup_callback,
      .waitEvent = mpv_wait_event,
      .commandAsync = mpv_command_async,
      .setPropertyAsync = mpv_set_property_async,
      .getPropertyAsync = mpv_get_property_async,
      .clientApiVersion = mpv_client_api_version,
      .errorString = mpv_error_string,
      .terminateDestroy = mpv_terminate_destroy,
  };
  return api;
}

}  // namespace tromelo
