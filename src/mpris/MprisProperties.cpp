#include "mpris/MprisProperties.h"

#include <QMetaClassInfo>
#include <cmath>

#include "mpris/MprisValues.h"

namespace tromelo {

namespace {

/// The value in the property's own type; invalid where it has none in that.
QVariant converted(QVariant value, QMetaType type) {
  if (!value.convert(type)) return {};
  if (type == QMetaType::fromType<double>() && !std::isfinite(value.toDouble())) return {};
  return value;
}

}  // namespace

MprisProperties::MprisProperties(const QDBusConnection& bus, QObject* exported)
    : QDBusAbstractAdaptor(exported), bus_(bus) {}

QVariantMap MprisProperties::of(const QDBusAbstractAdaptor& adaptor) {
  const QMetaObject* type = adaptor.metaObject();
  QVariantMap values;
  for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
    const QMetaProperty property = type->property(i);
    values.insert(QString::fromLatin1(property.name()), property.read(&adaptor));
  }
  return values;
}

QString MprisProperties::interfaceOf(const QDBusAbstractAdaptor& adaptor) {
  const QMetaObject* type = adaptor.metaObject();
  return QString::fromLatin1(type->classInfo(type->indexOfClassInfo("D-Bus Interface")).value());
}

QDBusMessage MprisProperties::changed(const QDBusAbstractAdaptor& adaptor,
                                      const QVariantMap& values, const QStringList& invalidated) {
  QDBusMessage signal = QDBusMessage::createSignal(
      mprisObjectPath(), QStringLiteral("org.freedesktop.DBus.Properties"),
      QStringLiteral("PropertiesChanged"));
  return signal << interfaceOf(adaptor) << values << invalidated;
}

/// All of them for an empty interface, as D-Bus allows.
QList<QDBusAbstractAdaptor*> MprisProperties::adaptors(const QString& interface) const {
  auto found = parent()->findChildren<QDBusAbstractAdaptor*>(Qt::FindDirectChildrenOnly);
  found.removeIf([&interface](const QDBusAbstractAdaptor* adaptor) {
    return !interface.isEmpty() && interfaceOf(*adaptor) != interface;
  });
  return found;
}

std::optional<MprisProperties::Property> MprisProperties::find(const QString& interface,
                                                               const QString& name,
                                                               const QDBusMessage& call) {
  for (QDBusAbstractAdaptor* adaptor : adaptors(interface)) {
    const QMetaObject* type = adaptor->metaObject();
    const int index = type->indexOfProperty(name.toLatin1().constData());
    if (index >= type->propertyOffset()) return Property{adaptor, type->property(index)};
  }
  refuse(call, QDBusError::UnknownProperty, QStringLiteral("There is no property %1.").arg(name));
  return {};
}

void MprisProperties::refuse(const QDBusMessage& call, QDBusError::ErrorType error,
                             const QString& reason) {
  call.setDelayedReply(true);
  bus_.send(call.createErrorReply(error, reason));
}

QDBusVariant MprisProperties::Get(const QString& interface, const QString& name,
                                  const QDBusMessage& call) {
  const auto found = find(interface, name, call);
  return found ? QDBusVariant(found->property.read(found->adaptor)) : QDBusVariant();
}

QVariantMap MprisProperties::GetAll(const QString& interface, const QDBusMessage& call) {
  QVariantMap values;
  const auto found = adaptors(interface);
  for (const QDBusAbstractAdaptor* adaptor : found) values.insert(of(*adaptor));
  if (found.isEmpty())
    refuse(call, QDBusError::UnknownInterface,
           QStringLiteral("There is no interface %1.").arg(interface));
  return values;
}

void MprisProperties::Set(const QString& interface, const QString& name, const QDBusVariant& value,
                          const QDBusMessage& call) {
  const auto found = find(interface, name, call);
  if (!found) return;
  if (!found->property.isWritable())
    return refuse(call, QDBusError::PropertyReadOnly,
                  QStringLiteral("%1 can only be read.").arg(name));
  const QVariant wanted = converted(value.variant(), found->property.metaType());
  if (!wanted.isValid())
    return refuse(call, QDBusError::InvalidArgs,
                  QStringLiteral("That is no value for %1.").arg(name));
  found->property.write(found->adaptor, wanted);
}

}  // namespace tromelo
