#include "lines/LineReader.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/Clips.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

struct LineReaderTest : ::testing::Test {
  bool read(const LineRequest& request) {
    lines_.clear();
    return LineReader::read(request, {.line = [this](const SubtitleLine& line) { lines_ << line; },
                                      .progress = [](double) {}});
  }
  std::string file(const char* name, const std::string& content) {
    const QString path = directory_.filePath(name);
    writeFile(path, content);
    return path.toStdString();
  }

  QTemporaryDir directory_;
  QList<SubtitleLine> lines_;
};

TEST_F(LineReaderTest, ReadsTheTrackThatIsMeant) {
  ASSERT_TRUE(read({.path = clipPath("tracks.mkv"), .stream = 4}));
  EXPECT_EQ(lines_, (QList<SubtitleLine>{{0.5, 5, "Eine deutsche Zeile"}}));
  EXPECT_FALSE(read({.path = clipPath("tracks.mkv"), .stream = 1})) << "that is sound";
  EXPECT_FALSE(read({.path = clipPath("tracks.mkv"), .stream = 99}));
  EXPECT_TRUE(lines_.isEmpty());
}

TEST_F(LineReaderTest, ReadsFilesOfEveryKind) {
  const SubtitleLine expected{1, 2.5, "Größe"};
  for (const auto& [name, content] : Table<const char*, std::string>{
           {"a.srt",
            "1\n00:00:01,000 --> 00:00:02,500\n<b>Gr\xf6\xdf"
            "e</b>\n"},
           {"a.vtt",
            "WEBVTT\n\n00:01.000 --> 00:02.500 line:0\nGr\xc3\xb6\xc3\x9f"
            "e\n"},
           {"a.ass",
            "[Script Info]\nScriptType: v4.00+\n\n[Events]\nFormat: Layer, Start, End, Style, "
            "Name, "
            "MarginL, MarginR, MarginV, Effect, Text\n"
            "Dialogue: 0,0:00:01.00,0:00:02.50,Default,,0,0,0,,{\\b1}Gr\xf6\xdf"
            "e\n"},
       }) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(read({.path = file(name, content), .isOwnFile = true, .codepage = "auto"}));
    EXPECT_EQ(lines_, QList<SubtitleLine>{expected});
  }
}

TEST_F(LineReaderTest, GivesUpOnWhatHasNoLines) {
  EXPECT_FALSE(read({.path = file("a.srt", ""), .isOwnFile = true}));
  EXPECT_FALSE(read({.path = file("b.srt", std::string(5000, '\xfe')), .isOwnFile = true}));
  EXPECT_FALSE(read({.path = "/dev/zero"}));
  EXPECT_FALSE(read({.path = directory_.filePath("none").toStdString()}));
  // It names another file, which isn't ours to read.
  const std::string other = file("other.srt", "1\n00:00:01,000 --> 00:00:02,500\nSecret\n");
  EXPECT_FALSE(read({.path = file("list.ffconcat", "ffconcat version 1.0\nfile " + other + "\n")}));
  EXPECT_TRUE(lines_.isEmpty());
}

TEST_F(LineReaderTest, ItsNewsComesAsItWasTold) {
  const LineRequest request{"/a b/\xff.mkv", 3, true, "CP1251"};
  QList<QByteArray> arguments;
  for (const QString& each : request.arguments()) arguments << each.toLatin1();
  EXPECT_EQ(LineRequest::parse(arguments), request);

  QByteArray received = lineMessage({1, 2, "a b"}) + progressMessage(0.5) + "line 3 2 c\nli";
  LineNews news;
  EXPECT_TRUE(takeLineNews(received, news));
  EXPECT_EQ(news.lines, (QList<SubtitleLine>{{1, 2, "a b"}, {3, 3, "c"}}));
  EXPECT_EQ(news.progress, 0.5);
  EXPECT_EQ(received, "li") << "the rest is still to come";
  for (const QByteArray& nonsense : {QByteArray("hello\n"), QByteArray("line x 2 c\n"),
                                     QByteArray("at nan\n"), QByteArray(100'000, 'a')}) {
    received = nonsense;
    EXPECT_FALSE(takeLineNews(received, news)) << nonsense.first(4).constData();
  }
}

}  // namespace tromelo::testing
