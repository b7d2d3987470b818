#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>

#include "glass/GlassRendering.h"

namespace tromelo {

/// The choice between the two renderings, for QML.
class Glass : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// The video, or whatever is behind, is to be blurred.
  Q_PROPERTY(bool blurs READ blurs CONSTANT)

 public:
  using QObject::QObject;

  bool blurs() const { return glassRendering() == GlassRendering::glass; }
};

}  // namespace tromelo
