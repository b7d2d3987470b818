#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include "support/Clips.h"
#include "support/Files.h"

namespace tromelo::testing {

struct ThumbnailerTest : ::testing::Test {
  /// The exit status, 128 where a signal ended it. It gets nothing that a player would need.
  int run(const QStringList& arguments) const {
    QProcess program;
    program.setProcessEnvironment({});
    program.start(QStringLiteral(TROMELO_PROGRAM),
                  QStringList(QStringLiteral("--thumbnail")) + arguments);
    EXPECT_TRUE(program.waitForFinished(60000));
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : 128;
  }
  QImage thumbnailOf(const QString& film, const QString& size = QStringLiteral("128")) const {
    QFile::remove(picture_);
    EXPECT_EQ(run({QStringLiteral("-s"), size, film, picture_}), 0);
    return QImage(picture_, "PNG");
  }
  static QString clip(const char* name) { return QString::fromStdString(clipPath(name)); }

  const QTemporaryDir home_;
  const QString picture_ = home_.filePath(QStringLiteral("out.png"));
};

bool isDark(const QImage& picture) {
  return qGray(picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0)) <
         24;
}

TEST_F(ThumbnailerTest, WritesAPictureThatIsNotBlackWhereThereIsOne) {
  EXPECT_EQ(thumbnailOf(clip("sample.mp4")).size(), QSize(128, 72));
  EXPECT_EQ(thumbnailOf(clip("turned.mp4"), QStringLiteral("64")).height(), 64);
  EXPECT_FALSE(isDark(thumbnailOf(clip("black-start.mkv"))));
  EXPECT_TRUE(isDark(thumbnailOf(clip("black.mp4")))) << "there is no other";
  EXPECT_FALSE(thumbnailOf(clip("truncated.mkv")).isNull()) << "of what is left";

  const QString odd = home_.filePath(QStringLiteral("50% ü #?.mkv"));
  ASSERT_TRUE(QFile::copy(clip("sample.mkv"), odd));
  EXPECT_FALSE(thumbnailOf(odd).isNull());
  EXPECT_FALSE(thumbnailOf(QString::fromLatin1(QUrl::fromLocalFile(odd).toEncoded())).isNull());
}

TEST_F(ThumbnailerTest, FailsWithoutAPicture) {
  for (const char* name : {"text.mkv", "empty.mkv", "missing.mkv", "audio.m4a", "list.m3u"}) {
    SCOPED_TRACE(name);
    EXPECT_NE(run({clip(name), picture_}), 0);
    EXPECT_FALSE(QFile::exists(picture_));
  }
  const QString nowhere = home_.filePath(QStringLiteral("no/such/folder.png"));
  EXPECT_NE(run({clip("sample.mp4"), nowhere}), 0);
  for (const char* size : {"0", "-1", "big", ""})
    EXPECT_NE(run({QStringLiteral("-s"), QString::fromLatin1(size), clip("sample.mp4"), picture_}),
              0)
        << size;
  EXPECT_NE(run({clip("sample.mp4")}), 0);
  EXPECT_NE(run({}), 0);
}

}  // namespace tromelo::testing
