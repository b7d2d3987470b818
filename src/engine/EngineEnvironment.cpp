#include "engine/EngineEnvironment.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <clocale>

#include "platform/HostEnvironment.h"

namespace tromelo {

QString shippedVulkanManifest() {
  const QString name = QStringLiteral("tromelo/vulkan/icd.d/tromelo_icd.json");
  // An unpacked or relocated installation has its data next to the program.
  const QFileInfo beside(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/") +
                         name);
  if (beside.isFile()) return beside.canonicalFilePath();
  return QStandardPaths::locate(QStandardPaths::GenericDataLocation, name);
}

void prepareEngineEnvironment(const QString& vulkanManifest) {
  if (!vulkanManifest.isEmpty() && !qEnvironmentVariableIsSet("VK_DRIVER_FILES")) {
    HostEnvironment::set("VK_DRIVER_FILES", QFile::encodeName(vulkanManifest));
  }
  HostEnvironment::set("MPVBUNDLE", "true");
  // The application object has taken over the person's locale by now; libmpv would read "1,5" as 1
  // and refuses to be created.
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace tromelo
