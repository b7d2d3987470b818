#pragma once

#include "overlay/RecordModel.h"
#include "playback/QueueItem.h"

namespace tromelo {

/// The queue's rows.
class QueueModel : public RecordModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QList<tromelo::QueueItem> items READ items WRITE setItems NOTIFY itemsChanged)
  Q_PROPERTY(int current READ current NOTIFY itemsChanged)  // row; -1 without one

 public:
  explicit QueueModel(QObject* parent = nullptr)
      : RecordModel(QueueItem::staticMetaObject, parent) {}

  const PlayQueue& items() const { return items_; }
  void setItems(const PlayQueue& items) {
    // A file's position, title and turn change while it stays in the queue.
    replace(items_, items,
            [](const QueueItem& one, const QueueItem& other) { return one.path == other.path; });
    Q_EMIT itemsChanged();
  }
  int current() const { return static_cast<int>(currentIndex(items_).value_or(-1)); }
  Q_INVOKABLE QString titleAt(int row) const { return items_.value(row).title; }
  int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(items_.size()); }

 Q_SIGNALS:
  void itemsChanged();

 protected:
  const void* recordAt(int row) const override { return &items_[row]; }

 private:
  PlayQueue items_;
};

}  // namespace tromelo
