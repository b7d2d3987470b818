#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QUrl>

#include "playback/PlaybackState.h"

namespace tromelo {

/// What the library shows of what the model knows.
class LibraryTexts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// There is something to say about the file that was played last.
  Q_INVOKABLE static bool isDescribed(const QUrl& file, bool hasVideo) {
    return hasVideo && !file.isEmpty();
  }
  /// The video shows more than an ordinary screen can.
  Q_INVOKABLE static bool isHighDynamicRange(const tromelo::DynamicRange& range) {
    return range.kind != DynamicRange::Kind::sdr;
  }
};

}  // namespace tromelo
