#include "app/DisplayGuard.h"

#include <QStringList>
#include <QtLogging>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <utility>

namespace tromelo {

namespace {

std::mutex mutex;  // messages come from any thread
QStringList held;

void hold(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const std::scoped_lock lock(mutex);
  if (type != QtFatalMsg) return held.append(qFormatLogMessage(type, context, message));
  std::fputs(
      "Tromelo can't reach the display that QT_QPA_PLATFORM, WAYLAND_DISPLAY or DISPLAY names: "
      "start it in a Wayland or X11 session.\n",
      stderr);
  std::_Exit(1);
}

}  // namespace

DisplayGuard::DisplayGuard() { qInstallMessageHandler(hold); }

DisplayGuard::~DisplayGuard() {
  qInstallMessageHandler(nullptr);
  const std::scoped_lock lock(mutex);
  for (const QString& line : std::exchange(held, {}))
    std::fprintf(stderr, "%s\n", qPrintable(line));
}

}  // namespace tromelo
