#pragma once

#include <QList>
#include <QUrl>
#include <functional>
#include <string>

#include "platform/Background.h"

namespace tromelo {

/// The path under which the desktop shows a file that it names by another address (smb://…), empty
/// where there is none. May take its time: not for the main thread.
std::string mountedPath(const QUrl& address);

/// Finds the local files that addresses stand for, without waiting for a share to answer. Main
/// thread only.
class LocalFiles {
 public:
  using PathOf = std::function<std::string(const QUrl& address)>;
  /// The files that were found, in the order of their addresses; `areAll`: none is missing.
  using Listener = std::function<void(const QList<QUrl>& files, bool areAll)>;

  /// `pathOf` is called on other threads, and may still run when this object is gone.
  explicit LocalFiles(PathOf pathOf = mountedPath) : pathOf_(std::move(pathOf)) {}

  /// Calls back at once where all are local, else from the event loop, unless this object is gone.
  void find(const QList<QUrl>& addresses, const Listener& listener);

 private:
  PathOf pathOf_;
  Background asking_;
};

}  // namespace tromelo
