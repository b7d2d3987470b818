#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <chrono>
#include <functional>

namespace tromelo::testing {

/// Runs the event loop until `condition` holds. False when `limit` passes first; the limit only
/// bounds a failing test, so it is far above what a slow machine needs.
[[nodiscard]] inline bool waitFor(const std::function<bool()>& condition,
                                  std::chrono::milliseconds limit = std::chrono::seconds(30)) {
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

/// Runs the event loop until nothing is waiting in it: posted calls and deferred deletions.
inline void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

}  // namespace tromelo::testing
