#pragma once

#include <QImage>
#include <QString>
#include <mutex>

namespace tromelo {

/// Pictures in a folder that holds no more than so much of them: those that were looked at longest
/// ago go first. A picture is there whole or not at all. Waits for the disk; any thread.
class PictureFiles {
 public:
  static constexpr qint64 kLimit = 64 * 1024 * 1024;  // bytes

  explicit PictureFiles(QString folder, qint64 limit = kLimit)
      : folder_(std::move(folder)), limit_(limit) {}

  /// Null where there is none under this name, which may have folders in it.
  QImage read(const QString& name);
  /// What can't be kept is let go.
  void write(const QString& name, const QImage& picture);
  void removeAll();
  /// Nothing is read or written from now on; what is being done is waited for, but not for long.
  void close();

 private:
  QString pathOf(const QString& name) const;
  void makeRoom();

  const QString folder_;
  const qint64 limit_;
  std::timed_mutex mutex_;
  qint64 size_ = 0;  // bytes, of all of them
  bool isCounted_ = false;
  bool isClosed_ = false;
};

}  // namespace tromelo
