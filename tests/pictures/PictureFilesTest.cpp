#include "pictures/PictureFiles.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "support/Files.h"

namespace tromelo::testing {

struct PictureFilesTest : ::testing::Test {
  qint64 total() const {
    qint64 bytes = 0;
    QDirIterator each(folder_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext()) bytes += each.nextFileInfo().size();
    return bytes;
  }

  static QImage picture() {
    QImage picture(64, 36, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    return picture;
  }

  const QTemporaryDir home_;
  const QString folder_ = home_.filePath(QStringLiteral("a/pictures"));
};

TEST_F(PictureFilesTest, KeepNoMoreThanTheLimitAndLetTheOldestGo) {
  {
    PictureFiles files(folder_);
    files.write(QStringLiteral("film/0"), picture());
  }
  const qint64 one = total();
  ASSERT_GT(one, 0);
  PictureFiles files(folder_, 10 * one);
  for (int i = 1; i < 40; ++i) {
    files.write(QStringLiteral("film/%1").arg(i), picture());
    EXPECT_LE(total(), 10 * one);
    // Looked at each time, so never the oldest.
    EXPECT_EQ(files.read(QStringLiteral("film/0")).size(), picture().size()) << i;
  }
  EXPECT_TRUE(files.read(QStringLiteral("film/1")).isNull());
  EXPECT_FALSE(files.read(QStringLiteral("film/39")).isNull());
}

TEST_F(PictureFilesTest, AreThereWholeOrNotAtAllUntilTheyAreForgotten) {
  PictureFiles files(folder_);
  const auto name = QStringLiteral("film/0");
  files.write(name, picture());
  const QString path = folder_ + QStringLiteral("/film/0.jpg");
  QFile whole(path);
  ASSERT_TRUE(whole.open(QFile::ReadOnly));
  const auto content = whole.readAll().toStdString();
  for (const std::string& damaged :
       {std::string(), std::string("no picture"), content.substr(0, 30)}) {
    writeFile(path.toStdString(), damaged);
    EXPECT_TRUE(files.read(name).isNull());
    EXPECT_FALSE(QFile::exists(path)) << "made again";
  }
  files.write(name, picture());
  EXPECT_FALSE(files.read(name).isNull());
  EXPECT_EQ(QFile::permissions(folder_) & (QFile::ReadGroup | QFile::ReadOther),
            QFile::Permissions());
  files.removeAll();
  EXPECT_TRUE(files.read(name).isNull());
  EXPECT_EQ(total(), 0);
}

TEST_F(PictureFilesTest, DoWithoutAFolder) {
  writeFile(home_.filePath(QStringLiteral("a")).toStdString(), "in the way");
  PictureFiles files(folder_);
  files.write(QStringLiteral("film/0"), picture());
  EXPECT_TRUE(files.read(QStringLiteral("film/0")).isNull());
}

}  // namespace tromelo::testing
