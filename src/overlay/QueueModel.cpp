#include "overlay/QueueModel.h"

namespace tromelo {

void QueueModel::setItems(const PlayQueue& items) {
  // A file's position, title and turn change while it stays in the queue.
  replace(items_, items,
          [](const QueueItem& one, const QueueItem& other) { return one.path == other.path; });
  Q_EMIT itemsChanged();
}

}  // namespace tromelo
