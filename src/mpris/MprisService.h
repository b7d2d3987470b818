#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <functional>

class QDBusAbstractAdaptor;

namespace tromelo {

class MprisPlayer;
class MprisRoot;
class MprisTrackList;
class PlaybackModel;

/// What the desktop's media controls ask of the program around the model. All are set.
struct MprisShell {
  std::function<void()> raise;  // shows the program in front of others
  std::function<void()> quit;
  std::function<void()> stop;  // closes what plays
  std::function<void()> toggleFullscreen;
};

/// The desktop's media controls: shows what plays on the bus as org.mpris.MediaPlayer2.tromelo and
/// does what its clients ask. Waits for nothing; without a name on the bus nobody asks. `playback`
/// outlives it. Main thread only.
class MprisService : public QObject {
 public:
  MprisService(const QDBusConnection& bus, PlaybackModel& playback, MprisShell shell);
  ~MprisService() override;

 private:
  void requestName(const QString& name);
  void follow();
  void schedule();
  void announce(const QDBusAbstractAdaptor& adaptor, QVariantMap& last);

  QDBusConnection bus_;
  PlaybackModel& playback_;
  const MprisShell shell_;
  MprisRoot* root_;      // owned as children
  MprisPlayer* player_;  //
  MprisTrackList* tracks_;
  QVariantMap rootTold_;
  QVariantMap playerTold_;
  bool scheduled_ = false;
};

}  // namespace tromelo
