#include "Desktop.h"

#include <QDBusPendingCall>
#include <QDBusReply>
#include <QDBusVariant>

#include "support/WaitFor.h"

namespace tromelo::testing {

namespace {

const QString kService = "org.mpris.MediaPlayer2.tromelo";
const QString kPath = "/org/mpris/MediaPlayer2";
const QString kPlayer = "org.mpris.MediaPlayer2.Player";
const QString kProperties = "org.freedesktop.DBus.Properties";

}  // namespace

Desktop::Desktop() : bus_(connection("desktop")) {
  bus_.connect({}, kPath, kProperties, "PropertiesChanged", this,
               SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
  bus_.connect({}, kPath, kPlayer, "Seeked", this, SLOT(seeked(qlonglong)));
}

Desktop::~Desktop() {
  for (const QString& name : names_) QDBusConnection::disconnectFromBus(name);
}

QDBusConnection Desktop::connection(const QString& name) {
  names_ << name;
  return QDBusConnection::connectToBus(daemon_.address(), name);
}

QDBusMessage Desktop::send(const QDBusMessage& message) {
  // Not a blocking call: the other end lives on this thread too.
  const QDBusPendingCall pending = bus_.asyncCall(message);
  return waitFor([&pending] { return pending.isFinished(); }) ? pending.reply() : QDBusMessage();
}

QDBusMessage Desktop::call(const QString& interface, const QString& method,
                           const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, interface, method);
  message.setArguments(arguments);
  return send(message);
}

QVariant Desktop::property(const QString& name) {
  const QDBusReply<QDBusVariant> reply = call(kProperties, "Get", {kPlayer, name});
  return reply.value().variant();
}

QVariantMap Desktop::properties() {
  const QDBusReply<QVariantMap> reply = call(kProperties, "GetAll", {kPlayer});
  return reply.value();
}

QDBusMessage Desktop::set(const QString& name, const QVariant& value) {
  return call(kProperties, "Set", {kPlayer, name, QVariant::fromValue(QDBusVariant(value))});
}

bool Desktop::owns(const QString& name) {
  const QDBusReply<bool> reply = send([&name] {
    QDBusMessage asked = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/",
                                                        "org.freedesktop.DBus", "NameHasOwner");
    return asked << name;
  }());
  return reply.value();
}

void Desktop::propertiesChanged(const QString& interface, const QVariantMap& changed,
                                const QStringList&) {
  if (interface == kPlayer) changes.append(changed);
}

}  // namespace tromelo::testing
