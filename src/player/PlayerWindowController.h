#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QUrl>
#include <memory>
#include <optional>

#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "playback/PlayerPresenting.h"
#include "player/KeyPress.h"
#include "player/PlayerChrome.h"
#include "player/PlayerMenu.h"
#include "player/PlayerOverlay.h"
#include "player/VideoWindow.h"

namespace tromelo {

class PlaybackModel;

/// Finds the engine's window, dresses it as the player's, reveals it when the video is ready and
/// closes it back to the library. `playback`, `windows` and `clock` outlive it. Main thread only.
class PlayerWindowController : public QObject, public PlayerPresenting {
  Q_OBJECT
  Q_PROPERTY(bool playsWithoutWindow READ playsWithoutWindow NOTIFY playsWithoutWindowChanged)

 public:
  PlayerWindowController(PlaybackModel& playback, WindowSystem& windows, Clock& clock);
  ~PlayerWindowController() override;

  void setLibraryWindow(ControlledWindow* library) { libraryWindow_ = library; }
  PlayerChrome& chrome() { return chrome_; }
  const PlayerChrome& chrome() const { return chrome_; }

  void setAwaitingVideo(bool awaiting) override;
  void setVideoReady(bool ready) override;
  /// One that stays.
  bool hasWindow() const override { return window_ && !isReplacing_; }
  void replaceWindow() override;
  void reveal() override;
  Q_INVOKABLE void close() override;
  void showLibrary() override;
  void showToast(const QString& text) override;
  void showKeptPicture(const QUrl& picture) override;

  /// The player's window in front of others, if it is shown.
  void bringToFront();
  /// Asks the engine, whose window it is.
  Q_INVOKABLE void toggleFullscreen();
  /// The film's own size, times `scale`, as far as the screen has room. Returns a toast, or
  /// nothing.
  QString resizePicture(double scale);
  QString fitScreen();
  /// A small window with next to nothing on it, and back.
  void toggleMini();
  void leaveMini();
  /// Returns a toast.
  QString toggleStaysOnTop();
  bool staysOnTop() const { return staysOnTop_; }
  /// Has the engine make its output and its window anew, while the file goes on.
  void restartVideo();
  /// Plays the film from its beginning, and says so.
  Q_INVOKABLE void startOver();
  /// Shows the picture that was kept last in its folder.
  Q_INVOKABLE void showPicture();
  void handleDroppedFiles(const QList<QUrl>& addresses);
  /// By percent points, up or down, with a toast.
  void resizeSubtitles(double steps);
  void adjustVolume(double percent);
  /// One step back: out of a panel, of full screen, of the player.
  void escape();
  /// Does what the key is for, and shows the controls; false when it is not the player's.
  bool handleKey(const KeyPress& press);
  /// What the menu over the picture offers.
  Q_INVOKABLE QList<tromelo::MenuGroup> menu() const;
  /// Does what the entry in this row of its table is for.
  Q_INVOKABLE void chooseFromMenu(int row);
  /// Changes a value there by so many steps; the menu stays open.
  Q_INVOKABLE void stepFromMenu(int row, int steps);
  Q_INVOKABLE tromelo::MenuEntry menuEntry(int row) const;
  /// The same in the library while playsWithoutWindow, for the keys that work there. `modifiers`
  /// are Qt::KeyboardModifiers.
  Q_INVOKABLE bool handleLibraryKey(int key, int modifiers, bool isRepeat);
  /// Before the engine is destroyed: drops all window state and watches for no more windows.
  void prepareForTermination();

  bool isRevealed() const { return isRevealed_; }
  bool isClosing() const { return isClosing_; }
  /// A file is being opened whose picture isn't there yet.
  bool isAwaitingVideo() const { return awaitingVideo_; }
  /// The controls are shown, or coming up.
  bool chromeVisible() const { return chromeVisible_; }
  /// A file plays that has no picture, so that no window has come.
  bool playsWithoutWindow() const;
  /// The way back from a file without a window: stops it.
  Q_INVOKABLE void stopPlayback();

 Q_SIGNALS:
  void playsWithoutWindowChanged();
  void windowStateChanged();

 private:
  void scanWindows();
  void adopt(VideoWindow& window);
  void installOverlay(VideoWindow& window);
  void observe(VideoWindow& window);
  void forgetWhenDestroyed(VideoWindow& window);
  void readoptOrShowLibrary();
  void endReplacing();
  void finishClose();
  void stopAndTearDown();
  void tearDownWindowState();
  void giveUp(VideoWindow& window);
  void takeDropped(const QList<QUrl>& dropped);

  // The controls: when they are shown, and what follows from that.
  void followState();
  void showChrome();
  void hideChrome();
  void toggleChrome();
  void scheduleChromeHide();
  bool mayHideChrome() const;
  void tellOfResuming();
  void offer(PlayerChrome::Offer offer);
  void handleActivity();
  void setInfoRefresh(bool shown);
  void updateDisplay();
  void updateSubtitleLift();
  void updatePositionShown();

  PlaybackModel& playback_;
  WindowSystem& windows_;
  Clock& clock_;
  PlayerChrome chrome_;

  QPointer<ControlledWindow> libraryWindow_;
  QPointer<VideoWindow> window_;
  std::unique_ptr<PlayerOverlay> overlay_;
  // By identity only, never dereferenced; a window leaves the set when it dies.
  QSet<const QObject*> adoptedWindows_;

  std::unique_ptr<Clock::Timer> revealFallback_;
  std::unique_ptr<Clock::Timer> fullscreenExitFallback_;
  std::unique_ptr<Clock::Timer> toastTimer_;
  std::unique_ptr<Clock::Timer> offerTimer_;
  std::unique_ptr<Clock::Timer> hideTimer_;
  std::unique_ptr<Clock::Timer> infoTimer_;
  FileManager fileManager_;
  QUrl keptPicture_;

  std::optional<double> resumedAt_;  // seconds; to be told when there is a picture
  bool staysOnTop_ = false;
  bool awaitingVideo_ = false;
  bool videoReady_ = false;
  bool chromeVisible_ = true;
  bool isRevealed_ = false;
  bool isClosing_ = false;
  bool isFadingOut_ = false;
  bool isReplacing_ = false;  // the engine's window goes, and another comes for the same file
  bool isStopping_ = false;   // a file that ends has no window any more, but isn't one without
  bool isTerminating_ = false;
};

}  // namespace tromelo
