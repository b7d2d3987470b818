#include "engine/SecondClient.h"

#include <pthread.h>

#include <utility>

#include "engine/MpvClientApi.h"

namespace tromelo {

SecondClient::SecondClient(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine,
                           const char* name)
    : api_(std::move(api)), name_(name), handle_(api_->createClient(engine, name)) {}

SecondClient::~SecondClient() {
  if (!handle_) return;
  ends_ = true;
  wake();
  if (thread_.joinable()) thread_.join();
  api_->destroy(handle_);
}

void SecondClient::start(std::function<void()> begin,
                         std::function<void(const mpv_event&)> handle) {
  if (!handle_) return;
  thread_ = std::thread([this, begin = std::move(begin), handle = std::move(handle)] {
    pthread_setname_np(pthread_self(), name_);
    begin();
    while (!ends_) {
      const mpv_event* event = api_->waitEvent(handle_, -1);
      if (event->event_id == MPV_EVENT_SHUTDOWN) return;
      handle(*event);
    }
  });
}

void SecondClient::wake() const {
  if (handle_) api_->wakeup(handle_);
}

}  // namespace tromelo
