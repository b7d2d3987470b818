#include "mpris/MprisService.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMetaClassInfo>
#include <QMetaProperty>

#include "mpris/MprisPlayer.h"
#include "mpris/MprisRoot.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

QString objectPath() { return QStringLiteral("/org/mpris/MediaPlayer2"); }
QString wantedName() { return QStringLiteral("org.mpris.MediaPlayer2.tromelo"); }
QString nameOfInstance() {
  return wantedName() + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid());
}

QDBusMessage callBus(const char* method, const QString& name) {
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QString::fromLatin1(method));
  call << name;
  return call;
}

/// Everything that clients are told of by signal. The position isn't: it goes by itself.
QVariantMap properties(const QDBusAbstractAdaptor& adaptor) {
  const QMetaObject* type = adaptor.metaObject();
  QVariantMap values;
  for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
    const QMetaProperty property = type->property(i);
    if (qstrcmp(property.name(), "Position") == 0) continue;
    values.insert(QString::fromLatin1(property.name()), property.read(&adaptor));
  }
  return values;
}

QString interfaceOf(const QDBusAbstractAdaptor& adaptor) {
  const QMetaObject* type = adaptor.metaObject();
  return QString::fromLatin1(type->classInfo(type->indexOfClassInfo("D-Bus Interface")).value());
}

}  // namespace

MprisService::MprisService(const QDBusConnection& bus, PlaybackModel& playback, MprisShell shell)
    : bus_(bus),
      playback_(playback),
      shell_(std::move(shell)),
      root_(new MprisRoot(playback_, shell_, this)),
      player_(new MprisPlayer(bus_, playback_, shell_, this)),
      rootTold_(properties(*root_)),
      playerTold_(properties(*player_)) {
  // The object comes first: whoever finds the name may call at once.
  if (!bus_.registerObject(objectPath(), this, QDBusConnection::ExportAdaptors)) return;
  follow();
  requestName(wantedName());
}

MprisService::~MprisService() {
  bus_.unregisterObject(objectPath());
  for (const QString& name : {wantedName(), nameOfInstance()})
    bus_.send(callBus("ReleaseName", name));
}

void MprisService::requestName(const QString& name) {
  constexpr uint kDoNotQueue = 4;
  constexpr uint kTaken = 3;
  QDBusMessage call = callBus("RequestName", name);
  call << kDoNotQueue;
  // Not registerService(), which would wait for the bus.
  auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, name] {
    const QDBusPendingReply<uint> reply = *watcher;
    watcher->deleteLater();
    if (!reply.isError() && reply.value() == kTaken && name == wantedName())
      requestName(nameOfInstance());
  });
}

void MprisService::follow() {
  for (const auto changed : {&PlaybackState::titleChanged, &PlaybackState::isLoadedChanged,
                             &PlaybackState::isPausedChanged, &PlaybackState::isFullscreenChanged,
                             &PlaybackState::durationChanged, &PlaybackState::volumeChanged,
                             &PlaybackState::speedChanged, &PlaybackState::isLoopingChanged,
                             &PlaybackState::queueChanged, &PlaybackState::lastURLChanged})
    connect(&playback_, changed, this, &MprisService::schedule);
  connect(&playback_, &PlaybackModel::seeked, player_, &MprisPlayer::announceSeek);
}

void MprisService::schedule() {
  if (scheduled_) return;
  scheduled_ = true;
  const auto announceBoth = [this] {
    scheduled_ = false;
    announce(*root_, rootTold_);
    announce(*player_, playerTold_);
  };
  QMetaObject::invokeMethod(this, announceBoth, Qt::QueuedConnection);
}

void MprisService::announce(const QDBusAbstractAdaptor& adaptor, QVariantMap& told) {
  QVariantMap changed = properties(adaptor);
  changed.removeIf([&told](const QVariantMap::iterator& entry) {
    return told.value(entry.key()) == entry.value();
  });
  if (changed.isEmpty()) return;
  told.insert(changed);
  QDBusMessage signal =
      QDBusMessage::createSignal(objectPath(), QStringLiteral("org.freedesktop.DBus.Properties"),
                                 QStringLiteral("PropertiesChanged"));
  signal << interfaceOf(adaptor) << changed << QStringList();
  bus_.send(signal);
}

}  // namespace tromelo
