#pragma once

#include <QList>
#include <QSize>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "adjustments/FilmAdjustments.h"
#include "adjustments/SmoothMotion.h"
#include "engine/MpvEngine.h"
#include "pictures/BarsFinder.h"
#include "platform/Background.h"
#include "platform/FileExistence.h"
#include "platform/FilePath.h"
#include "platform/LocalFiles.h"
#include "platform/ScreenHeadroom.h"
#include "playback/Bookmarks.h"
#include "playback/EngineWatch.h"
#include "playback/FilmKeeper.h"
#include "playback/HardwareDecoding.h"
#include "playback/HardwareTrial.h"
#include "playback/LostSound.h"
#include "playback/PlaybackState.h"
#include "playback/PlayerPresenting.h"
#include "playback/QueueProgress.h"
#include "playback/QueueShuffle.h"
#include "playback/RecentFiles.h"
#include "playback/Screenshots.h"
#include "playback/SoundDevices.h"
#include "playback/SubtitleCoding.h"
#include "playback/SubtitleLines.h"
#include "settings/PlayerSettings.h"

namespace tromelo {

class Clock;
class FilmMemory;
class FileChooser;
class UserDefaults;
struct PropertyMapping;

/// What plays, how, and every way to change it: the one object between the engine and the views.
/// Control operations return at once; what they change shows when the engine reports it back; they
/// do nothing with a number that isn't finite. Main thread only.
class PlaybackModel : public PlaybackState {
  Q_OBJECT
  Q_PROPERTY(tromelo::PlayerSettings* settings READ settingsForViews CONSTANT)
  Q_PROPERTY(tromelo::FilmMemory* films READ films CONSTANT)
  Q_PROPERTY(tromelo::SubtitleCoding* subtitleCoding READ subtitleCoding CONSTANT)
  Q_PROPERTY(tromelo::SubtitleLines* subtitleLines READ subtitleLines CONSTANT)

 public:
  /// What the model works with; the references outlive it.
  struct Parts {
    const MpvClientApi& api;
    Clock& clock;
    FileChooser& files;
    UserDefaults& defaults;        // what is stored
    QString diagnosticsDirectory;  // is made if it is missing
    /// Makes the player window, the first time that it is needed.
    std::function<std::unique_ptr<PlayerPresenting>(PlaybackModel&)> makePlayer;
    /// Says whether a recent file is there; may take its time, on other threads.
    std::function<bool(const std::string& path)> fileExists = tromelo::fileExists;
    /// Of a file that the desktop names by another address; see LocalFiles.
    LocalFiles::PathOf mountedPath = tromelo::mountedPath;
    /// Asked when a picture can't be drawn; may take a moment.
    std::function<bool()> hasVulkanDevice = [] { return true; };
    bool mayDecodeInHardware = true;  // false: nothing here could, so the engine needn't try
    std::string vulkanDevice = {};    // UUID of the one that the engine draws with; empty: any
    std::string picturesFolder = {};  // where pictures of films are kept
    /// Puts a picture, as PNG, onto the desktop's clipboard.
    std::function<void(const QByteArray& png)> copyPicture = [](const QByteArray&) {};
    /// Called when a film has ended, and when its output has gone. Must not wait for anything.
    std::function<void()> tidyUp = [] {};
    /// Of pictures of films, which are looked at for black bars.
    HelperProcess::Program pictureMaker = {};
    SoundDevices::Find findSoundDevices = [] { return MpvValue(); };
    FilmMemory* films = nullptr;             // none: no film is remembered
    HelperProcess::Program lineReader = {};  // reads the lines of subtitles
    QString engineFault = {};  // a sentence: why the engine can't be started; empty: it can
  };

  /// Starts the engine; a failure shows in status and errorMessage.
  explicit PlaybackModel(Parts parts, QObject* parent = nullptr);
  ~PlaybackModel() override;

