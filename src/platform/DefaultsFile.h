#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <map>
#include <utility>

namespace tromelo {

/// What came of reading or writing the file of stored values.
struct DefaultsResult {
  QJsonObject values;
  QString error = {};   // one sentence for the person; empty when all went well
  bool failed = false;  // the file is as it was
};

/// What is to be stored under a key, or in one field of the dictionary there.
struct DefaultsPath {
  QString key;
  QString field = {};  // empty for the whole value

  friend auto operator<=>(const DefaultsPath&, const DefaultsPath&) = default;
};
struct DefaultsChange {
  QJsonValue value;
  bool fills = false;  // only where there is none yet
};
using DefaultsChanges = std::map<DefaultsPath, DefaultsChange>;

/// Reads the values. A file that holds something else is set aside under another name; a file that
/// isn't there holds none. Any thread.
DefaultsResult readDefaults(const QString& path);

/// Puts `changes` over what is in the file now, atomically; gives everything that it then holds.
/// Two processes that do so lose nothing of each other's. May wait for the disk. Any thread.
DefaultsResult mergeDefaults(const QString& path, const DefaultsChanges& changes);

}  // namespace tromelo
