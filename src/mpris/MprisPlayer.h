#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariantMap>

namespace tromelo {

class PlaybackModel;
struct MprisShell;

/// org.mpris.MediaPlayer2.Player on the bus: what plays. It does what the views do, through the
/// same operations. The references outlive it.
class MprisPlayer : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
  Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
  Q_PROPERTY(QString LoopStatus READ loopStatus WRITE setLoopStatus)
  Q_PROPERTY(double Rate READ rate WRITE setRate)
  Q_PROPERTY(double MinimumRate READ minimumRate)
  Q_PROPERTY(double MaximumRate READ maximumRate)
  Q_PROPERTY(bool Shuffle READ shuffle WRITE setShuffle)
  Q_PROPERTY(QVariantMap Metadata READ metadata)
  Q_PROPERTY(double Volume READ volume WRITE setVolume)
  Q_PROPERTY(qlonglong Position READ position)
  Q_PROPERTY(bool CanGoNext READ canGoNext)
  Q_PROPERTY(bool CanGoPrevious READ canGoPrevious)
  Q_PROPERTY(bool CanPlay READ canPlay)
  Q_PROPERTY(bool CanPause READ canPause)
  Q_PROPERTY(bool CanSeek READ canSeek)
  Q_PROPERTY(bool CanControl READ canControl)

 public:
  MprisPlayer(const QDBusConnection& bus, PlaybackModel& playback, const MprisShell& shell,
              QObject* exported);

  QString playbackStatus() const;
  QString loopStatus() const;
  void setLoopStatus(const QString& status);
  double rate() const;
  void setRate(double rate);
  double minimumRate() const;
  double maximumRate() const;
  bool shuffle() const;
  void setShuffle(bool shuffle);
  QVariantMap metadata() const;
  double volume() const;  // 0 to 1
  void setVolume(double volume);
  qlonglong position() const;  // microseconds
  bool canGoNext() const;
  bool canGoPrevious() const;
  bool canPlay() const;
  bool canPause() const;
  bool canSeek() const;
  bool canControl() const { return true; }

  /// Tells the desktop that playback goes on from here, seconds.
  void announceSeek(double seconds);

 public Q_SLOTS:
  void Next();
  void Previous();
  void Pause();
  void PlayPause();
  void Stop();
  void Play();
  void Seek(qlonglong Offset);
  void SetPosition(const QDBusObjectPath& TrackId, qlonglong Position);
  void OpenUri(const QString& Uri, const QDBusMessage& message);

 Q_SIGNALS:
  void Seeked(qlonglong Position);

 private:
  QDBusConnection bus_;
  PlaybackModel& playback_;
  const MprisShell& shell_;
};

}  // namespace tromelo
