#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <memory>

#include "TestToplevel.h"
#include "display/PrivateDisplay.h"
#include "display/VideoSink.h"

namespace tromelo::testing {

/// Descriptors and mappings of test buffers that this process has.
struct Holdings {
  int descriptors = 0;
  int mappings = 0;
  friend bool operator==(const Holdings&, const Holdings&) = default;

  static Holdings now();
};

/// A display and one client of it. When a test is over and both are gone, the process must hold
/// what it held before.
class DisplayTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  virtual PrivateDisplay::Output output() const { return {QSize(1280, 800), 60'000}; }
  virtual std::optional<DmabufSupport> dmabuf() const { return std::nullopt; }

  void connectClient();
  /// Reads the client's events and runs the event loop until `condition` holds.
  [[nodiscard]] bool wait(const std::function<bool()>& condition);
  /// The newest window of the display, announced or still to be.
  EngineWindow* announcedWindow();

  std::unique_ptr<PrivateDisplay> display_;
  std::unique_ptr<TestClient> client_;
  QList<EngineWindow*> added_;

 private:
  Holdings before_;
};

/// Keeps what it is given.
class KeepingSink final : public VideoSink {
 public:
  void commit(std::shared_ptr<Frame> frame) override;

  std::size_t commits() const;
  std::shared_ptr<Frame> takeLast();

 private:
  mutable std::mutex mutex_;
  std::size_t commits_ = 0;
  std::shared_ptr<Frame> last_;
};

}  // namespace tromelo::testing
