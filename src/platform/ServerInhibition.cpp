#include <qguiapplication_platform.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "platform/IdleInhibitor.h"

namespace tromelo {

namespace {

using std::chrono::seconds;

/// Programs that lock the screen look at the same idle time as the server, with limits of a minute
/// and more.
constexpr seconds kMostBetweenBeats(30);
/// Until the server has said what its own limit is, and where that is short.
constexpr seconds kLeastBetweenBeats(1);

xcb_connection_t* serverConnection() {
  const auto* server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return server ? server->connection() : nullptr;
}

/// Has the X server count its idle time from zero again and again, which its own screen saver, its
/// power saving and whoever asks it for that time go by. Main thread only; waits for nothing.
class ServerInhibition {
 public:
  explicit ServerInhibition(Clock& clock) : clock_(clock), connection_(serverConnection()) {}

  bool isOffered() const { return connection_; }
  void beat();
  void release();

 private:
  void takeLimit();

  Clock& clock_;
  xcb_connection_t* const connection_;
  seconds between_ = kLeastBetweenBeats;
  std::optional<unsigned> question_;  // for the server's limit
  std::unique_ptr<Clock::Timer> next_;
};

void ServerInhibition::beat() {
  takeLimit();
  xcb_force_screen_saver(connection_, XCB_SCREEN_SAVER_RESET);
  // Asked each time: the person may have changed it.
  if (!question_) question_ = xcb_get_screen_saver(connection_).sequence;
  xcb_flush(connection_);
  next_ = clock_.after(between_, [this] { beat(); });
}

void ServerInhibition::takeLimit() {
  void* reply = nullptr;
  xcb_generic_error_t* error = nullptr;
  if (!question_ || !xcb_poll_for_reply(connection_, *question_, &reply, &error)) return;
  question_.reset();
  if (reply) {
    const int limit = static_cast<xcb_get_screen_saver_reply_t*>(reply)->timeout;
    const bool hasLimit = limit > 0;
    between_ = hasLimit ? std::clamp(seconds(limit / 3), kLeastBetweenBeats, kMostBetweenBeats)
                        : kMostBetweenBeats;
  }
  std::free(reply);
  std::free(error);
}

void ServerInhibition::release() {
  next_.reset();
  if (question_) xcb_discard_reply(connection_, *question_);
  question_.reset();
}

}  // namespace

AskForInhibition serverInhibition(Clock& clock) {
  return [server = std::make_shared<ServerInhibition>(clock)](const auto& answer) {
    if (!server->isOffered()) return answer({});
    server->beat();
    answer([server] { server->release(); });
  };
}

}  // namespace tromelo
