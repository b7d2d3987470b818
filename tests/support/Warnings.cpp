#include "support/Warnings.h"

#include <gtest/gtest.h>

#include <QList>
#include <QtLogging>
#include <algorithm>
#include <mutex>
#include <utility>

namespace tromelo::testing {

namespace {

// Messages arrive from any thread.
std::mutex mutex;
bool testRuns = false;
QList<QString> expected;
QList<QString> allowed;
QtMessageHandler previous;

/// True when nobody expected it.
bool take(const QString& message) {
  const std::scoped_lock lock(mutex);
  if (!testRuns) return false;
  const auto matches = [&message](const QString& part) { return message.contains(part); };
  if (const auto found = std::ranges::find_if(expected, matches); found != expected.end()) {
    expected.erase(found);
    return false;
  }
  return std::ranges::none_of(allowed, matches);
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool serious = type == QtWarningMsg || type == QtCriticalMsg;
  if (serious && take(message)) ADD_FAILURE() << "Unexpected warning: " << message.toStdString();
  if (previous) previous(type, context, message);
}

struct Listener final : ::testing::EmptyTestEventListener {
  ~Listener() override { qInstallMessageHandler(previous); }
  void OnTestStart(const ::testing::TestInfo&) override {
    const std::scoped_lock lock(mutex);
    testRuns = true;
    expected.clear();
    allowed.clear();
  }
  void OnTestEnd(const ::testing::TestInfo&) override {
    QList<QString> missing;
    {
      const std::scoped_lock lock(mutex);
      testRuns = false;
      missing = std::exchange(expected, {});
    }
    for (const QString& part : missing)
      ADD_FAILURE() << "This warning was expected and did not come: " << part.toStdString();
  }
};

}  // namespace

void watchWarnings() {
  previous = qInstallMessageHandler(handleMessage);
  ::testing::UnitTest::GetInstance()->listeners().Append(new Listener);  // GoogleTest owns it
}

void expectWarning(const QString& part) {
  const std::scoped_lock lock(mutex);
  expected.append(part);
}

void allowWarning(const QString& part) {
  const std::scoped_lock lock(mutex);
  allowed.append(part);
}

}  // namespace tromelo::testing
