#pragma once

#include <QList>
#include <QString>
#include <QUrl>

namespace tromelo {

/// What was dropped on the player, sorted into subtitles for the present file and videos for the
/// queue, each in the order of the drag.
struct DroppedFiles {
  QList<QUrl> subtitles;
  QList<QUrl> videos;

  static DroppedFiles sort(const QList<QUrl>& urls);

  /// What the person is told; empty when there is nothing to tell.
  QString toast() const;
};

}  // namespace tromelo
