#include "app/LaunchFile.h"

#include <chrono>
#include <thread>
#include <utility>

namespace tromelo {

namespace {

using Now = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience(2);
constexpr std::chrono::hours kForEver(24 * 365);

}  // namespace

LaunchFile::LaunchFile(const std::optional<QUrl>& file,
                       std::function<bool(const std::string&)> exists)
    : file_(file) {
  if (!file_ || !file_->isLocalFile()) {
    isThere_->put(true);
    return;
  }
  std::thread([path = pathFromFileUrl(*file_), exists = std::move(exists), isThere = isThere_] {
    isThere->put(exists(path));
  }).detach();
}

void LaunchFile::whenThere(const std::function<void(const QUrl&)>& use) {
  if (!file_) return;
  const auto take = [file = *file_, use](std::optional<bool> isThere) {
    if (isThere == true) use(file);
  };
  if (const auto known = isThere_->wait(Now::now())) return take(known);
  background_.run([isThere = isThere_] { return isThere->wait(Now::now() + kForEver); }, take);
}

bool LaunchFile::isMissing() const { return isThere_->wait(Now::now() + kPatience) == false; }

}  // namespace tromelo
