#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>

#include "films/Film.h"
#include "platform/PictureWay.h"
#include "platform/ScreenHeadroom.h"
#include "playback/AbLoop.h"
#include "playback/Chapter.h"
#include "playback/DynamicRange.h"
#include "playback/FileFacts.h"
#include "playback/MediaTrack.h"
#include "playback/Published.h"
#include "playback/QueueItem.h"

namespace tromelo {

/// Whether there is something to play. Without a file it is `unknown`.
enum class Buffering { unknown, loading, buffering, ready, unavailable };

/// What plays, and how: everything that views and others may read. Texts that aren't known are "—".
/// Main thread only.
class PlaybackState : public QObject {
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
  Q_PROPERTY(tromelo::AbLoop abLoop READ abLoop NOTIFY abLoopChanged)
  Q_PROPERTY(bool isRepeatingAll READ isRepeatingAll NOTIFY isRepeatingAllChanged)
  Q_PROPERTY(bool isShuffled READ isShuffled NOTIFY isShuffledChanged)
  Q_PROPERTY(QString status READ status NOTIFY statusChanged)
  Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
  Q_PROPERTY(QString videoSize READ videoSize NOTIFY videoSizeChanged)
  Q_PROPERTY(QString frameRate READ frameRate NOTIFY frameRateChanged)
  Q_PROPERTY(QString codec READ codec NOTIFY codecChanged)
  Q_PROPERTY(QString decoder READ decoder NOTIFY decoderChanged)
  Q_PROPERTY(QString container READ container NOTIFY containerChanged)
  Q_PROPERTY(QString buffering READ buffering NOTIFY bufferingChanged)
  Q_PROPERTY(bool hasVideo READ hasVideo NOTIFY codecChanged)
  // The lines of the info panel, one in each list; a line without a label divides.
  Q_PROPERTY(QStringList infoNames READ infoNames CONSTANT)
  Q_PROPERTY(QStringList infoLabels READ infoLabels CONSTANT)
  Q_PROPERTY(QStringList infoValues READ infoValues NOTIFY infoChanged)
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
  Q_PROPERTY(QList<tromelo::FilmBookmark> bookmarks READ bookmarks NOTIFY bookmarksChanged)
  Q_PROPERTY(bool hasPlaces READ hasPlaces NOTIFY hasPlacesChanged)
  Q_PROPERTY(QList<tromelo::QueueItem> queue READ queue NOTIFY queueChanged)
  Q_PROPERTY(bool hasNext READ hasNext NOTIFY queueChanged)
  Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY queueChanged)
  Q_PROPERTY(bool isScrubbing READ isScrubbing NOTIFY isScrubbingChanged)
  Q_PROPERTY(double scrubPosition READ scrubPosition NOTIFY scrubPositionChanged)
  Q_PROPERTY(QList<QUrl> recents READ recents NOTIFY recentsChanged)
  Q_PROPERTY(bool hasNoRecents READ hasNoRecents NOTIFY hasNoRecentsChanged)
  Q_PROPERTY(bool isPrivate READ isPrivate NOTIFY isPrivateChanged)
  Q_PROPERTY(QUrl lastURL READ lastURL NOTIFY lastURLChanged)

 public:
  /// Stands for a text that isn't known.
  static inline const QString kUnknown = QStringLiteral("—");

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
  AbLoop abLoop() const { return abLoop_; }                // of the current file
  bool isLooping() const { return isLooping_; }  // the current file starts over at its end
  bool isRepeatingAll() const { return isRepeatingAll_; }  // the queue starts over at its end
  bool isShuffled() const { return isShuffled_; }          // chance says what comes next
  QString status() const { return status_; }               // one line on the state
  QString errorMessage() const { return errorMessage_; }   // the last one, or empty
  QString videoSize() const { return videoSize_; }
  QString frameRate() const { return frameRate_; }
  QString codec() const { return codec_; }  // of the video
  QString decoder() const { return decoder_; }
  QString container() const { return container_; }
  QString buffering() const;
  const FileFacts& facts() const { return facts_; }
  /// The video of the current file, or of the last one, has been described.
  bool hasVideo() const { return facts_.videoFormat.has_value(); }
  static QStringList infoNames();
  static QStringList infoLabels();
  QStringList infoValues() const;
  qint64 decoderFrameDrops() const { return decoderFrameDrops_; }
  qint64 outputFrameDrops() const { return outputFrameDrops_; }
  DynamicRange dynamicRange() const { return dynamicRange_; }
  QString output() const { return output_; }    // what the engine sends to the screen
  QString display() const { return display_; }  // what the screen can show
  /// An HDR film is on the screen as one.
  bool isShownAsHdr() const { return dynamicRange().isHigh() && hdrNote().isEmpty(); }
  QString changes() const { return changes_; }  // of how the film was made; empty: none
  QString motion() const { return motion_; }    // how it is smoothed, or empty
  /// Why an HDR film isn't shown as that, or empty.
  QString hdrNote() const;
  QList<MediaTrack> audioTracks() const { return audioTracks_; }
  QList<MediaTrack> subtitleTracks() const { return subtitleTracks_; }
  QList<Chapter> chapters() const { return chapters_; }
  std::optional<int> currentChapter() const { return currentChapter_; }  // in chapters
  FilmBookmarks bookmarks() const { return bookmarks_; }                 // of the current file
  /// Chapters or bookmarks.
  bool hasPlaces() const { return !chapters().isEmpty() || !bookmarks().isEmpty(); }
  QList<QueueItem> queue() const { return queue_; }
  bool isScrubbing() const { return isScrubbing_; }        // the position is being dragged
  double scrubPosition() const { return scrubPosition_; }  // seconds; elapsed unless dragged
  QList<QUrl> recents() const { return recents_; }         // newest first
  bool hasNoRecents() const { return hasNoRecents_; }      // false until that is known
  bool isPrivate() const { return isPrivate_; }            // nothing is written of what is played
  QUrl lastURL() const {
    return lastURL_;
  }  // the file that the engine told of last; empty when there is none

