#include "support/WarningListener.h"

#include <algorithm>
#include <utility>

#include "support/Warnings.h"

namespace tromelo::testing {

namespace {

WarningListener* installed = nullptr;

}  // namespace

WarningListener::WarningListener() {
  installed = this;
  previous_ = qInstallMessageHandler(&WarningListener::handleMessage);
}

WarningListener::~WarningListener() {
  qInstallMessageHandler(previous_);
  installed = nullptr;
}

WarningListener* WarningListener::current() { return installed; }

void WarningListener::OnTestStart(const ::testing::TestInfo&) {
  const std::scoped_lock lock(mutex_);
  testRuns_ = true;
  expected_.clear();
  allowed_.clear();
}

void WarningListener::OnTestEnd(const ::testing::TestInfo&) {
  QList<QString> missing;
  {
    const std::scoped_lock lock(mutex_);
    testRuns_ = false;
    missing = std::exchange(expected_, {});
  }
  for (const QString& part : missing) {
    ADD_FAILURE() << "This warning was expected and did not come: " << part.toStdString();
  }
}

void WarningListener::expect(const QString& part) {
  const std::scoped_lock lock(mutex_);
  expected_.append(part);
}

void WarningListener::allow(const QString& part) {
  const std::scoped_lock lock(mutex_);
  allowed_.append(part);
}

bool WarningListener::take(const QString& message) {
  const std::scoped_lock lock(mutex_);
  if (!testRuns_) return false;
  const auto matches = [&message](const QString& part) { return message.contains(part); };
  if (const auto found = std::ranges::find_if(expected_, matches); found != expected_.end()) {
    expected_.erase(found);
    return false;
  }
  return std::ranges::none_of(allowed_, matches);
}

void WarningListener::handleMessage(QtMsgType type, const QMessageLogContext& context,
                                    const QString& message) {
  auto* listener = installed;
  if (!listener) return;
  const bool serious = type == QtWarningMsg || type == QtCriticalMsg;
  if (serious && listener->take(message)) {
    ADD_FAILURE() << "Unexpected warning: " << message.toStdString();
  }
  if (listener->previous_) listener->previous_(type, context, message);
}

void expectWarning(const QString& part) { WarningListener::current()->expect(part); }
void allowWarning(const QString& part) { WarningListener::current()->allow(part); }

}  // namespace tromelo::testing
