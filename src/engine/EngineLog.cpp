#include "engine/EngineLog.h"

#include <format>
#include <utility>

#include "engine/MpvClientApi.h"

namespace tromelo {

EngineLog::EngineLog(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine,
                     const std::string& file)
    : api_(api), file_(file, std::ios::app), client_(std::move(api), engine, "log") {
  client_.start([this] { takeOver(); },
                [this](const mpv_event& event) {
                  if (event.event_id == MPV_EVENT_LOG_MESSAGE)
                    write(*static_cast<mpv_event_log_message*>(event.data));
                  else
                    askForLines();
                });
}

void EngineLog::setWriting(bool writes) {
  writes_ = writes;
  client_.wake();
}

void EngineLog::takeOver() {
  askForLines();
  api_->setPropertyString(client_.handle(), "log-file", "");
}

void EngineLog::askForLines() {
  const bool writes = writes_;
  if (std::exchange(isAsked_, writes) == writes) return;
  // As much as libmpv itself writes to a file.
  api_->requestLogMessages(client_.handle(), writes ? "debug" : "no");
}

void EngineLog::write(const mpv_event_log_message& line) {
  if (!writes_) return;
  const std::chrono::duration<double> now = std::chrono::steady_clock::now() - begin_;
  file_ << std::format("[{:8.3f}][{}][{}] {}", now.count(), line.level[0], line.prefix, line.text)
        << std::flush;
}

}  // namespace tromelo
