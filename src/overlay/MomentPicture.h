#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QPointer>
#include <QQuickItem>

#include "pictures/PictureSource.h"

namespace tromelo {

struct PictureSourceForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PictureSource)
  QML_NAMED_ELEMENT(PictureSource)
  QML_UNCREATABLE("The program has one.")
};

/// The picture of a moment of the film that plays, pixel for pixel. Its implicit size is the
/// picture's; until there is one it has none, and draws nothing. While the moment moves it shows
/// the last picture that has come.
class MomentPicture : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  /// Null where there are no pictures.
  Q_PROPERTY(tromelo::PictureSource* source READ source WRITE setSource NOTIFY sourceChanged)
  /// Somebody looks at the moment; without, the picture is let go.
  Q_PROPERTY(bool isWanted READ isWanted WRITE setWanted NOTIFY isWantedChanged)
  /// In seconds.
  Q_PROPERTY(double moment READ moment WRITE setMoment NOTIFY momentChanged)
  /// The most that it may take, in points.
  Q_PROPERTY(QSizeF room READ room WRITE setRoom NOTIFY roomChanged)
  /// Of its corners, in points.
  Q_PROPERTY(double radius MEMBER radius_ NOTIFY radiusChanged)
  Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY pictureChanged)

 public:
  explicit MomentPicture(QQuickItem* parent = nullptr);

  PictureSource* source() const { return source_; }
  void setSource(PictureSource* source);
  bool isWanted() const { return isWanted_; }
  void setWanted(bool isWanted);
  double moment() const { return moment_; }
  void setMoment(double seconds);
  QSizeF room() const { return room_; }
  void setRoom(QSizeF room);
  bool hasPicture() const { return !picture_.isNull(); }

 Q_SIGNALS:
  void sourceChanged();
  void isWantedChanged();
  void momentChanged();
  void roomChanged();
  void radiusChanged();
  void pictureChanged();

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void ask();
  void show(const QImage& picture);
  double pixels() const;

  QPointer<PictureSource> source_;
  bool isWanted_ = false;
  double moment_ = 0;
  QSizeF room_;
  double radius_ = 0;
  QImage picture_;
  bool isNew_ = false;  // the picture, to the scene
};

}  // namespace tromelo
