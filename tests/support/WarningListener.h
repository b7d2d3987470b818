#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QString>
#include <QtLogging>
#include <mutex>

namespace tromelo::testing {

/// Turns unexpected warnings into failures of the test that was running. Messages arrive from any
/// thread. Installed once, by runTests().
class WarningListener final : public ::testing::EmptyTestEventListener {
 public:
  WarningListener();
  ~WarningListener() override;

  void OnTestStart(const ::testing::TestInfo&) override;
  void OnTestEnd(const ::testing::TestInfo&) override;

  void expect(const QString& part);
  void allow(const QString& part);

  static WarningListener* current();

 private:
  static void handleMessage(QtMsgType type, const QMessageLogContext& context,
                            const QString& message);
  /// True when nobody expected it.
  bool take(const QString& message);

  std::mutex mutex_;
  bool testRuns_ = false;
  QList<QString> expected_;
  QList<QString> allowed_;
  QtMessageHandler previous_;
};

}  // namespace tromelo::testing
