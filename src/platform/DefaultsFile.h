#pragma once

#include <QJsonObject>
#include <QString>

namespace tromelo {

/// What came of reading or writing the file of stored values.
struct DefaultsResult {
  QJsonObject values;
  QString error = {};   // one sentence for the person; empty when all went well
  bool failed = false;  // the file is as it was
};

/// Reads the values. A file that holds something else is set aside under another name; a file that
/// isn't there holds none. Any thread.
DefaultsResult readDefaults(const QString& path);

/// Puts `changes` over what is in the file now, atomically; gives everything that it then holds.
/// Two processes that do so lose nothing of each other's. May wait for the disk. Any thread.
DefaultsResult mergeDefaults(const QString& path, const QJsonObject& changes);

}  // namespace tromelo
