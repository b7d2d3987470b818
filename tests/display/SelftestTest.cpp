#include "DisplayTest.h"
#include "display/DisplaySelftest.h"

namespace tromelo::testing {

TEST(SelftestTest, SaysWhatThereIsAndWhatTheEngineDrew) {
  std::unique_ptr<TestClient> client;
  std::unique_ptr<TestToplevel> toplevel;
  std::unique_ptr<TestBuffer> buffer;
  const auto start = [&](const QByteArray& socketPath, const std::string&) {
    client = std::make_unique<TestClient>(socketPath);
    toplevel = std::make_unique<TestToplevel>(*client);
    toplevel->start();
    buffer = std::make_unique<TestBuffer>(TestBuffer::Layout{.size = {32, 18}});
    buffer->createShm(*client);
    toplevel->commit(buffer.get());
  };
  const auto stop = [&] {
    toplevel.reset();
    buffer.reset();
    client.reset();
  };
  const QString report = displaySelftest({}, {start, [] { return QString("vaapi"); }, stop});
  for (const char* part :
       {"host screen: ", "\nOpenGL: ", "\nEGL device: ", "\nVulkan", "xdg_wm_base 6",
        "\nannounced screen: ", "\npicture: ", "\nsink: ",
        "\nengine's frame: 32x18, XR24 in shared memory, no colours told\n",
        "\nimport: not needed, the frame's pixels are copied\n", "\nhardware decoder: vaapi\n"})
    EXPECT_TRUE(report.contains(part)) << part << "isn't in\n" << report.toStdString();
}

}  // namespace tromelo::testing
