#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickPaintedItem>

#include "settings/PlayerSettings.h"
#include "settings/SubtitlePicture.h"

namespace tromelo {

/// A preview of how subtitles will look, drawn from the settings; the engine draws those over the
/// video. Main thread only.
class SubtitlePreview : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tromelo::PlayerSettings* settings MEMBER settings_ WRITE setSettings REQUIRED)
  Q_PROPERTY(QString text READ text CONSTANT)

 public:
  explicit SubtitlePreview(QQuickItem* parent = nullptr);

  void setSettings(PlayerSettings* settings);
  void paint(QPainter* painter) override;

 private:
  static QString text() { return subtitleSampleText(); }

  QPointer<PlayerSettings> settings_;
};

}  // namespace tromelo
