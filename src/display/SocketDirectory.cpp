#include "display/SocketDirectory.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <cstdlib>
#include <cstring>

namespace tromelo {

namespace {

constexpr char namePrefix[] = "tromelo-display-";
constexpr char lockName[] = "/lock";
constexpr char socketName[] = "/wayland";
constexpr int backlog = 16;

bool fitsSocketAddress(const QByteArray& path) {
  return path.size() < qsizetype(sizeof(sockaddr_un::sun_path));
}

void removeDirectory(const QByteArray& path) {
  unlink((path + socketName).constData());
  unlink((path + lockName).constData());
  rmdir(path.constData());
}

bool isOurs(const QByteArray& path) {
  struct stat status{};
  return lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == geteuid();
}

/// A living process holds the lock. One that is just starting may not have got as far as that: it
/// notices that its lock is gone, and makes another directory.
void removeIfStale(const QByteArray& path) {
  if (!isOurs(path)) return;
  const UniqueFd lock(open((path + lockName).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
  if (!lock || flock(lock.get(), LOCK_EX | LOCK_NB) != 0) return;
  removeDirectory(path);
}

void removeStaleDirectories(const QByteArray& parent) {
  const std::unique_ptr<DIR, decltype([](DIR* dir) { closedir(dir); })> dir(
      opendir(parent.constData()));
  if (!dir) return;
  while (const dirent* entry = readdir(dir.get()))
    if (std::strncmp(entry->d_name, namePrefix, sizeof namePrefix - 1) == 0)
      removeIfStale(parent + '/' + entry->d_name);
}

}  // namespace

std::unique_ptr<SocketDirectory> SocketDirectory::create(QString* error) {
  for (const QByteArray& parent :
       {qgetenv("XDG_RUNTIME_DIR"), QFile::encodeName(QDir::tempPath()), QByteArray("/tmp")})
    if (auto directory = createBelow(parent)) return directory;
  *error = QCoreApplication::translate("PrivateDisplay",
                                       "no folder could be made for the private display (%1); set "
                                       "XDG_RUNTIME_DIR to one that you can write to.")
               .arg(QString::fromLocal8Bit(std::strerror(errno)));
  return nullptr;
}

std::unique_ptr<SocketDirectory> SocketDirectory::createBelow(const QByteArray& parent) {
  const QByteArray pattern = parent + '/' + namePrefix + "XXXXXX";
  if (!parent.startsWith('/') || !fitsSocketAddress(pattern + socketName)) return nullptr;
  removeStaleDirectories(parent);
  constexpr int attempts = 8;  // each is lost only to another process that starts just now
  for (int attempt = 0; attempt < attempts; ++attempt) {
    QByteArray path = pattern;
    if (!mkdtemp(path.data())) return nullptr;
    std::unique_ptr<SocketDirectory> directory(new SocketDirectory);
    directory->path_ = path;
    if (directory->lock() && directory->listen()) return directory;
  }
  return nullptr;
}

SocketDirectory::~SocketDirectory() { removeDirectory(path_); }

QByteArray SocketDirectory::socketPath() const { return path_ + socketName; }

bool SocketDirectory::lock() {
  const QByteArray name = path_ + lockName;
  lock_.reset(open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  if (!lock_ || flock(lock_.get(), LOCK_EX | LOCK_NB) != 0) return false;
  struct stat opened{};
  struct stat named{};
  return fstat(lock_.get(), &opened) == 0 && stat(name.constData(), &named) == 0 &&
         opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

bool SocketDirectory::listen() {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const QByteArray path = socketPath();
  std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
  socket_.reset(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  return socket_ &&
         bind(socket_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
         ::listen(socket_.get(), backlog) == 0;
}

}  // namespace tromelo