  MpvEngine& engine() { return engine_; }
  PlayerSettings& settings() { return settings_; }
  const PlayerSettings& settings() const { return settings_; }
  SoundDevices& soundDevices() { return soundDevices_; }
  const SoundDevices& soundDevices() const { return soundDevices_; }
  PlayerPresenting& player();

  /// Percent of the picture's height by which subtitles are lifted above the controls.
  double subtitleLift() const { return subtitleLift_; }
  void setSubtitleLift(double percent);

  /// Whether somebody sees where playback is. If not, it is published every few seconds, and with
  /// everything else that happens.
  void setPositionShown(bool shown);
  /// Publishes it, for who is about to ask.
  void catchUp() { engine_.catchUp(); }

  /// A picture plays and isn't paused: neither the screen nor the system is to go to sleep. Seeking
  /// and filling the cache don't interrupt that.
  bool keepsScreenAwake() const {
    return isLoaded_ && !isPaused_ && facts_.hasPicture() && !isShuttingDown_;
  }

  /// The program is quitting and the engine is being destroyed.
  bool isShuttingDown() const { return isShuttingDown_; }
  void setShuttingDown(bool shuttingDown);

  /// Plays a file in place of the current one, from `startAt` seconds on. A list stands for the
  /// files that it names, here as in what follows; they are known only later.
  void open(const QUrl& url, std::optional<double> startAt = {});
  /// Plays the first and queues the others.
  void open(const QList<QUrl>& urls, std::optional<double> startAt = {});
  Q_INVOKABLE void openFile(const QUrl& url) { open(url); }
  Q_INVOKABLE void openFiles(const QList<QUrl>& addresses);
  /// Does something with what a person or the desktop hands over, once it is known which local
  /// files that is; at once where all are local. Says so where there is none.
  void withLocalFiles(const QList<QUrl>& addresses,
                      const std::function<void(const QList<QUrl>& files)>& use);
  /// Adds files to the end of the queue; plays them where there is nothing else.
  Q_INVOKABLE void enqueue(const QList<QUrl>& urls);
  /// Puts files before the item that is now at `gap`, which may be the end, and plays the first
  /// where that is asked for.
  void insert(const QList<QUrl>& urls, qint64 gap, bool plays);
  /// Adds the videos behind the current one in its folder that aren't in the queue, and says so.
  Q_INVOKABLE void addRestOfFolder();
  /// Writes the queue into a list, and says so.
  void saveQueue(const QUrl& file);

  /// The list of recent files forgets this one, and so does the memory of films.
  Q_INVOKABLE void removeRecent(const QUrl& file);

  /// What is remembered of films, where anything is.
  FilmMemory* films() const { return films_; }
  /// The film that plays, where it can be remembered.
  const std::optional<FilmKey>& film() const { return filmKeeper_.film(); }
  /// From now on nothing is written of what is played, neither by us nor by the engine.
  void setPrivate(bool isPrivate);

  Q_INVOKABLE void presentOpenPanel();
  Q_INVOKABLE void presentQueuePanel();
  Q_INVOKABLE void presentSubtitleFilePanel();
  Q_INVOKABLE void presentSavePanel();

  Q_INVOKABLE void togglePlayback();
  /// Nothing while no file is loaded.
  void setPaused(bool paused);
  /// A file that is still being opened, too.
  void pauseWhatComes();
  /// Takes the file out, and with it the engine's window.
  void stop();
  /// One picture back or forth, which pauses.
  void stepFrame(int direction);
  void setFullscreen(bool fullscreen);
  /// Calls `use`, later, with the film's own size in square pixels, as it was made.
  void withPictureSize(const std::function<void(QSize)>& use);
  /// Into the person's pictures folder, and says so.
  void keepPicture(Screenshots::What what);
  /// Onto the clipboard, and says so.
  void copyPicture();
  /// Has the engine make its output anew, in the middle of a file.
  void restartVideoOutput();
  /// By seconds, back or forth.
  Q_INVOKABLE void seekBy(double seconds);
  /// To exactly this second.
  Q_INVOKABLE void seekTo(double seconds);

