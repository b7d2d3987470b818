#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>
#include <limits>

#include "platform/IdleInhibitor.h"

namespace tromelo {

namespace {

using Answer = std::function<void(ReleaseInhibition)>;
/// The call that gives back what a reply granted.
using GiveBack = std::function<QDBusMessage(const QDBusMessage& reply)>;

QString portal() { return QStringLiteral("org.freedesktop.portal.Desktop"); }

QString reason() { return QCoreApplication::translate("IdleInhibitor", "Playing a video"); }

QDBusMessage screenSaverCall(const char* method, const QVariantList& arguments) {
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver"),
      QStringLiteral("org.freedesktop.ScreenSaver"), QString::fromLatin1(method));
  call.setArguments(arguments);
  return call;
}

QDBusMessage portalCall() {
  constexpr uint kSuspend = 4;
  constexpr uint kIdle = 8;
  QDBusMessage call = QDBusMessage::createMethodCall(
      portal(), QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Inhibit"), QStringLiteral("Inhibit"));
  const QString noWindow = QLatin1String("");
  return call << noWindow << (kSuspend | kIdle)
              << QVariantMap{{QStringLiteral("reason"), reason()}};
}

QDBusMessage closeOf(const QDBusMessage& reply) {
  return QDBusMessage::createMethodCall(
      portal(), QDBusPendingReply<QDBusObjectPath>(reply).value().path(),
      QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
}

void ask(QDBusConnection bus, const QDBusMessage& call, const GiveBack& giveBack,
         const Answer& answer) {
  // However late an answer comes, it has to be heard: it may have to be given back.
  constexpr int kForEver = std::numeric_limits<int>::max();
  auto* watcher =
      new QDBusPendingCallWatcher(bus.asyncCall(call, kForEver), QCoreApplication::instance());
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                   [watcher, bus, giveBack, answer] {
                     const QDBusMessage reply = watcher->reply();
                     watcher->deleteLater();
                     if (reply.type() != QDBusMessage::ReplyMessage) return answer({});
                     answer([bus, ending = giveBack(reply)] { bus.send(ending); });
                   });
}

}  // namespace

AskForInhibition portalInhibition(const QDBusConnection& bus) {
  return [bus](const Answer& answer) { ask(bus, portalCall(), closeOf, answer); };
}

AskForInhibition screenSaverInhibition(const QDBusConnection& bus) {
  return [bus](const Answer& answer) {
    const auto giveBack = [](const QDBusMessage& reply) {
      return screenSaverCall("UnInhibit", reply.arguments());
    };
    const QDBusMessage call =
        screenSaverCall("Inhibit", {QCoreApplication::applicationName(), reason()});
    ask(bus, call, giveBack, answer);
  };
}

}  // namespace tromelo
