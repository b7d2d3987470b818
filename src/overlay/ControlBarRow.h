#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>

namespace tromelo {

/// The upper row of the control bar, which shares out its room among sound, transport and options.
/// It asks what is shown in them how wide it is. All controls fit from 440 points on. The transport
/// is in the middle where the options leave it there; with less room it moves aside, then the gaps
/// and the volume slider become smaller. Lengths in points. Main thread only.
class ControlBarRow : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  /// Both are positioners, whose spacing is what this says.
  Q_PROPERTY(QQuickItem* transport MEMBER transport_ REQUIRED)
  Q_PROPERTY(QQuickItem* options MEMBER options_ REQUIRED)
  /// The mute button, the gap beside it and round the middle, and the slider in its full and its
  /// least width.
  Q_PROPERTY(double mute MEMBER mute_ REQUIRED)
  Q_PROPERTY(double gap MEMBER gap_ REQUIRED)
  Q_PROPERTY(double fullVolume MEMBER fullVolume_ REQUIRED)
  Q_PROPERTY(double leastVolume MEMBER leastVolume_ REQUIRED)
  /// Gaps of the transport (x) and of the options (y).
  Q_PROPERTY(QPointF wideGaps MEMBER wideGaps_ REQUIRED)
  Q_PROPERTY(QPointF tightGaps MEMBER tightGaps_ REQUIRED)

  Q_PROPERTY(double transportSpacing READ transportSpacing NOTIFY shared)
  Q_PROPERTY(double optionsSpacing READ optionsSpacing NOTIFY shared)
  Q_PROPERTY(double transportX READ transportX NOTIFY shared)    // of its left end
  Q_PROPERTY(double volumeWidth READ volumeWidth NOTIFY shared)  // 0: no room for a slider

 public:
  using QQuickItem::QQuickItem;

  double transportSpacing() const { return shares_.gaps.x(); }
  double optionsSpacing() const { return shares_.gaps.y(); }
  double transportX() const { return shares_.transportX; }
  double volumeWidth() const { return shares_.volumeWidth; }

 Q_SIGNALS:
  void shared();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  struct Shares {
    QPointF gaps;
    double transportX = 0;
    double volumeWidth = 0;

    friend bool operator==(const Shares&, const Shares&) = default;
  };

  void follow(const QQuickItem& group);
  void share();
  Shares fit(QPointF gaps) const;

  QPointer<QQuickItem> transport_;
  QPointer<QQuickItem> options_;
  double mute_ = 0;
  double gap_ = 0;
  double fullVolume_ = 0;
  double leastVolume_ = 0;
  QPointF wideGaps_;
  QPointF tightGaps_;
  Shares shares_;
};

}  // namespace tromelo
