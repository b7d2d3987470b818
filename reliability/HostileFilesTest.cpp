#include <QDBusMessage>
#include <QElapsedTimer>

#include "ReliabilityTest.h"
#include "platform/FilePath.h"
#include "support/BusDaemon.h"
#include "support/HostileFiles.h"

namespace tromelo::testing {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::chrono::seconds kPatience(30);
#else
constexpr std::chrono::seconds kPatience(10);
#endif

class HostileFilesTest : public ReliabilityTest {
 protected:
  void SetUp() override {
    ReliabilityTest::SetUp();
    player.environment.insert("DBUS_SESSION_BUS_ADDRESS", bus_.address());
  }

  static QString address(const std::string& path) {
    return fileUrlFromPath(path).toString(QUrl::FullyEncoded);
  }
  /// As the desktop does.
  void open(const std::string& path) {
    auto call = QDBusMessage::createMethodCall("org.tromelo.Tromelo", "/org/tromelo/Tromelo",
                                               "org.freedesktop.Application", "Open");
    call << QStringList{address(path)} << QVariantMap();
    desktop_.send(call);
  }

  /// What the file that was opened last has come to; empty where it has come to nothing yet. `name`
  /// is in its title and in its sentence.
  std::string outcome(const QString& name) const {
    const QString sentence = player.said("error");
    if (!sentence.isEmpty() && sentence.contains(name)) return sentence.toStdString();
    if (!player.said("title").contains(name)) return {};
    const QString status = player.said("status");
    const bool plays = status == "Playing" || status == "Paused";
    if (plays && player.isRevealed()) return "a picture";
    // It pauses at its end, which may be at once.
    if (status == "Paused" || (plays && player.said("position").toDouble() > 0)) return "sound";
    return {};
  }

  BusDaemon bus_;
  QDBusConnection desktop_ = bus_.connect("desktop");
};

TEST_F(HostileFilesTest, EachEndsWithAPictureOrASentence) {
  const int count = int(number("TROMELO_FILES", 200));
  HostileFiles files(player.homePath().toStdString() + "/hostile", seed);
  ASSERT_TRUE(starts());
  std::map<std::string, int> outcomes;
  std::chrono::milliseconds longest{};
  for (int i = 0; i < count; ++i) {
    const auto file = files.make(i);
    const bool isNamed = file.what.starts_with("name");
    if (isNamed) {  // by the command line, since no title tells of it
      ASSERT_EQ(player.quit(), 0);
      const bool isText = QByteArrayView(file.path).isValidUtf8();
      ASSERT_TRUE(starts({isText ? QString::fromStdString(file.path) : address(file.path)}));
    } else {
      open(file.path);
    }
    QElapsedTimer timer;
    timer.start();
    std::string result;
    const QString name = isNamed ? QString() : QString("hostile-%1").arg(i);
    const bool ended = waitFor(
        [&] { return !(result = outcome(name)).empty() || !player.isRunning(); }, kPatience);
    longest = std::max(longest, std::chrono::milliseconds(timer.elapsed()));
    ASSERT_TRUE(player.isRunning()) << i << ' ' << file.what << player.errors().toStdString();
    EXPECT_TRUE(ended) << i << ' ' << file.what << ' ' << player.said("status").toStdString();
    const auto reason = result.rfind(": ");
    ++outcomes[reason == std::string::npos ? result : result.substr(reason + 2)];
  }
  std::cout << count << " files; the longest took " << longest.count() << " ms\n";
  // Not every name is one that Qt's own clearing up can spell.
  std::filesystem::remove_all(player.homePath().toStdString() + "/hostile");
  for (const auto& [outcome, times] : outcomes)
    std::cout << "  " << times << " × " << outcome << '\n';
}

}  // namespace
}  // namespace tromelo::testing
