#include "platform/IdleInhibitor.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>
#include <utility>

#include "platform/SessionBus.h"

namespace tromelo {

namespace {

QDBusMessage screenSaverCall(const QString& method) {
  return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                        QStringLiteral("/org/freedesktop/ScreenSaver"),
                                        QStringLiteral("org.freedesktop.ScreenSaver"), method);
}

void release(uint cookie) {
  QDBusMessage call = screenSaverCall(QStringLiteral("UnInhibit"));
  call << cookie;
  if (auto bus = sessionBus()) bus->send(call);
}

}  // namespace

IdleInhibitor::~IdleInhibitor() { setInhibited(false); }

void IdleInhibitor::setInhibited(bool inhibited) {
  wanted_ = inhibited;
  if (wanted_ && cookie_ == 0 && !requested_) inhibit();
  if (!wanted_ && cookie_ != 0) release(std::exchange(cookie_, 0));
}

void IdleInhibitor::inhibit() {
  auto bus = sessionBus();
  if (!bus) return;
  requested_ = true;
  QDBusMessage call = screenSaverCall(QStringLiteral("Inhibit"));
  call << QCoreApplication::applicationName() << QStringLiteral("Playing a video");
  // Not a child of ours: an answer that comes after our end has to be given back too.
  auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(call), qApp);
  connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
          [watcher, self = QPointer<IdleInhibitor>(this)] {
            const QDBusPendingReply<uint> reply = *watcher;
            watcher->deleteLater();
            const uint cookie = reply.isError() ? 0 : reply.value();
            if (self)
              self->hold(cookie);
            else if (cookie != 0)
              release(cookie);
          });
}

void IdleInhibitor::hold(uint cookie) {
  requested_ = false;
  cookie_ = cookie;
  if (!wanted_ && cookie_ != 0) release(std::exchange(cookie_, 0));
}

}  // namespace tromelo
