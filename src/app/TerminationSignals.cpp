#include "app/TerminationSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>

namespace tromelo {

namespace {

// A handler may do no more than write to a descriptor.
int writeEnd = -1;

extern "C" void noteSignal(int) {
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
}

void install(void (*handler)(int), int flags) {
  struct sigaction action = {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  ::sigaction(SIGINT, &action, nullptr);
  ::sigaction(SIGTERM, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals() {
  std::array<int, 2> ends{-1, -1};
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  writeEnd = ends[1];
  notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &TerminationSignals::read);
  install(noteSignal, SA_RESTART | SA_RESETHAND);
}

TerminationSignals::~TerminationSignals() {
  if (!notifier_) return;
  install(SIG_DFL, 0);
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
