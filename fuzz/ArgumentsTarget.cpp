#include <QVariantMap>

#include "Targets.h"
#include "app/ApplicationService.h"
#include "app/CommandLine.h"
#include "platform/FilePath.h"
#include "platform/FolderVideos.h"

namespace tromelo::fuzz {

namespace {

void keepsItsBytes(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) return;
  const std::string whole = absolutePath(path);
  check(pathFromFileUrl(fileUrlFromPath(path)) == whole);
  check(pathFromStored(storedPath(whole)) == whole);
  check(urlFromArgument(whole) == fileUrlFromPath(whole) || whole.find("://") != std::string::npos);
}

void namesTheSameFile(const QUrl& url) {
  const std::string path = pathFromFileUrl(url);
  if (!path.empty() && path.front() == '/')
    check(pathFromFileUrl(fileUrlFromPath(path)) == absolutePath(path));
  lastPathComponentWithoutExtension(url);
}

}  // namespace

/// An argument a line, which is also a path, and an address as the desktop gives it.
void arguments(Input input) {
  std::vector<std::string> words{"tromelo"};
  QStringList addresses;
  while (!input.isEmpty() && words.size() < 50) {
    const std::string word(input.line());
    keepsItsBytes(word);
    namesTheSameFile(urlFromArgument(word));
    namesTheSameFile(urlFromEncoded(word));
    addresses << QString::fromStdString(word);
    words.push_back(word.c_str());
  }
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  const CommandLine line = CommandLine::parse(pointers);
  check(!line.start || std::isfinite(*line.start));

  ApplicationService service({});
  QList<QUrl> opened;
  QObject::connect(&service, &ApplicationService::filesOpened, &service,
                   [&opened](const QList<QUrl>& files, std::optional<double>) { opened = files; });
  QVariantMap data;
  for (const QString& text : addresses)
    data.insert(text.section(u' ', 0, 0), text.section(u' ', 1));
  service.Open(addresses, data);
  check(opened.size() == addresses.size());
  for (const QUrl& file : opened) namesTheSameFile(file);
  service.Activate(data);
}

}  // namespace tromelo::fuzz
