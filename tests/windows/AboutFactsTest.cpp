#include "windows/AboutFacts.h"

#include <gtest/gtest.h>
#include <mpv/client.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>

#include "engine/MpvEngine.h"
#include "support/FakeMpv.h"
#include "support/WaitFor.h"
#include "support/Warnings.h"
#include "windows/ProgramWindow.h"

namespace tromelo::testing {

TEST(AboutFactsTest, SaysWhatIsKnownAndAddsWhatIsFound) {
  FakeMpv mpv;
  MpvEngine engine(mpv.api());
  const QTemporaryDir directory;
  engine.initialize(directory.path());
  AboutFacts facts(engine, "drawn", [] { return QStringList{"Vulkan device: fast"}; });
  EXPECT_TRUE(facts.details().contains("libmpv: client API 2.5\n"));
  EXPECT_FALSE(facts.details().contains("libplacebo"));
  EXPECT_TRUE(waitFor([&] { return facts.details().contains("\nVulkan device: fast\n"); }));

  const char* version = "mpv 0.40";
  mpv_event_property property{"mpv-version", MPV_FORMAT_OSD_STRING, &version};
  for (const auto& words : mpv.requests) {
    if (words[1] == "mpv-version")
      mpv.queue(MPV_EVENT_GET_PROPERTY_REPLY, &property, std::stoull(words[2]));
    if (words[1] == "libplacebo-version")
      mpv.queue(MPV_EVENT_GET_PROPERTY_REPLY, nullptr, std::stoull(words[2]),
                MPV_ERROR_PROPERTY_NOT_FOUND);
  }
  EXPECT_EQ(mpv.queuedEvents(), 2U);
  engine.drainEvents();
  EXPECT_TRUE(facts.details().contains("libmpv: client API 2.5, mpv 0.40\n"));

  allowWarning("This plugin does not support");
  QQmlEngine views;
  ProgramWindow shell(views, "AboutWindow", {{"facts", QVariant::fromValue(&facts)}});
  QQuickWindow& window = shell.show();
  ASSERT_TRUE(waitFor([&] { return window.isActive(); }));
  QTest::keyClick(&window, Qt::Key_Return);  // on the button that copies
  const QString copied = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(copied.startsWith("Tromelo ") && copied.contains(facts.details()));
  QTest::keyClick(&window, Qt::Key_Escape);
  settle();
  EXPECT_FALSE(shell.isOpen());
}

}  // namespace tromelo::testing
