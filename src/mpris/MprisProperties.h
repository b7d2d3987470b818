#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMetaProperty>
#include <QVariantMap>
#include <optional>

namespace tromelo {

/// org.freedesktop.DBus.Properties on the bus: reads and writes the properties of the adaptors
/// beside it. It stands in for Qt's own, which can't refuse a value.
class MprisProperties : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.DBus.Properties")
  // Qt describes the interface already.
  Q_CLASSINFO("D-Bus Introspection", " ")

 public:
  MprisProperties(const QDBusConnection& bus, QObject* exported);

  /// All properties of one of our adaptors, by name.
  static QVariantMap of(const QDBusAbstractAdaptor& adaptor);
  static QString interfaceOf(const QDBusAbstractAdaptor& adaptor);
  /// PropertiesChanged, to be sent: with new values, and names of those that are to be asked for.
  static QDBusMessage changed(const QDBusAbstractAdaptor& adaptor, const QVariantMap& values,
                              const QStringList& invalidated = {});

 public Q_SLOTS:
  QDBusVariant Get(const QString& interface, const QString& name, const QDBusMessage& call);
  QVariantMap GetAll(const QString& interface, const QDBusMessage& call);
  void Set(const QString& interface, const QString& name, const QDBusVariant& value,
           const QDBusMessage& call);

 private:
  struct Property {
    QDBusAbstractAdaptor* adaptor;
    QMetaProperty property;
  };

  QList<QDBusAbstractAdaptor*> adaptors(const QString& interface) const;
  /// None where there is no such property; the caller is told so.
  std::optional<Property> find(const QString& interface, const QString& name,
                               const QDBusMessage& call);
  void refuse(const QDBusMessage& call, QDBusError::ErrorType error, const QString& reason);

  QDBusConnection bus_;
};

}  // namespace tromelo
