#include "platform/FilePath.h"

#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace tromelo {

namespace {

const QString kFileScheme = QStringLiteral("file://");

/// "file:///a" and "smb://host/a" are URLs; a path may have colons too.
bool isUrl(std::string_view text) {
  const auto isOfScheme = [](unsigned char byte) {
    return std::isalnum(byte) || byte == '+' || byte == '-' || byte == '.';
  };
  const auto scheme = text.substr(0, text.find("://"));
  return scheme.size() < text.size() && !scheme.empty() && std::ranges::all_of(scheme, isOfScheme);
}

}  // namespace

std::string absolutePath(std::string_view pathBytes) {
  std::error_code error;
  // lexically_normal is not wanted: ".." behind a symbolic link would name another file.
  std::filesystem::path plain;
  for (const auto& part : std::filesystem::absolute(std::string(pathBytes), error))
    if (part != ".") plain /= part;
  return plain.string();
}

QUrl fileUrlFromPath(std::string_view pathBytes) {
  if (pathBytes.empty()) return {};
  const QByteArray encoded =
      QByteArray::fromStdString(absolutePath(pathBytes)).toPercentEncoding("/");
  return QUrl::fromEncoded("file://" + encoded, QUrl::StrictMode);
}

std::string pathFromFileUrl(const QUrl& url) {
  if (!url.isLocalFile()) return {};
  return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8()).toStdString();
}

QUrl urlFromEncoded(QByteArrayView text) {
  QByteArray encoded;
  for (const char byte : text) {
    if (static_cast<unsigned char>(byte) < 0x80)
      encoded += byte;
    else  // decoded, those that aren't UTF-8 would be lost
      encoded += '%' + QByteArray(1, byte).toHex().toUpper();
  }
  const QUrl url = QUrl::fromEncoded(encoded);
  return url.isLocalFile() ? fileUrlFromPath(pathFromFileUrl(url)) : url;
}

QUrl urlFromArgument(std::string_view argument, std::string_view folder) {
  if (isUrl(argument)) return urlFromEncoded(argument);
  return fileUrlFromPath((std::filesystem::path(folder) / argument).string());
}

QString storedPath(std::string_view pathBytes) {
  const QString text = QString::fromUtf8(pathBytes);
  if (text.toStdString() == pathBytes && !text.startsWith(kFileScheme)) return text;
  return QString::fromLatin1(fileUrlFromPath(pathBytes).toEncoded());
}

std::string pathFromStored(const QString& text) {
  if (!text.startsWith(kFileScheme)) return text.toStdString();
  return pathFromFileUrl(QUrl(text, QUrl::StrictMode));
}

QString lastPathComponent(const QUrl& url) {
  std::string path = pathFromFileUrl(url);
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  const auto slash = path.rfind('/');
  return QString::fromUtf8(slash == std::string::npos ? path : path.substr(slash + 1));
}

QString lastPathComponentWithoutExtension(const QUrl& url) {
  return withoutLastPathExtension(lastPathComponent(url));
}

QString withoutLastPathExtension(const QString& name) {
  const auto dot = name.lastIndexOf(u'.');
  const auto slash = name.lastIndexOf(u'/');
  const bool hasExtension =
      dot > slash + 1 && dot + 1 < name.size() && !QStringView(name).sliced(dot + 1).contains(u' ');
  return hasExtension ? name.first(dot) : name;
}

bool fileExists(std::string_view pathBytes) {
  return ::access(std::string(pathBytes).c_str(), F_OK) == 0;
}

}  // namespace tromelo
