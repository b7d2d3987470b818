#pragma once

#include <QByteArray>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace tromelo::testing {

/// With the folders that it lies in.
inline void writeFile(const std::string& path, const std::string& content = {}) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path) << content;
}
inline void writeFile(const QString& path, const std::string& content = {}) {
  writeFile(path.toStdString(), content);
}

/// Empty where there is none.
inline QByteArray readFile(const QString& path) {
  std::ostringstream content;
  content << std::ifstream(path.toStdString()).rdbuf();
  return QByteArray::fromStdString(content.str());
}

}  // namespace tromelo::testing
