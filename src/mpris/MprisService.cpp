#include "mpris/MprisService.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "mpris/MprisPlayer.h"
#include "mpris/MprisProperties.h"
#include "mpris/MprisRoot.h"
#include "mpris/MprisTrackList.h"
#include "mpris/MprisValues.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

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
QVariantMap told(const QDBusAbstractAdaptor& adaptor) {
  QVariantMap values = MprisProperties::of(adaptor);
  values.remove(QStringLiteral("Position"));
  return values;
}

}  // namespace

MprisService::MprisService(const QDBusConnection& bus, PlaybackModel& playback, MprisShell shell)
    : bus_(bus),
      playback_(playback),
      shell_(std::move(shell)),
      root_(new MprisRoot(playback_, shell_, this)),
      player_(new MprisPlayer(bus_, playback_, shell_, this)),
      tracks_(new MprisTrackList(bus_, playback_, this)),
      rootTold_(told(*root_)),
      playerTold_(told(*player_)) {
  new MprisProperties(bus_, this);
  // The object comes first: whoever finds the name may call at once.
  if (!bus_.registerObject(mprisObjectPath(), this, QDBusConnection::ExportAdaptors)) return;
  follow();
  requestName(wantedName());
}

MprisService::~MprisService() {
  bus_.unregisterObject(mprisObjectPath());
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
  for (const auto changed :
       {&PlaybackState::titleChanged, &PlaybackState::isLoadedChanged,
        &PlaybackState::isPausedChanged, &PlaybackState::isFullscreenChanged,
        &PlaybackState::durationChanged, &PlaybackState::volumeChanged,
        &PlaybackState::speedChanged, &PlaybackState::isLoopingChanged,
        &PlaybackState::isRepeatingAllChanged, &PlaybackState::isShuffledChanged,
        &PlaybackState::queueChanged, &PlaybackState::lastURLChanged})
    connect(&playback_, changed, this, &MprisService::schedule);
  connect(&playback_, &PlaybackModel::seeked, player_, &MprisPlayer::announceSeek);
}

void MprisService::schedule() {
  if (scheduled_) return;
  scheduled_ = true;
  const auto announceAll = [this] {
    scheduled_ = false;
    announce(*root_, rootTold_);
    announce(*player_, playerTold_);
    tracks_->announce();
  };
  QMetaObject::invokeMethod(this, announceAll, Qt::QueuedConnection);
}

void MprisService::announce(const QDBusAbstractAdaptor& adaptor, QVariantMap& last) {
  QVariantMap changed = told(adaptor);
  changed.removeIf([&last](const QVariantMap::iterator& entry) {
    return last.value(entry.key()) == entry.value();
  });
  if (changed.isEmpty()) return;
  last.insert(changed);
  bus_.send(MprisProperties::changed(adaptor, changed));
}

}  // namespace tromelo
