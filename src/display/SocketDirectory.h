#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

#include "platform/UniqueFd.h"

namespace tromelo {

/// A directory that only this user can enter, with one listening socket. A lock in it says that its
/// process lives; what crashed processes left behind is removed on the way.
class SocketDirectory {
 public:
  /// None, and one sentence in `error`, when no place could be had.
  static std::unique_ptr<SocketDirectory> create(QString* error);
  /// The same below `parent`; none when `parent` won't do.
  static std::unique_ptr<SocketDirectory> createBelow(const QByteArray& parent);

  ~SocketDirectory();
  SocketDirectory(const SocketDirectory&) = delete;
  SocketDirectory& operator=(const SocketDirectory&) = delete;

  QByteArray path() const { return path_; }
  QByteArray socketPath() const;
  int listeningFd() const { return socket_.get(); }

 private:
  SocketDirectory() = default;
  bool lock();
  bool listen();

  QByteArray path_;
  UniqueFd lock_;
  UniqueFd socket_;
};

}  // namespace tromelo
