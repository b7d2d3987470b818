#pragma once

#include <QtQml/qqmlregistration.h>

#include <QByteArrayView>
#include <QObject>

namespace tromelo {

/// How the translucent surfaces are drawn: as glass, which blurs what is behind it, or as a plain
/// dark material, which costs next to nothing. Main thread.
class Glass : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// The video, or whatever is behind, is to be blurred.
  Q_PROPERTY(bool blurs READ blurs CONSTANT)

 public:
  using QObject::QObject;

  enum class Rendering { glass, material };

  /// What a person asks for ("glass" or "material") holds; otherwise a machine that draws with its
  /// processor gets the material.
  static Rendering choose(QByteArrayView asked, bool drawsInSoftware);

  /// For all surfaces made from now on.
  static void setRendering(Rendering rendering);
  static bool blurs();
};

}  // namespace tromelo
