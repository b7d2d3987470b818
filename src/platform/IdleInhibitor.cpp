#include "platform/IdleInhibitor.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "platform/SessionBus.h"

namespace tromelo {

namespace {

QDBusMessage screenSaverCall(const QString& method) {
  return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                        QStringLiteral("/org/freedesktop/ScreenSaver"),
                                        QStringLiteral("org.freedesktop.ScreenSaver"), method);
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
  auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    const QDBusPendingReply<uint> reply = *watcher;
    watcher->deleteLater();
    requested_ = false;
    if (reply.isError()) return;
    cookie_ = reply.value();
    if (!wanted_) release(std::exchange(cookie_, 0));
  });
}

void IdleInhibitor::release(uint cookie) {
  QDBusMessage call = screenSaverCall(QStringLiteral("UnInhibit"));
  call << cookie;
  if (auto bus = sessionBus()) bus->send(call);
}

}  // namespace tromelo
