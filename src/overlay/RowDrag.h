#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractItemModel>
#include <QBasicTimer>
#include <QPointer>
#include <QQuickItem>

namespace tromelo {

/// Lets the rows of the list inside it be dragged to another place. All rows are of one height.
/// Nothing moves before a row is let go: who uses it shows the row that is held and the gap that it
/// would go to, and moves it. Near an edge the list scrolls. Escape, or a list that changes
/// meanwhile, leaves all as it was. A finger scrolls, as ever.
class RowDrag : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* list MEMBER list_)  // a ListView
  Q_PROPERTY(QAbstractItemModel* model READ model WRITE setModel NOTIFY modelChanged)
  Q_PROPERTY(bool isOn READ isOn NOTIFY changed)
  Q_PROPERTY(int row READ row NOTIFY changed)       // that is held; -1 where none is
  Q_PROPERTY(double rowY READ rowY NOTIFY changed)  // of its top edge, here
  Q_PROPERTY(double gapY READ gapY NOTIFY changed)  // of the middle of the gap, here

 public:
  explicit RowDrag(QQuickItem* parent = nullptr);

  QAbstractItemModel* model() const { return model_; }
  void setModel(QAbstractItemModel* model);
  bool isOn() const { return row_ >= 0; }
  int row() const { return row_; }
  double rowY() const { return rowY_; }
  double gapY() const { return gapY_; }

  /// Scrolls until a row is in the middle, as far as there is something to scroll.
  Q_INVOKABLE void center(int row);

 Q_SIGNALS:
  void changed();
  void modelChanged();
  /// To before the row at `gap`, or behind all.
  void dropped(int row, int gap);

 protected:
  bool childMouseEventFilter(QQuickItem* child, QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseUngrabEvent() override { end(); }
  void timerEvent(QTimerEvent* event) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void begin();
  void follow(double y);
  void scroll();
  double within(double contentY) const;
  void end();
  double top() const;    // of the list's first row, here
  double pitch() const;  // from one row to the next
  int count() const { return model_ ? model_->rowCount() : 0; }

  QPointer<QQuickItem> list_;
  QPointer<QAbstractItemModel> model_;
  double pressed_ = 0;  // where
  bool isPressed_ = false;
  double pointer_ = 0;
  double grip_ = 0;  // where the pointer holds the row, from its top edge
  int row_ = -1;
  int gap_ = -1;
  double rowY_ = 0;
  double gapY_ = 0;
  QBasicTimer scrolling_;
};

}  // namespace tromelo
