#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <QDBusVariant>

#include "support/BusDaemon.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// A client of the media controls on a bus of its own, and what it is told by signal.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop() {
    bus_.connect({}, kPath, kProperties, "PropertiesChanged", this,
                 SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    bus_.connect({}, kPath, kPlayer, "Seeked", this, SLOT(seeked(qlonglong)));
    for (const char* signal : {"TrackListReplaced", "TrackAdded", "TrackRemoved"})
      bus_.connect({}, kPath, kTrackList, signal, this, SLOT(tracksChanged(QDBusMessage)));
  }
  QDBusConnection connection(const QString& name) { return daemon_.connect(name); }
  QDBusMessage call(const QString& interface, const QString& method,
                    const QVariantList& arguments) {
    QDBusMessage message =
        QDBusMessage::createMethodCall("org.mpris.MediaPlayer2.tromelo", kPath, interface, method);
    message.setArguments(arguments);
    // Not a blocking call: the other end lives on this thread too.
    const QDBusPendingCall pending = bus_.asyncCall(message);
    return waitFor([&pending] { return pending.isFinished(); }) ? pending.reply() : QDBusMessage();
  }
  QVariantMap properties(const QString& interface = kPlayer) {
    return QDBusReply<QVariantMap>(call(kProperties, "GetAll", {interface})).value();
  }
  QDBusMessage set(const QString& name, const QVariant& value) {
    return call(kProperties, "Set", {kPlayer, name, QVariant::fromValue(QDBusVariant(value))});
  }
  bool owns(const QString& name) { return bus_.interface()->isServiceRegistered(name); }

  QList<QVariantMap> changes;  // of the player, one for each signal
  QList<qlonglong> seeks;      // microseconds
  QStringList trackSignals;

 private Q_SLOTS:
  void propertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList&) {
    if (interface == kPlayer) changes.append(changed);
  }
  void seeked(qlonglong position) { seeks.append(position); }
  void tracksChanged(const QDBusMessage& signal) { trackSignals << signal.member(); }

 private:
  static constexpr const char* kPath = "/org/mpris/MediaPlayer2";
  static constexpr const char* kPlayer = "org.mpris.MediaPlayer2.Player";
  static constexpr const char* kTrackList = "org.mpris.MediaPlayer2.TrackList";
  static constexpr const char* kProperties = "org.freedesktop.DBus.Properties";

  BusDaemon daemon_;
  QDBusConnection bus_ = daemon_.connect("desktop");
};

}  // namespace tromelo::testing
