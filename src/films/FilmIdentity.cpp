#include "films/FilmIdentity.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <algorithm>
#include <cerrno>

#include "platform/RegularFile.h"

namespace tromelo {

namespace {

constexpr qint64 kEnd = 64 * 1024;

/// Adds `length` bytes from `offset` on; false where the file no longer has them.
bool addPart(QCryptographicHash& hash, int file, qint64 offset, qint64 length) {
  QByteArray part(length, Qt::Uninitialized);
  qint64 done = 0;
  while (done < length) {
    const ssize_t got = pread(file, part.data() + done, length - done, offset + done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    done += got;
  }
  hash.addData(part);
  return true;
}

}  // namespace

std::optional<FilmIdentity> filmIdentity(const std::string& path) {
  struct stat facts{};
  const UniqueFd file = openRegularFile(path, facts);
  if (!file || facts.st_size == 0) return {};

  const qint64 size = facts.st_size;
  const qint64 first = std::min(size, kEnd);
  const qint64 last = std::min(size - first, kEnd);  // the two never overlap
  QCryptographicHash hash(QCryptographicHash::Sha256);
  if (!addPart(hash, file.get(), 0, first) || !addPart(hash, file.get(), size - last, last))
    return {};
  return FilmIdentity{size, hash.result()};
}

}  // namespace tromelo
