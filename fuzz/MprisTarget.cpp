#include <QDBusAbstractAdaptor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaMethod>

#include "FuzzedModel.h"
#include "Targets.h"
#include "mpris/MprisProperties.h"
#include "mpris/MprisService.h"
#include "mpris/MprisValues.h"
#include "support/WaitFor.h"

namespace tromelo::fuzz {

namespace {

bool isObjectPath(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("^/$|^(/[A-Za-z0-9_]+)+$"));
  return pattern.match(text).hasMatch();
}

/// What the bus hands over for a parameter of this type: it lets nothing else through.
QVariant argumentOf(QMetaType type, const QJsonValue& value) {
  const QString text = value.toVariant().toString();
  const QDBusObjectPath path = isObjectPath(text) ? QDBusObjectPath(text) : noTrack();
  if (type == QMetaType::fromType<QDBusMessage>())
    return QVariant::fromValue(QDBusMessage::createMethodCall("org.x", "/", "org.x", "Call"));
  if (type == QMetaType::fromType<QDBusObjectPath>()) return QVariant::fromValue(path);
  if (type == QMetaType::fromType<QList<QDBusObjectPath>>()) {
    QList<QDBusObjectPath> paths;
    for (const QVariant& one : value.toArray().toVariantList())
      if (isObjectPath(one.toString())) paths << QDBusObjectPath(one.toString());
    return QVariant::fromValue(paths);
  }
  if (type == QMetaType::fromType<QDBusVariant>()) {
    static const QHash<QString, double> kNoNumbers{
        {"nan", qQNaN()}, {"inf", qInf()}, {"-inf", -qInf()}};
    const QVariant plain =
        kNoNumbers.contains(text) ? QVariant(kNoNumbers[text]) : value.toVariant();
    return QVariant::fromValue(QDBusVariant(plain.isValid() ? plain : QVariant(text)));
  }
  QVariant plain = type == QMetaType::fromType<qlonglong>() ? QVariant(value.toInteger(INT64_MIN))
                                                            : value.toVariant();
  return plain.convert(type) ? plain : QVariant(type);
}

void call(QObject& adaptor, const QMetaMethod& method, const QJsonArray& values) {
  QVariant result(method.returnMetaType().id() == QMetaType::Void ? QMetaType()
                                                                  : method.returnMetaType());
  std::vector<QVariant> arguments;
  for (int i = 0; i < method.parameterCount(); ++i)
    arguments.push_back(argumentOf(method.parameterMetaType(i), values.at(i)));
  std::vector<void*> pointers{result.data()};
  for (QVariant& argument : arguments) pointers.push_back(argument.data());
  QMetaObject::metacall(&adaptor, QMetaObject::InvokeMetaMethod, method.methodIndex(),
                        pointers.data());
}

/// A method's name, and its arguments as JSON.
void call(MprisService& service, Input line) {
  const QByteArray name(line.word());
  const auto values = QJsonDocument::fromJson('[' + QByteArray(line.rest()) + ']').array();
  for (QObject* adaptor : service.findChildren<QDBusAbstractAdaptor*>()) {
    const QMetaObject* type = adaptor->metaObject();
    for (int i = type->methodOffset(); i < type->methodCount(); ++i)
      if (type->method(i).name() == name && type->method(i).methodType() == QMetaMethod::Slot)
        return call(*adaptor, type->method(i), values);
  }
}

}  // namespace

/// A line for each thing that the engine reports, or that a client on the bus asks for.
void mpris(Input input) {
  static const QDBusConnection nowhere(QStringLiteral("nowhere"));
  FuzzedModel fuzzed;
  MprisService service(nowhere, fuzzed.model(),
                       {.raise = [] {}, .quit = [] {}, .stop = [] {}, .toggleFullscreen = [] {}});
  while (!input.isEmpty()) {
    const Input line(input.line());
    if (!fuzzed.report(line)) call(service, line);
    testing::settle();
  }
  for (const auto* adaptor : service.findChildren<QDBusAbstractAdaptor*>())
    MprisProperties::of(*adaptor);
  for (const QueueItem& item : fuzzed.model().queue()) {
    trackMetadata(fuzzed.model(), item);
    check(isObjectPath(trackId(item.entry).path()) || item.entry < 0);
  }
  fuzzed.checkAll();
}

}  // namespace tromelo::fuzz
