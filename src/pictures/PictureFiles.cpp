#include "pictures/PictureFiles.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <chrono>
#include <vector>

namespace tromelo {

namespace {

constexpr const char* kFormat = "JPEG";
constexpr int kQuality = 85;
constexpr std::chrono::milliseconds kAtTheEnd(500);
constexpr double kAfterwards =
    0.8;  // of the limit, so that the folder isn't looked through each time

/// For its owner only: the names tell which films were seen.
bool makeFolder(const QString& path) {
  if (QDir(path).exists()) return true;
  const QFileInfo parent(QFileInfo(path).path());
  return (parent.exists() || QDir().mkpath(parent.filePath())) &&
         QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

std::vector<QFileInfo> filesIn(const QString& folder) {
  std::vector<QFileInfo> files;
  QDirIterator each(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                    QDirIterator::Subdirectories);
  while (each.hasNext()) files.push_back(each.nextFileInfo());
  return files;
}

}  // namespace

QString PictureFiles::pathOf(const QString& name) const {
  return folder_ + u'/' + name + QStringLiteral(".jpg");
}

QImage PictureFiles::read(const QString& name) {
  const std::scoped_lock lock(mutex_);
  QFile file(pathOf(name));
  if (isClosed_ || !file.open(QFile::ReadOnly)) return {};
  const QByteArray content = file.readAll();
  // A damaged one would otherwise be told of on standard error.
  const bool isWhole = content.startsWith("\xff\xd8") && content.endsWith("\xff\xd9");
  const auto picture = isWhole ? QImage::fromData(content, kFormat) : QImage();
  if (picture.isNull()) {
    file.remove();
    return {};
  }
  file.setFileTime(QDateTime::currentDateTimeUtc(), QFile::FileModificationTime);
  return picture.convertToFormat(QImage::Format_RGB32);
}

void PictureFiles::write(const QString& name, const QImage& picture) {
  const std::scoped_lock lock(mutex_);
  const QString path = pathOf(name);
  if (isClosed_ || !makeFolder(folder_) || !makeFolder(QFileInfo(path).path())) return;
  QSaveFile file(path);
  if (!file.open(QFile::WriteOnly) || !picture.save(&file, kFormat, kQuality) || !file.commit())
    return;
  size_ += QFileInfo(path).size();
  if (!isCounted_ || size_ > limit_) makeRoom();
}

void PictureFiles::removeAll() {
  const std::scoped_lock lock(mutex_);
  QDir(folder_).removeRecursively();
  size_ = 0;
}

void PictureFiles::close() {
  const std::unique_lock lock(mutex_, kAtTheEnd);
  if (lock) isClosed_ = true;
}

void PictureFiles::makeRoom() {
  auto files = filesIn(folder_);
  size_ = 0;
  for (const QFileInfo& file : files) size_ += file.size();
  isCounted_ = true;
  if (size_ <= limit_) return;
  std::ranges::sort(files, {}, [](const QFileInfo& file) { return file.lastModified(); });
  for (const QFileInfo& file : files) {
    if (double(size_) <= kAfterwards * double(limit_)) break;
    if (QFile::remove(file.filePath())) size_ -= file.size();
    QDir().rmdir(file.path());  // stays where there are others
  }
}

}  // namespace tromelo