  bool hasNext() const { return tromelo::hasNext(queue_); }
  bool hasPrevious() const { return tromelo::hasPrevious(queue_); }

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
  void abLoopChanged();
  void isRepeatingAllChanged();
  void isShuffledChanged();
  void statusChanged();
  void errorMessageChanged();
  void videoSizeChanged();
  void frameRateChanged();
  void codecChanged();
  void decoderChanged();
  void containerChanged();
  void bufferingChanged();
  void infoChanged();
  void decoderFrameDropsChanged();
  void outputFrameDropsChanged();
  void dynamicRangeChanged();
  void outputChanged();
  void displayChanged();
  void audioTracksChanged();
  void subtitleTracksChanged();
  void chaptersChanged();
  void currentChapterChanged();
  void bookmarksChanged();
  void hasPlacesChanged();
  void queueChanged();
  void isScrubbingChanged();
  void scrubPositionChanged();
  void recentsChanged();
  void hasNoRecentsChanged();
  void isPrivateChanged();
  void lastURLChanged();

 protected:
  explicit PlaybackState(QObject* parent);

  /// Makes the texts of the facts.
  void publishFacts();
  /// No file plays any more, and another starts: nothing is known of it.
  void forgetFacts();

  template <typename T>
  using Published = PublishedField<PlaybackState, T>;

  Published<QString> title_{this, &PlaybackState::titleChanged, tr("No video selected")};
  Published<bool> isLoaded_{this, &PlaybackState::isLoadedChanged};
  Published<bool> isPaused_{this, &PlaybackState::isPausedChanged, true};
  Published<bool> isFullscreen_{this, &PlaybackState::isFullscreenChanged};
  Published<double> elapsed_{this, &PlaybackState::elapsedChanged};
  Published<double> duration_{this, &PlaybackState::durationChanged};
  Published<double> volume_{this, &PlaybackState::volumeChanged, 100.0};
  Published<bool> isMuted_{this, &PlaybackState::isMutedChanged};
  Published<double> speed_{this, &PlaybackState::speedChanged, 1.0};
  Published<double> subtitleDelay_{this, &PlaybackState::subtitleDelayChanged};
  Published<double> audioDelay_{this, &PlaybackState::audioDelayChanged};
  Published<bool> isLooping_{this, &PlaybackState::isLoopingChanged};
  Published<AbLoop> abLoop_{this, &PlaybackState::abLoopChanged};
  Published<bool> isRepeatingAll_{this, &PlaybackState::isRepeatingAllChanged};
  Published<bool> isShuffled_{this, &PlaybackState::isShuffledChanged};
  Published<QString> status_{this, &PlaybackState::statusChanged,
                             QStringLiteral("Open a video to begin")};
  Published<QString> errorMessage_{this, &PlaybackState::errorMessageChanged};
  Published<QString> videoSize_{this, &PlaybackState::videoSizeChanged, kUnknown};
  Published<QString> frameRate_{this, &PlaybackState::frameRateChanged, kUnknown};
  Published<QString> codec_{this, &PlaybackState::codecChanged, kUnknown};
  Published<QString> decoder_{this, &PlaybackState::decoderChanged, kUnknown};
  Published<QString> container_{this, &PlaybackState::containerChanged, kUnknown};
  Published<Buffering> buffering_{this, &PlaybackState::bufferingChanged};
  Published<qint64> decoderFrameDrops_{this, &PlaybackState::decoderFrameDropsChanged};
  Published<qint64> outputFrameDrops_{this, &PlaybackState::outputFrameDropsChanged};
  Published<DynamicRange> dynamicRange_{this, &PlaybackState::dynamicRangeChanged};
  Published<QString> output_{this, &PlaybackState::outputChanged, kUnknown};
  Published<QString> changes_{this, &PlaybackState::infoChanged};
  Published<QString> motion_{this, &PlaybackState::infoChanged};
  Published<QString> display_{this, &PlaybackState::displayChanged, kUnknown};
  Published<QList<MediaTrack>> audioTracks_{this, &PlaybackState::audioTracksChanged};
  Published<QList<MediaTrack>> subtitleTracks_{this, &PlaybackState::subtitleTracksChanged};
  Published<QList<Chapter>> chapters_{this, &PlaybackState::chaptersChanged};
  Published<std::optional<int>> currentChapter_{this, &PlaybackState::currentChapterChanged};
  Published<FilmBookmarks> bookmarks_{this, &PlaybackState::bookmarksChanged};
  Published<QList<QueueItem>> queue_{this, &PlaybackState::queueChanged};
  Published<bool> isScrubbing_{this, &PlaybackState::isScrubbingChanged};
  Published<double> scrubPosition_{this, &PlaybackState::scrubPositionChanged};
  Published<QList<QUrl>> recents_{this, &PlaybackState::recentsChanged};
  Published<bool> hasNoRecents_{this, &PlaybackState::hasNoRecentsChanged, true};
  Published<bool> isPrivate_{this, &PlaybackState::isPrivateChanged};
  Published<QUrl> lastURL_{this, &PlaybackState::lastURLChanged};

  PictureWay pictureWay_;
  ScreenHeadroom screen_;
  FileFacts facts_;

 private:
  int currentChapterOrNone() const { return currentChapter_.get().value_or(-1); }
};

}  // namespace tromelo
