#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>
#include <string>

#include "playback/QueueOrder.h"

namespace tromelo {

class MpvValue;

/// A file that plays, has played or will play in this session.
class QueueItem {
  Q_GADGET
  Q_PROPERTY(qint64 id MEMBER id CONSTANT)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString path MEMBER path CONSTANT)
  Q_PROPERTY(bool isCurrent MEMBER isCurrent CONSTANT)

 public:
  qint64 id = 0;  // position in the queue, from 0
  QString title;
  QString path;  // for people; undecodable bytes show as U+FFFD
  bool isCurrent = false;
  qint64 entry = -1;      // the engine's own number, the same for as long as the file is queued
  std::string file = {};  // the path's bytes

  friend bool operator==(const QueueItem&, const QueueItem&) = default;
};

using PlayQueue = QList<QueueItem>;

/// From the engine's "playlist"; what is not a list gives an empty queue.
PlayQueue playQueue(const MpvValue& playlist);

/// The engine's numbers of the items.
QueueOrder orderOf(const PlayQueue& queue);

/// The same items in another order of their numbers.
PlayQueue inOrder(const PlayQueue& queue, const QueueOrder& order);

/// Position of the first current item.
std::optional<qsizetype> currentIndex(const PlayQueue& queue);

bool hasNext(const PlayQueue& queue);
bool hasPrevious(const PlayQueue& queue);

}  // namespace tromelo
