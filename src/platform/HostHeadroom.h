#pragma once

#include <QObject>
#include <memory>

#include "platform/ScreenHeadroom.h"

class QScreen;

namespace tromelo {

class WaylandHeadroom;

/// How bright the host's screens get, where the host says so: on Wayland with colour management.
/// Main thread only, after the application object.
class HostHeadroom : public QObject {
  Q_OBJECT

 public:
  HostHeadroom();
  ~HostHeadroom() override;

  /// Standard range where the host hasn't told, or never does.
  ScreenHeadroom of(QScreen* screen);

 Q_SIGNALS:
  /// The headroom of one of the screens is another.
  void changed();

 private:
  std::unique_ptr<WaylandHeadroom> wayland_;  // only on Wayland
};

}  // namespace tromelo
