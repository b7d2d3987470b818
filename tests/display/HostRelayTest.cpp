#include "display/HostRelay.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>
#include <span>
#include <thread>
#include <utility>

#include "display/SocketBytes.h"

namespace tromelo::testing {

using Bytes = std::vector<std::byte>;

/// As Wayland sends it.
Bytes message(std::uint32_t object, std::uint32_t opcode, std::vector<std::uint32_t> words = {}) {
  const auto size = std::uint32_t(8 + 4 * words.size());
  words.insert(words.begin(), {object, size << 16 | opcode});
  const auto bytes = std::as_bytes(std::span(words));
  return {bytes.begin(), bytes.end()};
}
Bytes deleteId(std::uint32_t id) { return message(1, 1, {id}); }

Bytes operator+(Bytes left, const Bytes& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

class HostRelayTest : public ::testing::Test {
 protected:
  HostRelayTest() {
    std::array<int, 2> ends{};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    host_.reset(ends[0]);
    relay_ = HostRelay::between(UniqueFd(ends[1]));
    client_ = relay_->takeClientEnd();
    relay_->deliverTo([this](const auto& task) {
      task();
      const std::scoped_lock lock(mutex_);
      ++deliveries_;
      delivered_.notify_all();
    });
  }

  void waitForDeliveries(int number) {
    std::unique_lock lock(mutex_);
    delivered_.wait(lock, [&] { return deliveries_ >= number; });
  }
  void hostSays(const Bytes& bytes) {
    ASSERT_EQ(write(host_.get(), bytes.data(), bytes.size()), ssize_t(bytes.size()));
  }
  bool isReadable(const UniqueFd& end) {
    pollfd wait{end.get(), POLLIN, 0};
    return poll(&wait, 1, 0) > 0;
  }
  /// Until `size` bytes have come, or the end.
  static Bytes hear(const UniqueFd& end, std::size_t size) {
    SocketBytes heard;
    pollfd wait{end.get(), POLLIN, 0};
    while (heard.bytes.size() < size && poll(&wait, 1, 30'000) > 0 && heard.receive(end.get())) {
    }
    heard.bytes.resize(std::min(heard.bytes.size(), size));
    return heard.bytes;
  }
  static bool hasEnded(const UniqueFd& end) {
    pollfd wait{end.get(), POLLIN, 0};
    SocketBytes rest;
    while (poll(&wait, 1, 30'000) > 0)
      if (!rest.receive(end.get())) return true;
    return false;
  }

  UniqueFd host_, client_;
  std::unique_ptr<HostRelay> relay_;
  std::mutex mutex_;
  std::condition_variable delivered_;
  int deliveries_ = 0;
};

TEST_F(HostRelayTest, BytesAndDescriptorsArriveAsTheyWereSentHoweverMuchThatIs) {
  for (const auto& [from, to] : {std::pair(&client_, &host_), std::pair(&host_, &client_)}) {
    constexpr std::uint64_t kDescriptors = 100;  // more than one message takes
    SocketBytes sent, received;
    for (std::uint32_t i = 0; i < 20'000; ++i)
      sent.bytes = std::move(sent.bytes) + message(2 + i, i % 9, std::vector(i % 60, i));
    for (std::uint64_t i = 1; i <= kDescriptors; ++i)
      sent.descriptors.emplace_back(eventfd(unsigned(i), EFD_CLOEXEC));
    const Bytes whole = sent.bytes;
    // Far more than sockets hold, to somebody who doesn't listen at first.
    while (sent.send(from->get()) && !isReadable(*to)) std::this_thread::yield();
    while (received.bytes.size() < whole.size()) {
      ASSERT_TRUE(sent.send(from->get()) && received.receive(to->get()));
      std::this_thread::yield();
    }
    EXPECT_EQ(received.bytes, whole);
    ASSERT_EQ(received.descriptors.size(), kDescriptors);
    for (std::uint64_t i = 1, number = 0; i <= kDescriptors; ++i) {
      ASSERT_EQ(read(received.descriptors[i - 1].get(), &number, sizeof number), 8);
      EXPECT_EQ(number, i);
    }
  }
}

TEST_F(HostRelayTest, WhatIsDivertedDoesNotWakeTheClient) {
  std::vector<std::vector<std::uint32_t>> told;
  const auto handler = std::make_shared<const HostRelay::Handler>([&](const auto& event) {
    told.push_back({event.object, event.opcode});
    told.back().insert(told.back().end(), event.arguments.begin(), event.arguments.end());
  });
  for (const std::uint32_t object : {5U, 7U}) relay_->divert(object, handler);
  relay_->divert(8, std::make_shared<const HostRelay::Handler>());  // is gone at once
  hostSays(message(5, 2, {11, 12}) + deleteId(5));
  waitForDeliveries(1);
  hostSays(message(7, 0));
  waitForDeliveries(2);
  EXPECT_FALSE(isReadable(client_));
  EXPECT_EQ(told, (std::vector<std::vector<std::uint32_t>>{{5, 2, 11, 12}, {7, 0}}));
  const Bytes other = message(8, 3, {1, 2, 3});
  // The name was deleted, and may be another object's.
  const Bytes reused = message(5, 0);
  hostSays(Bytes(other.begin(), other.begin() + 6));
  hostSays(Bytes(other.begin() + 6, other.end()) + reused);
  const Bytes expected = deleteId(5) + other + reused;
  EXPECT_EQ(hear(client_, expected.size()), expected);
}

TEST_F(HostRelayTest, NamesThatAreFreeAgainAreToldBeforeThereAreTooMany) {
  const auto handler = std::make_shared<const HostRelay::Handler>();
  for (std::uint32_t object = 2; object < 2000; ++object) {
    relay_->divert(object, handler);
    hostSays(deleteId(object));
  }
  EXPECT_EQ(hear(client_, 24), deleteId(2) + deleteId(3));
}

TEST_F(HostRelayTest, WhenOneSideGoesTheOtherHearsTheRestAndThenTheEnd) {
  hostSays(message(3, 0));
  host_.reset();
  EXPECT_EQ(hear(client_, 8), message(3, 0));
  EXPECT_TRUE(hasEnded(client_));
  EXPECT_LT(send(client_.get(), "", 1, MSG_NOSIGNAL), 0);
}

TEST_F(HostRelayTest, AClientThatGoesWaitsForNoHost) {
  SocketBytes sent;
  sent.bytes.resize(4'000'000);
  pollfd wait{client_.get(), POLLOUT, 0};
  while (poll(&wait, 1, 200) > 0) sent.send(client_.get());
  client_.reset();
  relay_.reset();
  EXPECT_FALSE(hear(host_, 1).empty());
  EXPECT_TRUE(hasEnded(host_));
}

}  // namespace tromelo::testing
