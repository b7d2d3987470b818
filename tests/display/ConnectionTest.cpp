// Who may connect, and where.
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "DisplayTest.h"

namespace tromelo::testing {
namespace {

using ConnectionTest = DisplayTest;

/// In a child process: 0 when the display hangs up on it, 1 when it is let in, 2 when it can't even
/// try. Only what is safe after a fork.
int knock(const sockaddr_un& address) {
  const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
  if (connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) return 2;
  // wl_display.get_registry, which a display answers at once.
  const std::uint32_t request[] = {1, 12u << 16 | 1, 2};
  [[maybe_unused]] const ssize_t sent = send(fd, request, sizeof request, MSG_NOSIGNAL);
  pollfd readable{fd, POLLIN, 0};
  if (poll(&readable, 1, 30'000) <= 0) return 2;
  char byte = 0;
  return recv(fd, &byte, 1, 0) == 1 ? 1 : 0;
}

int knockFromAnotherProcess(const QByteArray& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
  const pid_t child = fork();
  if (child == 0) _exit(knock(address));
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(ConnectionTest, OtherProcessesAreRefused) {
  EXPECT_EQ(knockFromAnotherProcess(display_->socketPath()), 0);
  EXPECT_TRUE(client_->roundtrip());
}

TEST_F(ConnectionTest, TwoDisplaysLiveSideBySide) {
  PrivateDisplay other;
  ASSERT_EQ(other.start({QSize(800, 600), 50'000}, chooseVideoSink({[] { return false; }})),
            std::nullopt);
  EXPECT_NE(other.socketPath(), display_->socketPath());
  TestClient otherClient(other.socketPath());
  ASSERT_TRUE(otherClient.isConnected());
  TestToplevel toplevel(otherClient);
  toplevel.start();
  EXPECT_TRUE(wait([&] { return !other.windows().isEmpty(); }));
  EXPECT_TRUE(display_->windows().isEmpty());
}

TEST_F(ConnectionTest, ManyClientsComeAndGo) {
  for (int i = 0; i < 50; ++i) {
    TestClient visitor(display_->socketPath());
    TestToplevel toplevel(visitor);
    toplevel.start();
    EXPECT_TRUE(toplevel.configure());
  }
  EXPECT_TRUE(wait([&] { return added_.size() == 50 && display_->windows().isEmpty(); }));
}

}  // namespace
}  // namespace tromelo::testing
