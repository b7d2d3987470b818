#include "overlay/MomentPicture.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <utility>

namespace tromelo {

namespace {

/// The picture no larger than the room, which one that is turned on its side may be, with round
/// corners.
QImage trimmed(const QImage& picture, QSize room, double radius) {
  const bool fits = picture.width() <= room.width() && picture.height() <= room.height();
  const QImage small =
      fits ? picture : picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QImage trimmed(small.size(), QImage::Format_ARGB32_Premultiplied);
  trimmed.fill(Qt::transparent);
  QPainter painter(&trimmed);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(small);
  painter.drawRoundedRect(trimmed.rect(), radius, radius);
  return trimmed;
}

}  // namespace

MomentPicture::MomentPicture(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void MomentPicture::setSource(PictureSource* source) {
  if (source_ == source) return;
  if (source_) source_->disconnect(this);
  source_ = source;
  if (source) {
    connect(source, &PictureSource::arrived, this, [this](const QImage& picture) {
      if (isWanted_) show(picture);
    });
    connect(source, &PictureSource::filmChanged, this, [this] { show({}); });
  }
  Q_EMIT sourceChanged();
  ask();
}

void MomentPicture::setWanted(bool isWanted) {
  if (isWanted_ == isWanted) return;
  isWanted_ = isWanted;
  Q_EMIT isWantedChanged();
  if (isWanted_) return ask();
  if (source_) source_->stopAsking();
  show({});
}

void MomentPicture::setMoment(double seconds) {
  if (moment_ == seconds) return;
  moment_ = seconds;
  Q_EMIT momentChanged();
  ask();
}

void MomentPicture::setRoom(QSizeF room) {
  if (room_ == room) return;
  room_ = room;
  Q_EMIT roomChanged();
  ask();
}

double MomentPicture::pixels() const {
  return window() ? window()->effectiveDevicePixelRatio() : 1;
}

void MomentPicture::ask() {
  if (isWanted_ && source_) source_->ask(moment_, (room_ * pixels()).toSize());
}

void MomentPicture::show(const QImage& picture) {
  if (picture.isNull() && picture_.isNull()) return;
  picture_ = picture.isNull() ? QImage()
                              : trimmed(picture, (room_ * pixels()).toSize(), radius_ * pixels());
  isNew_ = true;
  setImplicitSize(picture_.width() / pixels(), picture_.height() / pixels());
  update();
  Q_EMIT pictureChanged();
}

QSGNode* MomentPicture::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  if (picture_.isNull() || size().isEmpty()) {
    delete node;  // the scene graph's way of having none
    return nullptr;
  }
  auto* image = static_cast<QSGImageNode*>(node);
  if (std::exchange(isNew_, false) || !image) {
    if (!image) {
      image = window()->createImageNode();
      image->setOwnsTexture(true);
      image->setFiltering(QSGTexture::Linear);
    }
    image->setTexture(
        window()->createTextureFromImage(picture_, QQuickWindow::TextureHasAlphaChannel));
  }
  image->setRect(boundingRect());
  return image;
}

void MomentPicture::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) ask();
}

}  // namespace tromelo