  /// The film, from its beginning.
  void startOver();

  /// Dragging of the position: shown at once, sought coarsely on the way and exactly at the end.
  Q_INVOKABLE void beginScrubbing();
  Q_INVOKABLE void scrubTo(double seconds);
  Q_INVOKABLE void endScrubbing();

  /// In the queue.
  Q_INVOKABLE void playPrevious();
  Q_INVOKABLE void playNext();

  Q_INVOKABLE void toggleMute();
  /// 0 to 100, clamped; anything above 0 is heard.
  Q_INVOKABLE void setVolume(double volume);
  Q_INVOKABLE void setSpeed(double speed);
  /// Moves along the speed ladder and returns the new speed.
  Q_INVOKABLE double stepSpeed(int steps);
  Q_INVOKABLE void toggleLoop();
  /// Puts the next of the marks between which the current file plays over and over, or takes both
  /// away.
  void markLoop();
  Q_INVOKABLE void toggleRepeatAll();
  /// Seconds, rounded to milliseconds.
  Q_INVOKABLE void setSubtitleDelay(double seconds);
  Q_INVOKABLE void setAudioDelay(double seconds);

  /// Asks what a menu of adjustments needs to know: sound devices, what the engine can do.
  void lookAround();
  /// What is changed about how the film was made.
  const FilmAdjustments& adjustments() const { return adjustments_; }
  /// A value that makes no sense changes nothing.
  void adjust(Adjustment adjustment, const std::string& value);
  /// So many steps on; the second subtitles go round among the tracks, black bars on or off.
  void stepAdjustment(Adjustment adjustment, int steps);
  /// "110%", as it is now.
  QString adjustmentText(Adjustment adjustment) const;
  /// "Zoom 110%", for a toast.
  QString adjustmentToast(Adjustment adjustment) const;
  /// The engine has what is needed for it.
  bool canAdjust(Adjustment adjustment) const;
  void makeAsMade(AdjustmentGroup group);
  /// Films that come begin with what is changed about this one, where that makes sense.
  void useForAll(AdjustmentGroup group);
  /// Shows the picture as made for a while.
  void compare(bool isAsMade);

  /// By the number of the track or of the item that was last reported.
  Q_INVOKABLE void selectSubtitle(qint64 track);
  /// From a local file, which is shown at once.
  void addSubtitle(const QUrl& file);
  Q_INVOKABLE void turnSubtitlesOff();
  Q_INVOKABLE void selectAudio(qint64 track);
  Q_INVOKABLE void playQueueItem(qint64 item);
  Q_INVOKABLE void removeQueueItem(qint64 item);
  /// To before the item that is now at `gap`, which may be the end.
  Q_INVOKABLE void moveQueueItem(qint64 item, qint64 gap);
  /// What has played and what plays stays, the rest comes in an order of chance, as does what is
  /// added. Turned off, all is as it was, what has come since behind it.
  Q_INVOKABLE void toggleShuffle();
  /// Takes everything but the current item out of the queue.
  Q_INVOKABLE void clearQueue();

  /// Goes to the next subtitle track, behind the last one to none, and says so for a toast.
  Q_INVOKABLE QString cycleSubtitle();
  /// Goes to the next audio track and says so for a toast.
  Q_INVOKABLE QString cycleAudio();
  /// To the next line of the subtitles that are shown, or to the one before; false where none are.
  bool stepSubtitleLine(int steps);
  SubtitleCoding* subtitleCoding() { return &coding_; }
  SubtitleLines* subtitleLines() { return &lines_; }
  /// The line that starts at `lineStart`, without any delay, is spoken now: the delay follows.
  Q_INVOKABLE void syncSubtitles(double lineStart);
  /// The same for the line that comes next. Calls `done`, maybe later, with why that can't be: a
  /// sentence; empty: the delay has followed.
  void syncToNextLine(const std::function<void(const QString& fault)>& done);
  /// A bookmark here; where one is already, that one is returned, and stays the only one.
  std::optional<FilmBookmark> addBookmark();
  Q_INVOKABLE void renameBookmark(qint64 id, const QString& name) { marks_.rename(id, name); }
  Q_INVOKABLE void removeBookmark(qint64 id) { marks_.remove(id); }
  Q_INVOKABLE void seekToChapter(int position);
  /// The chapter that it goes to; none where there is none in that direction.
  std::optional<Chapter> stepChapter(int steps);

