#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "engine/MpvEngine.h"
#include "platform/ScreenHeadroom.h"
#include "playback/Chapter.h"
#include "playback/DynamicRange.h"
#include "playback/HardwareDecoding.h"
#include "playback/MediaTrack.h"
#include "playback/PlayerPresenting.h"
#include "playback/Published.h"
#include "playback/QueueItem.h"
#include "playback/QueueOutlook.h"
#include "playback/SignalInputs.h"
#include "settings/PlayerSettings.h"

namespace tromelo {

class Clock;
class FileChooser;
struct PropertyMapping;

/// What plays, how, and every way to change it: the one object between the engine and the views.
/// Control operations return at once; what they change shows when the engine reports it back. Texts
/// that aren't known are "—". Main thread only.
class PlaybackModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString title READ title NOTIFY titleChanged)
  Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY isLoadedChanged)
  Q_PROPERTY(bool isPaused READ isPaused NOTIFY isPausedChanged)
  Q_PROPERTY(bool isFullscreen READ isFullscreen NOTIFY isFullscreenChanged)
  Q_PROPERTY(double elapsed READ elapsed NOTIFY elapsedChanged)
  Q_PROPERTY(double duration READ duration NOTIFY durationChanged)
  Q_PROPERTY(double volume READ volume NOTIFY volumeChanged)
  Q_PROPERTY(bool isMuted READ isMuted NOTIFY isMutedChanged)
  Q_PROPERTY(double speed READ speed NOTIFY speedChanged)
  Q_PROPERTY(double subtitleDelay READ subtitleDelay NOTIFY subtitleDelayChanged)
  Q_PROPERTY(double audioDelay READ audioDelay NOTIFY audioDelayChanged)
  Q_PROPERTY(bool isLooping READ isLooping NOTIFY isLoopingChanged)
  Q_PROPERTY(QString status READ status NOTIFY statusChanged)
  Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
  Q_PROPERTY(QString videoSize READ videoSize NOTIFY videoSizeChanged)
  Q_PROPERTY(QString frameRate READ frameRate NOTIFY frameRateChanged)
  Q_PROPERTY(QString codec READ codec NOTIFY codecChanged)
  Q_PROPERTY(QString decoder READ decoder NOTIFY decoderChanged)
  Q_PROPERTY(QString container READ container NOTIFY containerChanged)
  Q_PROPERTY(QString buffering READ buffering NOTIFY bufferingChanged)
  Q_PROPERTY(qint64 decoderFrameDrops READ decoderFrameDrops NOTIFY decoderFrameDropsChanged)
  Q_PROPERTY(qint64 outputFrameDrops READ outputFrameDrops NOTIFY outputFrameDropsChanged)
  Q_PROPERTY(tromelo::DynamicRange dynamicRange READ dynamicRange NOTIFY dynamicRangeChanged)
  Q_PROPERTY(QString output READ output NOTIFY outputChanged)
  Q_PROPERTY(QString display READ display NOTIFY displayChanged)
  Q_PROPERTY(QList<tromelo::MediaTrack> audioTracks READ audioTracks NOTIFY audioTracksChanged)
  Q_PROPERTY(
      QList<tromelo::MediaTrack> subtitleTracks READ subtitleTracks NOTIFY subtitleTracksChanged)
  Q_PROPERTY(QList<tromelo::Chapter> chapters READ chapters NOTIFY chaptersChanged)
  Q_PROPERTY(int currentChapter READ currentChapterOrNone NOTIFY currentChapterChanged)
  Q_PROPERTY(QList<tromelo::QueueItem> queue READ queue NOTIFY queueChanged)
  Q_PROPERTY(bool hasNext READ hasNext NOTIFY queueChanged)
  Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY queueChanged)
  Q_PROPERTY(bool isScrubbing READ isScrubbing NOTIFY isScrubbingChanged)
  Q_PROPERTY(double scrubPosition READ scrubPosition NOTIFY scrubPositionChanged)
  Q_PROPERTY(QList<QUrl> recents READ recents NOTIFY recentsChanged)
  Q_PROPERTY(QUrl lastURL READ lastURL NOTIFY lastURLChanged)

 public:
  /// Stands for a text that isn't known.
  static inline const QString kUnknown = QStringLiteral("—");

  /// What the model works with; the references outlive it.
  struct Parts {
    const MpvClientApi& api;
    Clock& clock;
    FileChooser& files;
    QString diagnosticsDirectory;  // is made if it is missing
    /// Makes the player window, the first time that it is needed.
    std::function<std::unique_ptr<PlayerPresenting>(PlaybackModel&)> makePlayer;
  };

  /// Starts the engine; a failure shows in status and errorMessage.
  explicit PlaybackModel(Parts parts, QObject* parent = nullptr);
  ~PlaybackModel() override;

  QString title() const { return title_; }
  bool isLoaded() const { return isLoaded_; }
  bool isPaused() const { return isPaused_; }
  bool isFullscreen() const { return isFullscreen_; }
  double elapsed() const { return elapsed_; }    // seconds
  double duration() const { return duration_; }  // seconds; 0 when unknown
  double volume() const { return volume_; }      // 0 to 100
  bool isMuted() const { return isMuted_; }
  double speed() const { return speed_; }                  // 1 is the file's own
  double subtitleDelay() const { return subtitleDelay_; }  // seconds
  double audioDelay() const { return audioDelay_; }        // seconds
  bool isLooping() const { return isLooping_; }           // the current file starts over at its end
  QString status() const { return status_; }              // one line on the state
  QString errorMessage() const { return errorMessage_; }  // the last one, or empty
  QString videoSize() const { return videoSize_; }
  QString frameRate() const { return frameRate_; }
  QString codec() const { return codec_; }  // of the video
  QString decoder() const { return decoder_; }
  QString container() const { return container_; }
  QString buffering() const { return buffering_; }
  qint64 decoderFrameDrops() const { return decoderFrameDrops_; }
  qint64 outputFrameDrops() const { return outputFrameDrops_; }
  DynamicRange dynamicRange() const { return dynamicRange_; }
  QString output() const { return output_; }    // what the engine sends to the screen
  QString display() const { return display_; }  // what the screen can show
  QList<MediaTrack> audioTracks() const { return audioTracks_; }
  QList<MediaTrack> subtitleTracks() const { return subtitleTracks_; }
  QList<Chapter> chapters() const { return chapters_; }
  std::optional<int> currentChapter() const { return currentChapter_; }  // in chapters
  QList<QueueItem> queue() const { return queue_; }
  bool isScrubbing() const { return isScrubbing_; }        // the position is being dragged
  double scrubPosition() const { return scrubPosition_; }  // seconds; elapsed unless dragged
  QList<QUrl> recents() const { return recents_; }         // newest first
  QUrl lastURL() const {
    return lastURL_;
  }  // the file that the engine told of last; empty when there is none

  bool hasNext() const { return tromelo::hasNext(queue_); }
  bool hasPrevious() const { return tromelo::hasPrevious(queue_); }

  MpvEngine& engine() { return engine_; }
  PlayerSettings& settings() { return settings_; }
  PlayerPresenting& player();

  /// Percent of the picture's height by which subtitles are lifted above the controls.
  double subtitleLift() const { return subtitleLift_; }
  void setSubtitleLift(double percent) { subtitleLift_ = percent; }

  /// The program is quitting and the engine is being destroyed.
  bool isShuttingDown() const { return isShuttingDown_; }
  void setShuttingDown(bool shuttingDown) { isShuttingDown_ = shuttingDown; }

  /// Plays a file in place of the current one, from `startAt` seconds on.
  void open(const QUrl& url, std::optional<double> startAt = {});
  /// Plays the first and queues the others.
  void open(const QList<QUrl>& urls);
  Q_INVOKABLE void openFiles(const QList<QUrl>& urls) { open(urls); }
  /// Adds files to the end of the queue; plays them where there is nothing else.
  Q_INVOKABLE void enqueue(const QList<QUrl>& urls);

  Q_INVOKABLE void presentOpenPanel();
  Q_INVOKABLE void presentQueuePanel();
  Q_INVOKABLE void presentSubtitleFilePanel();

  Q_INVOKABLE void togglePlayback();
  /// By seconds, back or forth.
  Q_INVOKABLE void seekBy(double seconds);
  /// To exactly this second.
  Q_INVOKABLE void seekTo(double seconds);

  /// Dragging of the position: shown at once, sought coarsely on the way and exactly at the end.
  Q_INVOKABLE void beginScrubbing();
  Q_INVOKABLE void scrubTo(double seconds);
  Q_INVOKABLE void endScrubbing();

  /// 0 to 100, clamped; anything above 0 is heard.
  Q_INVOKABLE void setVolume(double volume);
  /// Moves along the speed ladder and returns the new speed.
  Q_INVOKABLE double stepSpeed(int steps);
  Q_INVOKABLE void toggleLoop();
  /// Seconds, rounded to milliseconds.
  Q_INVOKABLE void setSubtitleDelay(double seconds);
  Q_INVOKABLE void setAudioDelay(double seconds);

  /// The player's window is on this screen; without one nothing changes.
  void updateDisplay(const std::optional<ScreenHeadroom>& screen);

  void reportPlaybackError(const QString& message);

 Q_SIGNALS:
  void titleChanged();
  void isLoadedChanged();
  void isPausedChanged();
  void isFullscreenChanged();
  void elapsedChanged();
  void durationChanged();
  void volumeChanged();
  void isMutedChanged();
  void speedChanged();
  void subtitleDelayChanged();
  void audioDelayChanged();
  void isLoopingChanged();
  void statusChanged();
  void errorMessageChanged();
  void videoSizeChanged();
  void frameRateChanged();
  void codecChanged();
  void decoderChanged();
  void containerChanged();
  void bufferingChanged();
  void decoderFrameDropsChanged();
  void outputFrameDropsChanged();
  void dynamicRangeChanged();
  void outputChanged();
  void displayChanged();
  void audioTracksChanged();
  void subtitleTracksChanged();
  void chaptersChanged();
  void currentChapterChanged();
  void queueChanged();
  void isScrubbingChanged();
  void scrubPositionChanged();
  void recentsChanged();
  void lastURLChanged();

 private:
  friend struct PropertyMapping;

  void startEngine(const QString& diagnosticsDirectory);
  void handleEvent(const MpvEvent& received);
  void handle(const event::Property& change);
  void handle(const event::EndFile& end);
  void handle(const event::CommandFailed& failure);
  void handle(const event::StartFile&);
  void handle(const event::FileLoaded&);
  void handle(const event::PlaybackRestart&);
  void handle(const event::Shutdown&);
  void handle(const event::HardwareDecodeError&);
  void handleFailedFile(const QString& error);
  void resetForNewFile();
  void updateStatus();
  void describeSignal();
  void describeOutput();
  void showVideoReady();
  void publishQueue(const PlayQueue& queue);

  void load(const QUrl& url, const char* mode, std::optional<double> startAt);
  void append(const QList<QUrl>& urls);
  void seek(double seconds, const char* how);
  int currentChapterOrNone() const { return currentChapter_.get().value_or(-1); }

  template <typename T>
  using Published = PublishedField<PlaybackModel, T>;

  Published<QString> title_{this, &PlaybackModel::titleChanged,
                            QStringLiteral("No video selected")};
  Published<bool> isLoaded_{this, &PlaybackModel::isLoadedChanged};
  Published<bool> isPaused_{this, &PlaybackModel::isPausedChanged, true};
  Published<bool> isFullscreen_{this, &PlaybackModel::isFullscreenChanged};
  Published<double> elapsed_{this, &PlaybackModel::elapsedChanged};
  Published<double> duration_{this, &PlaybackModel::durationChanged};
  Published<double> volume_{this, &PlaybackModel::volumeChanged, 100.0};
  Published<bool> isMuted_{this, &PlaybackModel::isMutedChanged};
  Published<double> speed_{this, &PlaybackModel::speedChanged, 1.0};
  Published<double> subtitleDelay_{this, &PlaybackModel::subtitleDelayChanged};
  Published<double> audioDelay_{this, &PlaybackModel::audioDelayChanged};
  Published<bool> isLooping_{this, &PlaybackModel::isLoopingChanged};
  Published<QString> status_{this, &PlaybackModel::statusChanged,
                             QStringLiteral("Open a video to begin")};
  Published<QString> errorMessage_{this, &PlaybackModel::errorMessageChanged};
  Published<QString> videoSize_{this, &PlaybackModel::videoSizeChanged, kUnknown};
  Published<QString> frameRate_{this, &PlaybackModel::frameRateChanged, kUnknown};
  Published<QString> codec_{this, &PlaybackModel::codecChanged, kUnknown};
  Published<QString> decoder_{this, &PlaybackModel::decoderChanged, kUnknown};
  Published<QString> container_{this, &PlaybackModel::containerChanged, kUnknown};
  Published<QString> buffering_{this, &PlaybackModel::bufferingChanged, kUnknown};
  Published<qint64> decoderFrameDrops_{this, &PlaybackModel::decoderFrameDropsChanged};
  Published<qint64> outputFrameDrops_{this, &PlaybackModel::outputFrameDropsChanged};
  Published<DynamicRange> dynamicRange_{this, &PlaybackModel::dynamicRangeChanged};
  Published<QString> output_{this, &PlaybackModel::outputChanged, kUnknown};
  Published<QString> display_{this, &PlaybackModel::displayChanged, kUnknown};
  Published<QList<MediaTrack>> audioTracks_{this, &PlaybackModel::audioTracksChanged};
  Published<QList<MediaTrack>> subtitleTracks_{this, &PlaybackModel::subtitleTracksChanged};
  Published<QList<Chapter>> chapters_{this, &PlaybackModel::chaptersChanged};
  Published<std::optional<int>> currentChapter_{this, &PlaybackModel::currentChapterChanged};
  Published<QList<QueueItem>> queue_{this, &PlaybackModel::queueChanged};
  Published<bool> isScrubbing_{this, &PlaybackModel::isScrubbingChanged};
  Published<double> scrubPosition_{this, &PlaybackModel::scrubPositionChanged};
  Published<QList<QUrl>> recents_{this, &PlaybackModel::recentsChanged};
  Published<QUrl> lastURL_{this, &PlaybackModel::lastURLChanged};

  Clock& clock_;
  FileChooser& files_;
  std::function<std::unique_ptr<PlayerPresenting>(PlaybackModel&)> makePlayer_;
  MpvEngine engine_;
  PlayerSettings settings_;
  SignalInputs inputs_;
  HardwareDecoding hardware_;
  QueueOutlook outlook_;
  std::optional<std::string> currentPath_;  // as the engine reports it
  double subtitleLift_ = 0;
  double lastScrubSeek_ = 0;  // of the clock
  bool isShuttingDown_ = false;
  QMetaObject::Connection settingsObserver_;
  std::unique_ptr<PlayerPresenting> player_;
};

}  // namespace tromelo
