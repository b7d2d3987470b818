#include "playback/SubtitleLines.h"

#include <gtest/gtest.h>

#include "support/ManualClock.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// Lines of a process that says what a test has it say.
struct SubtitleLinesTest : ::testing::Test {
  SubtitleLines& says(const QByteArray& news, double begin = 0) {
    lines_ = std::make_unique<SubtitleLines>(
        HelperProcess::Program{"/bin/sh", {"-c", QString::fromLatin1(news)}}, clock_);
    lines_->setSource({.kind = SubtitleLines::Source::Kind::text, .request = {}, .begin = begin});
    return *lines_;
  }
  QString texts() const {
    QStringList texts;
    for (const SubtitleLine& line : lines_->all())
      texts << QString("%1-%2 %3").arg(line.start).arg(line.end).arg(line.text);
    return texts.join(", ");
  }
  bool isThere() {
    return waitFor([this] { return !lines_->isReading(); });
  }

  ManualClock clock_;
  std::unique_ptr<SubtitleLines> lines_;
};

TEST_F(SubtitleLinesTest, ComeInOrderAndOnce) {
  says("printf 'line 13 14 c\\nline 11 12 a\\nline 12 12.5 a\\nline 15 16 a\\nend\\n'", 10)
      .setWanted(true);
  ASSERT_TRUE(isThere());
  EXPECT_EQ(texts(), "1-2.5 a, 3-4 c, 5-6 a");
  EXPECT_EQ(lines_->note(), "");
}

TEST_F(SubtitleLinesTest, AreReadOnlyWhileSomebodyWantsThem) {
  says("printf 'line 1 2 a\\nend\\n'");
  EXPECT_FALSE(lines_->isReading());
  says("printf 'line 1 2 a\\n'; exec sleep 1000").setWanted(true);
  ASSERT_TRUE(waitFor([this] { return texts() == "1-2 a"; }));
  lines_->setWanted(false);
  EXPECT_FALSE(lines_->isReading());
  // Other subtitles.
  lines_->setWanted(true);
  lines_->setSource({.kind = SubtitleLines::Source::Kind::pictures});
  EXPECT_FALSE(lines_->isReading());
  EXPECT_EQ(texts(), "");
  EXPECT_NE(lines_->note(), "");
}

TEST_F(SubtitleLinesTest, SayThatTheyCouldNotBeRead) {
  for (const char* news : {"exit 1", "printf 'nonsense\\n'; exec sleep 1000"}) {
    says(news).setWanted(true);
    ASSERT_TRUE(isThere());
    EXPECT_TRUE(lines_->note().contains("couldn't be read")) << news;
  }
  says("exec sleep 1000").setWanted(true);
  clock_.advance(LineProcess::kPatience);
  EXPECT_FALSE(lines_->isReading());
}

TEST_F(SubtitleLinesTest, FindTheNextOneAsSoonAsItIsKnown) {
  std::optional<std::optional<double>> found;
  const auto next = [&](double seconds) {
    found.reset();
    lines_->findNext(seconds, [&](std::optional<double> start) { found = start; });
    return waitFor([&] { return found.has_value(); });
  };
  says("printf 'line 1 2 a\\nline 4 5 b\\n'; exec sleep 1000");
  ASSERT_TRUE(next(1.5));
  EXPECT_EQ(*found, 4);
  EXPECT_FALSE(lines_->isReading()) << "nobody wants the rest";
  says("printf 'line 1 2 a\\nline 4 5 b\\nend\\n'");
  ASSERT_TRUE(next(4));
  EXPECT_EQ(*found, std::nullopt) << "the line that has just begun isn't the next";
  ASSERT_TRUE(next(0.5));
  EXPECT_EQ(*found, 1);
  says("exit 1");
  ASSERT_TRUE(next(0));
  EXPECT_EQ(*found, std::nullopt);
}

}  // namespace tromelo::testing
