#include <QTemporaryDir>

#include "Targets.h"
#include "app/DefaultsMigration.h"
#include "platform/DefaultsFile.h"
#include "platform/FilePath.h"
#include "playback/HardwareDecoding.h"
#include "playback/RecentFiles.h"
#include "settings/PlayerPreferences.h"
#include "support/Files.h"

namespace tromelo::fuzz {

namespace {

QString fileOf(const QTemporaryDir& folder, const char* name, std::string_view content) {
  QString path = folder.filePath(name);
  if (!content.empty()) testing::writeFile(path, std::string(content));
  return path;
}

void readAsTheProgramDoes(const UserDefaults& defaults) {
  const PlayerPreferences preferences =
      preferencesOf(defaults.value(QStringLiteral("playerSettings")).toObject());
  check(preferencesOf(storedPreferences(preferences)) == preferences);
  for (const EngineProperty& property : engineProperties(preferences)) {
    check(property.value.find("nan") == std::string::npos);
    check(property.name != "sub-font-size" || property.value.find("inf") == std::string::npos);
  }
  const RecentFiles recents(defaults.value(QStringLiteral("recentFiles")));
  check(recents.unknown().size() <= RecentFiles::kMost);
  check(RecentFiles(recents.stored()).unknown() == recents.unknown());
  storedSoftwareDecodePaths(defaults);
}

}  // namespace

/// Our file, and two of the former edition's, with a line of "=" between each two.
void settings(Input input) {
  static const QTemporaryDir folder;
  constexpr std::string_view kBetween = "\n=\n";
  const QString path = fileOf(folder, "defaults.json", input.until(kBetween));
  {
    const std::vector former{
        UserDefaults(fileOf(folder, "named/defaults.json", input.until(kBetween))),
        UserDefaults(fileOf(folder, "plain/defaults.json", input.rest()))};
    UserDefaults defaults(path);
    migrateDefaultsFromOrvo(defaults, former);
    readAsTheProgramDoes(defaults);
    defaults.set(QStringLiteral("recentFiles"),
                 RecentFiles(defaults.value("recentFiles")).stored());
    store(storedSoftwareDecodePaths(defaults), defaults);
    defaults.flush();
    const DefaultsResult written = readDefaults(path);
    check(!written.failed && written.error.isEmpty());
    check(written.values.contains("migratedFromOrvo"));
    readAsTheProgramDoes(UserDefaults(path));
  }
  for (const char* left : {"", "named", "plain"}) {
    QDir below(folder.filePath(left));
    for (const QString& name : below.entryList(QDir::Files | QDir::Hidden)) below.remove(name);
  }
}

}  // namespace tromelo::fuzz
