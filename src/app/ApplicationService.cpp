#include "app/ApplicationService.h"

#include <QDBusInterface>
#include <QDBusMessage>

#include "platform/SessionBus.h"

namespace tromelo {

namespace {

constexpr int kHandOverMilliseconds = 5000;

QString serviceName() { return QStringLiteral("org.tromelo.Tromelo"); }
QString objectPath() { return QStringLiteral("/org/tromelo/Tromelo"); }
QString startKey() { return QStringLiteral("tromelo-start"); }
QString tokenKey() { return QStringLiteral("activation-token"); }
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

/// Qt takes it from there when a window of ours wants to come forward.
void takeActivation(const QVariantMap& platformData) {
  const QByteArray token = platformData.value(tokenKey()).toString().toUtf8();
  if (!token.isEmpty()) qputenv(kTokenVariable, token);
}

bool handOver(QDBusConnection& bus, const ApplicationService::Request& request) {
  QDBusMessage call = QDBusMessage::createMethodCall(
      serviceName(), objectPath(), QStringLiteral("org.freedesktop.Application"),
      request.file ? QStringLiteral("Open") : QStringLiteral("Activate"));
  QVariantMap platformData;
  if (const QString token = qEnvironmentVariable(kTokenVariable); !token.isEmpty())
    platformData.insert(tokenKey(), token);
  if (request.start) platformData.insert(startKey(), *request.start);
  if (request.file) call << QStringList{request.file->toString(QUrl::FullyEncoded)};
  call << platformData;
  return bus.call(call, QDBus::Block, kHandOverMilliseconds).type() == QDBusMessage::ReplyMessage;
}

}  // namespace

ApplicationService::Role ApplicationService::start(const Request& request) {
  auto bus = sessionBus();
  if (!bus) return Role::alone;
  // The object comes first: whoever finds the name may call at once.
  if (!bus->registerObject(objectPath(), this, QDBusConnection::ExportAllSlots)) return Role::alone;
  if (bus->registerService(serviceName())) return Role::first;
  bus->unregisterObject(objectPath());
  return handOver(*bus, request) ? Role::handedOver : Role::alone;
}

void ApplicationService::stop() {
  auto bus = sessionBus();
  if (!bus) return;
  bus->unregisterService(serviceName());
  bus->unregisterObject(objectPath());
}

void ApplicationService::Activate(const QVariantMap& platformData) {
  takeActivation(platformData);
  Q_EMIT activated();
}

void ApplicationService::Open(const QStringList& uris, const QVariantMap& platformData) {
  QList<QUrl> files;
  for (const QString& uri : uris) {
    const QUrl url(uri, QUrl::StrictMode);
    if (url.isLocalFile()) files.append(url);
  }
  takeActivation(platformData);
  bool known = false;
  const double start = platformData.value(startKey()).toDouble(&known);
  Q_EMIT filesOpened(files, known ? std::optional(start) : std::nullopt);
}

void ApplicationService::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {
  // The desktop file offers no actions.
}

}  // namespace tromelo
