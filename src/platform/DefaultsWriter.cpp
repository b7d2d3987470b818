#include "platform/DefaultsWriter.h"

#include <chrono>
#include <utility>

namespace tromelo {

namespace {

/// Changes that follow each other more quickly are written together.
constexpr std::chrono::milliseconds kTogether(200);

/// What is only to fill a gap gives way to a change that is there already.
void put(DefaultsChanges& changes, const DefaultsPath& path, const DefaultsChange& change) {
  if (change.fills)
    changes.try_emplace(path, change);
  else
    changes.insert_or_assign(path, change);
}

}  // namespace

DefaultsWriter::DefaultsWriter(QString path, std::function<void(const QString&)> failed)
    : path_(std::move(path)), failed_(std::move(failed)), thread_([this] { run(); }) {}

DefaultsWriter::~DefaultsWriter() {
  {
    const std::scoped_lock lock(mutex_);
    ends_ = true;
    dirty_ = !changes_.empty();
  }
  wake_.notify_one();
  thread_.join();
}

void DefaultsWriter::write(const DefaultsPath& path, const DefaultsChange& change) {
  {
    const std::scoped_lock lock(mutex_);
    put(changes_, path, change);
    dirty_ = true;
  }
  wake_.notify_one();
}

void DefaultsWriter::flush() {
  std::unique_lock lock(mutex_);
  hurry_ = true;
  wake_.notify_one();
  written_.wait(lock, [this] { return !dirty_ && !busy_; });
  hurry_ = false;
}

void DefaultsWriter::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return dirty_ || ends_; });
    if (!dirty_) return;
    wake_.wait_for(lock, kTogether, [this] { return hurry_ || ends_; });
    writeChanges(lock);
  }
}

void DefaultsWriter::keep(DefaultsChanges failed) {
  for (const auto& [path, change] : changes_) put(failed, path, change);
  changes_ = std::move(failed);
}

void DefaultsWriter::writeChanges(std::unique_lock<std::mutex>& lock) {
  DefaultsChanges changes = std::exchange(changes_, {});
  dirty_ = false;
  busy_ = true;
  lock.unlock();
  const DefaultsResult result = mergeDefaults(path_, changes);
  if (!result.error.isEmpty()) failed_(result.error);
  lock.lock();
  if (result.failed) keep(std::move(changes));
  busy_ = false;
  written_.notify_all();
}

}  // namespace tromelo
