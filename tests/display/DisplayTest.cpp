#include "DisplayTest.h"

#include <QDir>
#include <QFile>

#include "support/WaitFor.h"

namespace tromelo::testing {

Holdings Holdings::now() {
  Holdings holdings;
  holdings.descriptors =
      int(QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size());
  QFile maps("/proc/self/maps");
  if (maps.open(QIODevice::ReadOnly)) holdings.mappings = int(maps.readAll().count("tromelo-test"));
  return holdings;
}

void DisplayTest::SetUp() {
  before_ = Holdings::now();
  display_ = std::make_unique<PrivateDisplay>();
  VideoSinkKind sinkKind = chooseVideoSink({[] { return false; }});
  sinkKind.dmabuf = dmabuf();
  ASSERT_EQ(display_->start(output(), sinkKind), std::nullopt);
  QObject::connect(display_.get(), &PrivateDisplay::windowAdded, display_.get(),
                   [this](EngineWindow* window) { added_.append(window); });
  connectClient();
}

void DisplayTest::TearDown() {
  client_.reset();
  display_.reset();
  settle();
  const Holdings after = Holdings::now();
  EXPECT_EQ(after.descriptors, before_.descriptors);
  EXPECT_EQ(after.mappings, before_.mappings);
}

void DisplayTest::connectClient() {
  client_ = std::make_unique<TestClient>(display_->socketPath());
  ASSERT_TRUE(client_->isConnected());
}

bool DisplayTest::wait(const std::function<bool()>& condition) {
  return waitFor([&] {
    if (client_) client_->dispatch();
    return condition();
  });
}

EngineWindow* DisplayTest::announcedWindow() {
  if (!wait([this] { return !added_.isEmpty(); })) return nullptr;
  return added_.last();
}

void KeepingSink::commit(std::shared_ptr<Frame> frame) {
  const std::scoped_lock lock(mutex_);
  ++commits_;
  last_ = std::move(frame);
}

std::size_t KeepingSink::commits() const {
  const std::scoped_lock lock(mutex_);
  return commits_;
}

std::shared_ptr<Frame> KeepingSink::takeLast() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(last_, nullptr);
}

}  // namespace tromelo::testing
