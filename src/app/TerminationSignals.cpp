#include "app/TerminationSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>

namespace tromelo {

namespace {

int writeEnd = -1;

void install(void (*handler)(int)) {
  struct sigaction action = {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  // One that comes while the other is noted waits for what that one installs.
  ::sigaddset(&action.sa_mask, SIGINT);
  ::sigaddset(&action.sa_mask, SIGTERM);
  ::sigaction(SIGINT, &action, nullptr);
  ::sigaction(SIGTERM, &action, nullptr);
}

// A handler may do no more than call what is safe there.
extern "C" void noteSignal(int) {
  install(SIG_DFL);
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
}

}  // namespace

TerminationSignals::TerminationSignals() {
  std::array<int, 2> ends{-1, -1};
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  writeEnd = ends[1];
  notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &TerminationSignals::read);
  install(noteSignal);
}

TerminationSignals::~TerminationSignals() {
  if (!notifier_) return;
  install(SIG_DFL);
  ::close(static_cast<int>(notifier_->socket()));
  ::close(writeEnd);
}

void TerminationSignals::read() {
  std::array<char, 16> bytes;
  while (::read(static_cast<int>(notifier_->socket()), bytes.data(), bytes.size()) > 0) {
  }
  Q_EMIT received();
}

}  // namespace tromelo
