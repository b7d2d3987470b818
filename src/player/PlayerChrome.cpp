#include "player/PlayerChrome.h"

namespace tromelo {

void PlayerChrome::setShowsInfo(bool shows) {
  if (showsInfo_ == shows) return;
  showsInfo_ = shows;
  Q_EMIT showsInfoChanged();
}

void PlayerChrome::setPanel(std::optional<PlayerPanel> panel) {
  if (panel_ == panel) return;
  panel_ = panel;
  if (panel_) setShowsSpeeds(false);
  Q_EMIT panelChanged();
}

void PlayerChrome::close(PlayerPanel panel) {
  if (panel_ == panel) setPanel(std::nullopt);
}

void PlayerChrome::toggle(PlayerPanel panel) {
  setPanel(panel_ == panel ? std::nullopt : std::optional(panel));
}

void PlayerChrome::setMini(bool isMini) {
  if (isMini_ == isMini) return;
  isMini_ = isMini;
  if (isMini) {
    setPanel(std::nullopt);
    setShowsSpeeds(false);
    setShowsInfo(false);
  }
  Q_EMIT isMiniChanged();
}

void PlayerChrome::setShowsSpeeds(bool shows) {
  if (showsSpeeds_ == shows) return;
  showsSpeeds_ = shows;
  if (shows) setPanel(std::nullopt);
  Q_EMIT showsSpeedsChanged();
}

void PlayerChrome::setOffer(Offer offer) {
  if (offer_ == offer) return;
  offer_ = offer;
  Q_EMIT offerChanged();
}

void PlayerChrome::setToast(std::optional<QString> toast) {
  if (toast_ == toast) return;
  toast_ = std::move(toast);
  Q_EMIT toastChanged();
}

}  // namespace tromelo
