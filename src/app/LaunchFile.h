#pragma once

#include <QUrl>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Awaited.h"
#include "platform/Background.h"
#include "platform/FilePath.h"

namespace tromelo {

/// The file that the program was started with, and whether it is there, which a share may take
/// minutes to say: a thread of its own finds out from here on. Main thread only.
class LaunchFile {
 public:
  /// What is no local file is left to whoever opens it.
  explicit LaunchFile(const std::optional<QUrl>& file,
                      std::function<bool(const std::string& path)> exists = fileExists);

  /// Does something with it where it is there: at once where that is known by now, else from the
  /// event loop.
  void whenThere(const std::function<void(const QUrl& file)>& use);
  /// Another one was opened.
  void drop() { background_.drop(); }

  /// Waits for a moment, in a process that has nothing else to do. Unknown counts as there.
  bool isMissing() const;

 private:
  const std::optional<QUrl> file_;
  std::shared_ptr<Awaited<bool>> isThere_ = std::make_shared<Awaited<bool>>();
  Background background_;
};

}  // namespace tromelo
