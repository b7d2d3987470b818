// On a host that manages colour. libwayland writes down what the program says to it.
#include <QJsonObject>
#include <QRegularExpression>

#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

class Hdr : public EndToEnd {
 protected:
  Hdr() { player.environment.insert(QStringLiteral("WAYLAND_DEBUG"), QStringLiteral("client")); }

  /// A driver that tells the engine's display of no colours has none to pass on.
  bool driverKnowsColours() const { return player.errors().contains("create_parametric_creator"); }
  /// How often the host was sent this request, by us or by Qt.
  int sent(const char* request) const {
    const QRegularExpression line(QStringLiteral("\\{(host|Default Queue)\\}  -> ") +
                                  QLatin1String(request));
    const QString errors = QString::fromUtf8(player.errors());
    auto matches = line.globalMatch(errors);
    int count = 0;
    for (; matches.hasNext(); matches.next()) ++count;
    return count;
  }
  bool waitForOutput(const char* beginning) {
    return player.waitUntil([&] {
      return player.said(QStringLiteral("output")).startsWith(QString::fromUtf8(beginning));
    });
  }
};

TEST_F(Hdr, ReachesTheHostAsTheFilmHasIt) {
  player.start({clip("hdr10.mkv")});
  const bool isHdr10 = waitForOutput("HDR · PQ · BT.2020");
  if (!isHdr10 && !driverKnowsColours())
    GTEST_SKIP() << "the Vulkan driver tells a Wayland host of no colours; Mesa 25.1 or newer does";
  ASSERT_TRUE(isHdr10);
  for (const char* request :
       {"wp_image_description_creator_params_v1#\\d+\\.set_primaries_named\\(6\\)",
        "wp_image_description_creator_params_v1#\\d+\\.set_tf_named\\(11\\)",
        "wp_image_description_creator_params_v1#\\d+\\.set_mastering_luminance",
        "wp_color_management_surface_v1#\\d+\\.set_image_description"})
    EXPECT_TRUE(player.waitUntil([&] { return sent(request) > 0; })) << request;
  EngineProbe engine = probe();
  for (const auto& [name, isHdr] : {std::pair{"hlg.mkv", true}, {"bt709.mkv", false}}) {
    engine.command({QStringLiteral("loadfile"), clip(name)});
    EXPECT_TRUE(waitFor([&] {
      const QJsonObject source = engine.get(QStringLiteral("video-params")).toObject();
      const QJsonObject target = engine.get(QStringLiteral("video-target-params")).toObject();
      const bool isNext = source[QStringLiteral("primaries")] ==
                          (isHdr ? QStringLiteral("bt.2020") : QStringLiteral("bt.709"));
      return isNext && (target[QStringLiteral("gamma")] == QStringLiteral("pq")) == isHdr;
    })) << name;
  }
  // The engine's picture has colours of its own. The interface is whatever the host takes it for.
  EXPECT_EQ(sent("wp_color_manager_v1#\\d+\\.get_surface\\("), 1);
}

}  // namespace tromelo::testing
