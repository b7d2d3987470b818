#include "platform/MainThread.h"

#include <QCoreApplication>
#include <QMetaObject>

namespace tromelo {

void postToMainThread(std::function<void()> task) {
  QObject* mainThread = QCoreApplication::instance();
  if (mainThread) QMetaObject::invokeMethod(mainThread, std::move(task), Qt::QueuedConnection);
}

}  // namespace tromelo
