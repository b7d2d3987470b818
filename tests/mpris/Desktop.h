#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

#include "support/BusDaemon.h"

namespace tromelo::testing {

/// A client of the media controls on a bus of its own, and what it is told by signal.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop();
  ~Desktop() override;

  QDBusConnection bus() { return bus_; }
  /// Another connection to the same bus, for as long as this lives.
  QDBusConnection connection(const QString& name);

  QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments);
  QVariant property(const QString& name);
  QVariantMap properties();
  QDBusMessage set(const QString& name, const QVariant& value);
  bool owns(const QString& name);

  QList<QVariantMap> changes;  // of the player, one for each signal
  QList<qlonglong> seeks;      // microseconds

 private Q_SLOTS:
  void propertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList&);
  void seeked(qlonglong position) { seeks.append(position); }

 private:
  QDBusMessage send(const QDBusMessage& message);

  BusDaemon daemon_;
  QStringList names_;
  QDBusConnection bus_;
};

}  // namespace tromelo::testing
