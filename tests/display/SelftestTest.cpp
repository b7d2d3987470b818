#include <QStringList>

#include "DisplayTest.h"
#include "display/DisplaySelftest.h"
#include "display/SelftestLines.h"

namespace tromelo::testing {
namespace {

/// The lines that begin with `name`.
QStringList values(const QStringList& lines, const QString& name) {
  QStringList found;
  for (const QString& line : lines)
    if (line.startsWith(name + ": ")) found += line.sliced(name.size() + 2);
  return found;
}

TEST(SelftestTest, SaysWhatThereIsAndWhatTheEngineDrew) {
  std::unique_ptr<TestClient> client;
  std::unique_ptr<TestToplevel> toplevel;
  std::unique_ptr<TestBuffer> buffer;
  const SelftestEngine engine{
      .start =
          [&](const QByteArray& socketPath, const std::string&) {
            client = std::make_unique<TestClient>(socketPath);
            toplevel = std::make_unique<TestToplevel>(*client);
            toplevel->start();
            buffer = plainBuffer(*client, QSize(32, 18));
            toplevel->commit(buffer.get());
          },
      .hardwareDecoder = [] { return QStringLiteral("vaapi"); },
      .stop =
          [&] {
            toplevel.reset();
            buffer.reset();
            client.reset();
          },
  };
  const QStringList lines = displaySelftest({}, engine).split('\n', Qt::SkipEmptyParts);
  for (const QString& line : lines) EXPECT_TRUE(line.contains(": ")) << line.toStdString();
  EXPECT_EQ(values(lines, "engine's frame"), QStringList("32x18, XR24 in shared memory"));
  EXPECT_EQ(values(lines, "import"), QStringList("not needed, the frame's pixels are copied"));
  EXPECT_EQ(values(lines, "hardware decoder"), QStringList("vaapi"));
  EXPECT_TRUE(values(lines, "private display").value(0).contains("xdg_wm_base 6"));
  EXPECT_EQ(values(lines, "OpenGL").size(), 1);
  EXPECT_EQ(values(lines, "EGL device").size(), 1);  // so the scene draws with EGL
  EXPECT_FALSE(lines.filter("Vulkan").isEmpty());
  EXPECT_EQ(values(lines, "announced screen").value(0),
            values(lines, "host screen").value(0).section(", scale", 0, 0));
}

}  // namespace
}  // namespace tromelo::testing
