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
  Q_PROPERTY(bool showsShortcuts READ showsShortcuts NOTIFY panelChanged)
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

  const std::optional<QString>& toast() const { return toast_; }
  void setToast(std::optional<QString> toast);

 Q_SIGNALS:
  void showsInfoChanged();
  void panelChanged();
  void toastChanged();

 private:
  bool showsShortcuts() const { return panel_ == PlayerPanel::shortcuts; }
  QString toastText() const { return toast_.value_or(QString()); }

  bool showsInfo_ = false;
  std::optional<PlayerPanel> panel_;
  std::optional<QString> toast_;
};

}  // namespace tromelo
