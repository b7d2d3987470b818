#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "player/PlayerPanel.h"

namespace tromelo {

/// What the player's controls show besides the transport. Main thread only.
class PlayerChrome : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool showsInfo READ showsInfo WRITE setShowsInfo NOTIFY showsInfoChanged)
  // Writing false leaves another panel, which may have been opened since, as it is.
  Q_PROPERTY(bool showsTracks READ showsTracks WRITE setShowsTracks NOTIFY panelChanged)
  Q_PROPERTY(bool showsChapters READ showsChapters WRITE setShowsChapters NOTIFY panelChanged)
  Q_PROPERTY(bool showsQueue READ showsQueue WRITE setShowsQueue NOTIFY panelChanged)
  Q_PROPERTY(bool showsShortcuts READ showsShortcuts WRITE setShowsShortcuts NOTIFY panelChanged)
  // The list of speeds over the control bar: no panel, but open in place of one.
  Q_PROPERTY(bool showsSpeeds READ showsSpeeds WRITE setShowsSpeeds NOTIFY showsSpeedsChanged)
  Q_PROPERTY(QString toast READ toastText NOTIFY toastChanged)

 public:
  using QObject::QObject;

  bool showsInfo() const { return showsInfo_; }
  void setShowsInfo(bool shows);

  /// At most one panel is open.
  std::optional<PlayerPanel> panel() const { return panel_; }
  void setPanel(std::optional<PlayerPanel> panel);
  /// Closes `panel` if it is open, else opens it in place of any other.
  void toggle(PlayerPanel panel);
  /// Leaves any other open.
  void close(PlayerPanel panel);

  bool showsSpeeds() const { return showsSpeeds_; }
  void setShowsSpeeds(bool shows);

  const std::optional<QString>& toast() const { return toast_; }
  void setToast(std::optional<QString> toast);

 Q_SIGNALS:
  void showsInfoChanged();
  void panelChanged();
  void showsSpeedsChanged();
  void toastChanged();

 private:
  bool showsTracks() const { return panel_ == PlayerPanel::tracks; }
  void setShowsTracks(bool shows) { setShows(PlayerPanel::tracks, shows); }
  bool showsChapters() const { return panel_ == PlayerPanel::chapters; }
  void setShowsChapters(bool shows) { setShows(PlayerPanel::chapters, shows); }
  bool showsQueue() const { return panel_ == PlayerPanel::queue; }
  void setShowsQueue(bool shows) { setShows(PlayerPanel::queue, shows); }
  bool showsShortcuts() const { return panel_ == PlayerPanel::shortcuts; }
  void setShowsShortcuts(bool shows) { setShows(PlayerPanel::shortcuts, shows); }
  void setShows(PlayerPanel panel, bool shows);
  QString toastText() const { return toast_.value_or(QString()); }

  bool showsInfo_ = false;
  std::optional<PlayerPanel> panel_;
  bool showsSpeeds_ = false;
  std::optional<QString> toast_;
};

}  // namespace tromelo