  /// The player's window is on this screen; without one nothing changes.
  void updateDisplay(const std::optional<ScreenHeadroom>& screen);
  /// How the pictures go to the screen from here on.
  void setPictureWay(const PictureWay& way);

  void reportPlaybackError(const QString& message);
  /// Something that has to do with no file: told in the library and in the player window, as soon
  /// as there is one, without a word on playback.
  void tell(const QString& message);

 Q_SIGNALS:
  /// Playback goes on from another position, in seconds, than the one it would have come to by
  /// itself. Twice for one jump where the engine ends elsewhere than it was first said.
  void seeked(double position);
  void isShuttingDownChanged();
  /// The film has begun where it was left, in seconds.
  void resumed(double position);
  /// A file plays and is on the list of recent files; one was taken off it.
  void remembered(const QUrl& file);
  void forgotten(const QUrl& file);

 private:
  friend struct PropertyMapping;

  /// Where playback is thought to go on, and how far from there it may be found, in seconds.
  struct Restart {
    double position;
    double tolerance;
  };

  void startEngine();
  std::optional<QString> initializeEngine();
  EngineWatch::Engine watchedEngine();
  void recover();
  void replaceEngine();
  void reload(const PlayQueue& queue, std::optional<double> position, bool isPaused);
  void giveUp(bool wasOpening);
  void awaitFile(std::optional<std::string> asked = {});
  void handleEvent(const MpvEvent& received);
  void handle(const event::Property& change);
  void handle(const event::EndFile& end);
  void handle(const event::CommandFailed& failure);
  void handle(const event::FileQueued& answer);
  void handle(const event::StartFile& start);
  void handle(const event::FileLoaded&);
  void handle(const event::PlaybackRestart&);
  void handle(const event::VideoReconfigured&);
  void handle(const event::Idle&);
  void handle(const event::Shutdown&);
  void handle(const event::HardwareDecodeError&);
  void handle(const event::VideoOutputFailed&);
  void handle(const event::VideoDeviceLost&);
  void handle(const event::FramesStopped&);
  void handle(const event::AudioOutputFailed&);
  void settleFailures();
  void tellOf(const QueueProgress::Failure& failure);
  void noSound();
  void tellOutputFault();
  void showWaitingToast();
  void playFiles(const QUrl& first, const QList<QUrl>& others, std::optional<double> startAt);
  void withOpenedLists(const QList<QUrl>& files,
                       const std::function<void(const QList<QUrl>& files)>& use);
  void refuse(const QString& sentence);
  void setPause(bool paused);
  void checkEnd();
  void takeNextOfFolder(const QList<QUrl>& files);
  void takeRestOfFolder(const QList<QUrl>& files);
  void takeQueue(const PlayQueue& queue);
  void reorder(const QueueOrder& wanted);
  void send(QueueMove move);
  void showMoved(PlayQueue queue);
  void resetForNewFile();
  void updateStatus();
  void showVideoReady();
  void noteRestart();
  void checkRestart();
  void publishTracks(const MpvValue& list);
  void showLinesOfSubtitles();
  void takeAdjustments();
  void writeAdjustment(const AdjustmentRow& row, const std::string& value);
  void writeForFilm(const MpvPropertyWrite& write, const AdjustmentRow* row = nullptr);
  void refused(const AdjustmentRow& row);
  void adjusted(const AdjustmentRow& row);
  void placeSubtitles();
  void showSecondSubtitle();
  void stepSecondSubtitle(int steps);
  void cutBars();
  void tellOfBars(const std::variant<QRect, NoBars>& found);
  void tellChanges();
  void updateMotion();
  PlayerSettings* settingsForViews() { return &settings_; }
  void takeFall(bool isNew);
  void rememberSoftwareDecode(const std::string& path);
  void noteMove();
  void loadRecents();
  void takeAnswers(const QList<FileExistence::Answer>& answers);
  void takePath(const std::string& path);
  void askForPath();
  void remember(const std::string& path);
  void showRecents();
  void storeRecents();

