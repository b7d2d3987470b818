#include "display/ColorParameters.h"

#include <gtest/gtest.h>

#include "color-management-v1-client-protocol.h"

namespace tromelo {

// A host ends the connection for each of these, and the program with it.
TEST(ColorParametersTest, FindsTheFaultsThatAHostEndsConnectionsFor) {
  const HostColorSupport support{
      .intents = {},
      .features = {WP_COLOR_MANAGER_V1_FEATURE_PARAMETRIC,
                   WP_COLOR_MANAGER_V1_FEATURE_SET_MASTERING_DISPLAY_PRIMARIES},
      .transferFunctions = {WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_ST2084_PQ},
      .primaries = {WP_COLOR_MANAGER_V1_PRIMARIES_BT2020},
  };
  const auto with = [](auto change) {
    ColorParameters parameters;
    parameters.transfer = WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_ST2084_PQ;
    parameters.namedPrimaries = WP_COLOR_MANAGER_V1_PRIMARIES_BT2020;
    parameters.masteringLuminance = {50, 1000};
    parameters.maxCll = 1000;
    parameters.maxFall = 400;
    change(parameters);
    return parameters;
  };
  using P = ColorParameters;
  EXPECT_EQ(with([](P&) {}).faultOf(support), std::nullopt);
  EXPECT_EQ(with([](P&) {}).faultOfWhole(), std::nullopt);
  EXPECT_EQ(with([](P& p) { p.maxCll = p.maxFall = 0; }).faultOfWhole(), std::nullopt);
  for (const P& faulty : {
           with([](P& p) { p.transfer = WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_HLG; }),
           with([](P& p) { p.namedPrimaries = WP_COLOR_MANAGER_V1_PRIMARIES_SRGB; }),
           with([](P& p) { p.power = 22000; }),
           with([](P& p) { p.primaries = P::Primaries{}; }),
           with([](P& p) { p.luminances = {2000, 80, 80}; }),
           with([](P& p) { p.masteringLuminance = {10'000, 1}; }),
       })
    EXPECT_TRUE(faulty.faultOf(support));
  for (const P& faulty : {
           with([](P& p) { p.transfer.reset(); }),
           with([](P& p) { p.namedPrimaries.reset(); }),
           with([](P& p) { p.maxCll = 1001; }),
           with([](P& p) { p.maxFall = 1001, p.maxCll.reset(); }),
           with([](P& p) { p.maxCll = 300; }),
       })
    EXPECT_TRUE(faulty.faultOfWhole());
}

}  // namespace tromelo
