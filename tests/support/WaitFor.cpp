#include "support/WaitFor.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace tromelo::testing {

bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  const QDeadlineTimer deadline(limit);
  // Wakes the loop for conditions that no event announces, such as a file that appears.
  QTimer tick;
  tick.start(std::chrono::milliseconds(5));
  while (!condition()) {
    if (deadline.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

}  // namespace tromelo::testing
