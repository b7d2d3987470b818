#include "mpris/MprisRoot.h"

#include "mpris/MprisService.h"
#include "platform/VideoTypes.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

MprisRoot::MprisRoot(PlaybackModel& playback, const MprisShell& shell, QObject* exported)
    : QDBusAbstractAdaptor(exported), playback_(playback), shell_(shell) {}

bool MprisRoot::canSetFullscreen() const { return playback_.isLoaded(); }

bool MprisRoot::isFullscreen() const { return playback_.isFullscreen(); }

void MprisRoot::setFullscreen(bool fullscreen) {
  if (canSetFullscreen() && fullscreen != isFullscreen()) shell_.toggleFullscreen();
}

QString MprisRoot::identity() const { return QStringLiteral("Tromelo"); }

QString MprisRoot::desktopEntry() const { return QStringLiteral("org.tromelo.Tromelo"); }

QStringList MprisRoot::supportedUriSchemes() const { return {QStringLiteral("file")}; }

QStringList MprisRoot::supportedMimeTypes() const { return openedMimeTypes(); }

void MprisRoot::Raise() { shell_.raise(); }

void MprisRoot::Quit() { shell_.quit(); }

}  // namespace tromelo
