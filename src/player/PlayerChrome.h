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
  // The open one's number; -1 where none is.
  Q_PROPERTY(int panel READ panelNumber NOTIFY panelChanged)
  // Writing false leaves another panel, which may have been opened since, as it is.
  Q_PROPERTY(bool showsShortcuts READ showsShortcuts WRITE setShowsShortcuts NOTIFY panelChanged)
  Q_PROPERTY(bool showsMenu READ showsMenu WRITE setShowsMenu NOTIFY panelChanged)
  Q_PROPERTY(QList<tromelo::BarPanel> barPanels READ barPanels CONSTANT)
  // The window is so small that it shows next to nothing but the picture.
  Q_PROPERTY(bool isMini READ isMini NOTIFY isMiniChanged)
  // The list of speeds over the control bar: no panel, but open in place of one.
  Q_PROPERTY(bool showsSpeeds READ showsSpeeds WRITE setShowsSpeeds NOTIFY showsSpeedsChanged)
  // To start the film over that has just gone on where it was left.
  Q_PROPERTY(bool offersStartOver READ offersStartOver NOTIFY offerChanged)
  Q_PROPERTY(bool offersPicture READ offersPicture NOTIFY offerChanged)
  Q_PROPERTY(QString toast READ toastText NOTIFY toastChanged)

 public:
  using QObject::QObject;

  bool showsInfo() const { return showsInfo_; }
  void setShowsInfo(bool shows);

  /// At most one panel is open.
  std::optional<PlayerPanel> panel() const { return panel_; }
  void setPanel(std::optional<PlayerPanel> panel);
  /// Closes `panel` if it is open, else opens it in place of any other.
  Q_INVOKABLE void toggle(tromelo::PlayerPanel panel);
  /// Leaves any other open.
  Q_INVOKABLE void close(tromelo::PlayerPanel panel);

  bool isMini() const { return isMini_; }
  void setMini(bool isMini);

  bool showsSpeeds() const { return showsSpeeds_; }
  void setShowsSpeeds(bool shows);

  /// A button that stands below the toast for a while.
  enum class Offer {
    none,
    startOver,    // the film that has gone on
    showPicture,  // the one that was kept, in its folder
  };
  void setOffer(Offer offer);

  const std::optional<QString>& toast() const { return toast_; }
  void setToast(std::optional<QString> toast);

 Q_SIGNALS:
  void showsInfoChanged();
  void panelChanged();
  void isMiniChanged();
  void showsSpeedsChanged();
  void offerChanged();
  void toastChanged();

 private:
  bool offersStartOver() const { return offer_ == Offer::startOver; }
  bool offersPicture() const { return offer_ == Offer::showPicture; }
  int panelNumber() const { return panel_ ? static_cast<int>(*panel_) : -1; }
  bool showsShortcuts() const { return panel_ == PlayerPanel::shortcuts; }
  void setShowsShortcuts(bool shows) {
    shows ? setPanel(PlayerPanel::shortcuts) : close(PlayerPanel::shortcuts);
  }
  bool showsMenu() const { return panel_ == PlayerPanel::menu; }
  void setShowsMenu(bool shows) { shows ? setPanel(PlayerPanel::menu) : close(PlayerPanel::menu); }
  static QList<BarPanel> barPanels() { return tromelo::barPanels(); }
  QString toastText() const { return toast_.value_or(QString()); }

  bool showsInfo_ = false;
  std::optional<PlayerPanel> panel_;
  bool isMini_ = false;
  bool showsSpeeds_ = false;
  Offer offer_ = Offer::none;
  std::optional<QString> toast_;
};

}  // namespace tromelo
