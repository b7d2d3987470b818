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
  qsizetype descriptors = 0;
  qsizetype mappings = 0;
  friend bool operator==(const Holdings&, const Holdings&) = default;

  static Holdings now();
};

/// A display and one client of it. When a test is over and both are gone, the process must hold
/// what it held before.
class DisplayTest : public ::testing::Test {
 protected:
  static constexpr QSize pictureSize{32, 18};

  void SetUp() override;
  void TearDown() override;

  virtual PrivateDisplay::Output output() const { return {QSize(1280, 800), 60'000}; }
  virtual std::optional<DmabufSupport> dmabuf() const { return std::nullopt; }
  /// What the display announces.
  virtual VideoSinkKind kind();
  /// After the display, which may need it.
  virtual void endHost() {}

  /// Reads the client's events and runs the event loop until `condition` holds.
  [[nodiscard]] bool wait(const std::function<bool()>& condition);
  /// A window of the client, and the main thread's side of it.
  void openWindow();
  TestBuffer& addBuffer(QSize size = pictureSize, QColor color = Qt::red);

  std::unique_ptr<PrivateDisplay> display_;
  std::unique_ptr<TestClient> client_;
  std::vector<std::unique_ptr<TestBuffer>> buffers_;
  std::unique_ptr<TestToplevel> toplevel_;
  EngineWindow* window_ = nullptr;  // the newest that was announced
  int announced_ = 0;

 private:
  Holdings before_;
};

/// Keeps what it is given.
class KeepingSink final : public VideoSink {
 public:
  void commit(std::shared_ptr<Frame> frame) override;

  int commits() const;
  std::shared_ptr<Frame> takeLast();

 private:
  mutable std::mutex mutex_;
  int commits_ = 0;
  std::shared_ptr<Frame> last_;
};

}  // namespace tromelo::testing
