#include "platform/DefaultsWriter.h"

#include <chrono>
#include <utility>

#include "platform/DefaultsFile.h"

namespace tromelo {

namespace {

/// Changes that follow each other more quickly are written together.
constexpr std::chrono::milliseconds kTogether(200);

}  // namespace

DefaultsWriter::DefaultsWriter(QString path, std::function<void(const QString&)> failed)
    : path_(std::move(path)), failed_(std::move(failed)), thread_([this] { run(); }) {}

DefaultsWriter::~DefaultsWriter() {
  {
    const std::scoped_lock lock(mutex_);
    ends_ = true;
    dirty_ = !changes_.isEmpty();
  }
  wake_.notify_one();
  thread_.join();
}

void DefaultsWriter::write(const QString& key, const QJsonValue& value) {
  {
    const std::scoped_lock lock(mutex_);
    changes_.insert(key, value);
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

void DefaultsWriter::keep(const QJsonObject& failed) {
  for (auto change = failed.begin(); change != failed.end(); ++change)
    if (!changes_.contains(change.key())) changes_.insert(change.key(), change.value());
}

void DefaultsWriter::writeChanges(std::unique_lock<std::mutex>& lock) {
  QJsonObject changes = std::exchange(changes_, {});
  dirty_ = false;
  busy_ = true;
  lock.unlock();
  const DefaultsResult result = mergeDefaults(path_, changes);
  if (!result.error.isEmpty()) failed_(result.error);
  lock.lock();
  if (result.failed) keep(changes);
  busy_ = false;
  written_.notify_all();
}

}  // namespace tromelo
