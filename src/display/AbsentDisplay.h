#pragma once

#include "display/PrivateDisplay.h"

namespace tromelo {

/// Stands where the private display can't be started: it never has a window.
class AbsentDisplay final : public PrivateDisplay {
 public:
  QByteArray socketPath() const override { return {}; }
  QList<EngineWindow*> windows() const override { return {}; }
  void setOutput(const Output&) override {}
  bool withdrawDmabufs() override { return false; }
};

}  // namespace tromelo
