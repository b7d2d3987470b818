#include "app/ApplicationService.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include "platform/FilePath.h"

namespace tromelo {

namespace {

QString serviceName() { return QStringLiteral("org.tromelo.Tromelo"); }
QString objectPath() { return QStringLiteral("/org/tromelo/Tromelo"); }
QString startKey() { return QStringLiteral("tromelo-start"); }
QString privateKey() { return QStringLiteral("tromelo-private"); }
QString tokenKey() { return QStringLiteral("activation-token"); }
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

/// Qt takes it from there when a window of ours wants to come forward.
void takeActivation(const QVariantMap& platformData) {
  const QByteArray token = platformData.value(tokenKey()).toString().toUtf8();
  if (!token.isEmpty()) qputenv(kTokenVariable, token);
}

}  // namespace

bool ApplicationService::handOver(const Request& request, std::chrono::milliseconds patience) {
  const auto file = request.file && !request.isFileMissing() ? request.file : std::nullopt;
  QDBusMessage call = QDBusMessage::createMethodCall(
      serviceName(), objectPath(), QStringLiteral("org.freedesktop.Application"),
      file ? QStringLiteral("Open") : QStringLiteral("Activate"));
  QVariantMap platformData;
  if (const QString token = qEnvironmentVariable(kTokenVariable); !token.isEmpty())
    platformData.insert(tokenKey(), token);
  if (request.start) platformData.insert(startKey(), *request.start);
  if (request.isPrivate) platformData.insert(privateKey(), true);
  if (file) call << QStringList{file->toString(QUrl::FullyEncoded)};
  call << platformData;
  const QDBusMessage answer = bus_->call(call, QDBus::Block, static_cast<int>(patience.count()));
  if (answer.type() == QDBusMessage::ReplyMessage) return true;
  // One that is busy has the request and will do it: it must not be done twice.
  return answer.type() == QDBusMessage::ErrorMessage &&
         QDBusError(answer).type() == QDBusError::NoReply &&
         bus_->interface()->isServiceRegistered(serviceName());
}

ApplicationService::Role ApplicationService::start(const Request& request,
                                                   std::chrono::milliseconds patience) {
  if (!bus_) return Role::alone;
  // The object comes first: whoever finds the name may call at once.
  if (!bus_->registerObject(objectPath(), this, QDBusConnection::ExportAllSlots))
    return Role::alone;
  if (bus_->registerService(serviceName())) return Role::first;
  bus_->unregisterObject(objectPath());
  return handOver(request, patience) ? Role::handedOver : Role::alone;
}

void ApplicationService::stop() {
  if (!bus_) return;
  bus_->unregisterService(serviceName());
  bus_->unregisterObject(objectPath());
}

void ApplicationService::takePlatformData(const QVariantMap& platformData) {
  takeActivation(platformData);
  if (platformData.value(privateKey()).toBool()) Q_EMIT privacyAsked();
}

void ApplicationService::Activate(const QVariantMap& platformData) {
  takePlatformData(platformData);
  Q_EMIT activated();
}

void ApplicationService::Open(const QStringList& uris, const QVariantMap& platformData) {
  QList<QUrl> files;
  for (const QString& uri : uris) files.append(urlFromEncoded(uri.toUtf8()));
  takePlatformData(platformData);
  bool known = false;
  const double start = platformData.value(startKey()).toDouble(&known);
  Q_EMIT filesOpened(files, known ? std::optional(start) : std::nullopt);
}

void ApplicationService::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {
  // The desktop file offers no actions.
}

}  // namespace tromelo
