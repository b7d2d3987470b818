#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>

namespace tromelo {

class PlaybackModel;
struct MprisShell;

/// org.mpris.MediaPlayer2 on the bus: the program as a whole. Both references outlive it.
class MprisRoot : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
  Q_PROPERTY(bool CanQuit READ yes)
  Q_PROPERTY(bool CanRaise READ yes)
  Q_PROPERTY(bool CanSetFullscreen READ canSetFullscreen)
  Q_PROPERTY(bool Fullscreen READ isFullscreen WRITE setFullscreen)
  Q_PROPERTY(bool HasTrackList READ yes)
  Q_PROPERTY(QString Identity READ identity)
  Q_PROPERTY(QString DesktopEntry READ desktopEntry)
  Q_PROPERTY(QStringList SupportedUriSchemes READ supportedUriSchemes)
  Q_PROPERTY(QStringList SupportedMimeTypes READ supportedMimeTypes)

 public:
  MprisRoot(PlaybackModel& playback, const MprisShell& shell, QObject* exported);

  bool yes() const { return true; }
  bool canSetFullscreen() const;
  bool isFullscreen() const;
  void setFullscreen(bool fullscreen);
  QString identity() const;
  QString desktopEntry() const;
  QStringList supportedUriSchemes() const;
  QStringList supportedMimeTypes() const;

 public Q_SLOTS:
  void Raise();
  void Quit();

 private:
  PlaybackModel& playback_;
  const MprisShell& shell_;
};

}  // namespace tromelo
