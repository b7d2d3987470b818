#include "platform/HardwareDecoders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(HardwareDecodersTest, AreSoughtWhereTheirDevicesAre) {
  for (const auto& [device, mayDecode] : Table<const char*, bool>{{"null", false},
                                                                  {"snd/controlC0", false},
                                                                  {"dri/renderD128", true},
                                                                  {"nvidiactl", true},
                                                                  {"dxg", true},
                                                                  {"video10", true}}) {
    const QTemporaryDir devices;
    QDir(devices.path()).mkpath("dri");
    QDir(devices.path()).mkpath("snd");
    writeFile(devices.filePath(device), "");
    EXPECT_EQ(mayDecodeInHardware(devices.path()), mayDecode) << device;
  }
}

}  // namespace tromelo::testing