  void load(const QUrl& url, const char* mode, qint64 place, std::optional<double> startAt);
  void append(const QList<QUrl>& urls);
  void refuseFilesElsewhere(bool someFollow);
  void seek(double seconds, const char* how);

  Clock& clock_;
  FileChooser& files_;
  UserDefaults& defaults_;
  std::function<std::unique_ptr<PlayerPresenting>(PlaybackModel&)> makePlayer_;
  std::function<bool()> hasVulkanDevice_;
  const bool mayDecodeInHardware_;
  const std::function<void()> tidyUp_;
  const QString diagnosticsDirectory_;
  const std::string vulkanDevice_;
  const QString engineFault_;
  MpvEngine engine_;
  PlayerSettings settings_;
  SoundDevices soundDevices_;
  Screenshots screenshots_;
  std::function<void(const QByteArray&)> copyPicture_;
  Bookmarks marks_;
  HardwareDecoding hardware_;
  FilmMemory* const films_;
  FilmKeeper filmKeeper_;
  HardwareTrial trial_;
  EngineWatch watch_;
  LostSound lostSound_;
  // The last film, by its path, that was brought into a new engine, and when.
  std::optional<std::string> recovered_;
  double recoveredAt_ = 0;  // of the clock
  FilmAdjustments adjustments_;
  BarsFinder barsFinder_;
  SmoothMotion smoothMotion_;      // as the engine was told
  std::set<std::string> lacking_;  // options that the engine hasn't
  std::string addedSecond_;        // a file that the second subtitles were asked for from
  std::optional<double> subtitlePlace_ = 100;  // as the engine was told; percent of the height
  QueueProgress progress_;
  QueueShuffle shuffle_;
  RecentFiles recentFiles_;
  FileExistence existence_;
  Background reading_;  // of lists and folders, for what plays
  LocalFiles localFiles_;
  SubtitleLines lines_;
  SubtitleCoding coding_{engine_};
  double fileBegin_ = 0;                     // by the file's own clock; seconds
  double position_ = 0;                      // to the frame, where elapsed goes in steps; seconds
  std::int64_t entry_ = 0;                   // of the current file, the engine's number for it
  std::optional<std::string> currentPath_;   // as the engine has reported it since the file started
  int unmoved_ = 0;                          // moves that the engine has yet to make
  std::optional<PlayQueue> queueMeanwhile_;  // as it was told before all were made
  double subtitleLift_ = 0;
  double lastScrubSeek_ = 0;     // of the clock
  bool wantsPause_ = true;       // was asked for last
  bool isAtEnd_ = false;         // the engine shows the file's last picture
  bool hasAskedFolder_ = false;  // what comes behind this file, since it has ended
  bool hasStarted_ = false;      // the current file has
  bool hasPicture_ = false;      // the current file has, and it is shown
  bool hasFailed_ = false;       // the current file has
  bool isOpening_ = false;   // the engine has a file to open, and has yet to say what became of it
  bool isStopping_ = false;  // the engine was told to take the file out
  std::optional<std::string> asked_;  // it, until the engine has begun with it
  QString outputFault_;               // of the current file; a sentence
  QString toast_;                     // waits for the player window
  bool toldOfNoSound_ = false;
  std::optional<Restart> restart_;  // the engine has yet to tell where
  bool isShuttingDown_ = false;
  QMetaObject::Connection settingsObserver_;
  std::unique_ptr<PlayerPresenting> player_;
};

}  // namespace tromelo
