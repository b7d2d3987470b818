#include "DisplayTest.h"

#include <QDir>
#include <QFile>

#include "support/WaitFor.h"

namespace tromelo::testing {

Holdings Holdings::now() {
  QFile maps("/proc/self/maps");
  EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
  return {QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size(),
          maps.readAll().count("tromelo-test")};
}

VideoSinkKind DisplayTest::kind() {
  VideoSinkKind kind = chooseVideoSink({.asked = "scene", .drawsWithOpenGl = [] { return false; }});
  kind.dmabuf = dmabuf();
  return kind;
}

void DisplayTest::SetUp() {
  before_ = Holdings::now();
  display_ = std::make_unique<PrivateDisplay>();
  ASSERT_EQ(display_->start(output(), kind()), std::nullopt);
  QObject::connect(display_.get(), &PrivateDisplay::windowAdded, display_.get(),
                   [this](EngineWindow* window) {
                     window_ = window;
                     ++announced_;
                   });
  client_ = std::make_unique<TestClient>(display_->socketPath());
  ASSERT_TRUE(client_->display);
}

void DisplayTest::TearDown() {
  toplevel_.reset();
  buffers_.clear();
  client_.reset();
  display_.reset();
  endHost();
  settle();
  EXPECT_EQ(Holdings::now(), before_);
}

bool DisplayTest::wait(const std::function<bool()>& condition) {
  return waitFor([&] {
    if (client_) client_->dispatch();
    return condition();
  });
}

void DisplayTest::openWindow() {
  const int before = announced_;
  toplevel_ = std::make_unique<TestToplevel>(*client_);
  toplevel_->start();
  ASSERT_TRUE(wait([&] { return announced_ > before; }));
}

TestBuffer& DisplayTest::addBuffer(QSize size, QColor color) {
  TestBuffer& buffer =
      *buffers_.emplace_back(std::make_unique<TestBuffer>(TestBuffer::Layout{.size = size}));
  buffer.fill([color](int, int) { return color; });
  buffer.createShm(*client_);
  return buffer;
}

void KeepingSink::commit(std::shared_ptr<Frame> frame) {
  const std::scoped_lock lock(mutex_);
  ++commits_;
  last_ = std::move(frame);
}

int KeepingSink::commits() const {
  const std::scoped_lock lock(mutex_);
  return commits_;
}

std::shared_ptr<Frame> KeepingSink::takeLast() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(last_, nullptr);
}

}  // namespace tromelo::testing
