#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <functional>
#include <utility>

namespace tromelo {

/// Runs `task` on the main thread later, from any thread. Dropped when the application object is
/// gone: the process is ending and nobody listens any more.
inline void postToMainThread(std::function<void()> task) {
  if (QObject* application = QCoreApplication::instance())
    QMetaObject::invokeMethod(application, std::move(task), Qt::QueuedConnection);
}

}  // namespace tromelo
