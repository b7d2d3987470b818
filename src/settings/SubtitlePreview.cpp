#include "settings/SubtitlePreview.h"

#include <QPainter>

namespace tromelo {

namespace {

constexpr double kRadius = 10;

}  // namespace

SubtitlePreview::SubtitlePreview(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

void SubtitlePreview::setSettings(PlayerSettings* settings) {
  settings_ = settings;
  connect(settings, &PlayerSettings::changed, this, [this] { update(); });
  update();
}

void SubtitlePreview::paint(QPainter* painter) {
  if (!settings_) return;
  // Drawn as a picture first: clipping to a rounded shape would leave a jagged edge.
  const double scale = painter->transform().m11() * painter->device()->devicePixelRatio();
  const QImage picture = subtitlePicture(size(), scale, settings_->preferences());
  QBrush brush(picture);
  brush.setTransform(QTransform::fromScale(1 / scale, 1 / scale));
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(brush);
  painter->drawRoundedRect(boundingRect(), kRadius, kRadius);
}

}  // namespace tromelo
