#include "films/DecodingMarks.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <optional>

#include "support/Files.h"

namespace tromelo::testing {

struct DecodingMarksTest : ::testing::Test {
  using Advice = DecodingMarks::Advice;

  /// What a new program is told of film A.
  Advice advice(const char* stamp = "1") { return DecodingMarks(folder_).advice("A", stamp); }
  QStringList files() const { return QDir(folder_).entryList(QDir::Files); }

  QTemporaryDir directory_;
  QString folder_ = directory_.filePath("state/decoding");
  // A program that decodes film A; without it, it has died.
  std::optional<DecodingMarks> program_{std::in_place, folder_};
};

TEST_F(DecodingMarksTest, AFilmThatTookItsProgramDownIsForSoftwareUntilADriverChanges) {
  program_->begin("B", "1");
  program_->begin("A", "1");
  EXPECT_EQ(advice(), Advice::hardware) << "a program that lives";
  program_.reset();
  EXPECT_EQ(DecodingMarks(folder_).advice("B", "1"), Advice::hardware) << "was over before";
  EXPECT_EQ(advice(), Advice::softwareSince);
  EXPECT_EQ(advice(), Advice::software);
  EXPECT_EQ(advice("2"), Advice::hardware);
  EXPECT_EQ(advice(), Advice::hardware);
  EXPECT_EQ(files(), QStringList());
}

TEST_F(DecodingMarksTest, WhatEndsInOrderOrIsForgottenLeavesNothing) {
  program_->begin("A", "1");
  program_->end();
  program_->begin("A", "1");
  program_->end();
  program_.reset();
  EXPECT_EQ(files(), QStringList());
  program_.emplace(folder_).begin("A", "1");
  program_.reset();
  EXPECT_EQ(advice(), Advice::softwareSince);
  DecodingMarks(folder_).forgetAll();
  EXPECT_EQ(advice(), Advice::hardware);
}

TEST_F(DecodingMarksTest, AMarkThatIsntWholeIsCleared) {
  QDir().mkpath(folder_);
  writeFile((folder_ + "/running-7-8").toStdString(), "A");
  EXPECT_EQ(advice(), Advice::hardware);
  EXPECT_EQ(files(), QStringList());
}

}  // namespace tromelo::testing
