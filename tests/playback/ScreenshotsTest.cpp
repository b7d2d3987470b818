#include "playback/Screenshots.h"

#include <filesystem>

#include "RealPlayback.h"
#include "playback/ScreenshotFile.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

namespace fs = std::filesystem;

struct Shots : RealPlayback {
  std::string folder = directory_.filePath("Pictures/of films").toStdString();
  Screenshots screenshots{model_.engine(), folder};
  std::vector<QUrl> kept;

  void keep(const QString& film, double seconds) {
    screenshots.keep(Screenshots::What::withoutSubtitles, {film, seconds},
                     [this](const QUrl& picture) { kept.push_back(picture); });
  }
  bool isThere(const char* name) const { return fs::file_size(folder + "/" + name) > 100; }
};

TEST_F(Shots, AreNamedByFilmAndTimeAndNeverReplaceOneAnother) {
  ASSERT_TRUE(plays(clip("sample.mp4")));
  ASSERT_TRUE(pauses());
  for (int i = 0; i < 3; ++i) keep("Film", 3723.9);
  ASSERT_TRUE(waitFor([this] { return kept.size() == 3; }));
  EXPECT_TRUE(isThere("Film – 1.02.03.png"));
  EXPECT_TRUE(isThere("Film – 1.02.03 (2).png"));
  EXPECT_EQ(kept[2], fileUrlFromPath(folder + "/Film – 1.02.03 (3).png"));
  // Nothing else is left behind.
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3);

  QByteArray copied;
  screenshots.make(Screenshots::What::withSubtitles, [&](const QByteArray& png) { copied = png; });
  ASSERT_TRUE(waitFor([&] { return !copied.isEmpty(); }));
  EXPECT_TRUE(copied.startsWith("\x89PNG"));
}

TEST_F(Shots, ThatCannotBeKeptAreToldOfAndTheNextIsMade) {
  ASSERT_TRUE(plays(clip("sample.mp4")));
  ASSERT_TRUE(pauses());
  writeFile(directory_.filePath("Pictures"), "a file");
  keep("Film", 1);
  ASSERT_TRUE(waitFor([this] { return kept.size() == 1; }));
  EXPECT_TRUE(kept[0].isEmpty());
  fs::remove(directory_.filePath("Pictures").toStdString());
  keep("Film", 1);
  ASSERT_TRUE(waitFor([this] { return kept.size() == 2; }));
  EXPECT_TRUE(isThere("Film – 0.00.01.png"));
}

TEST(ScreenshotName, IsOneThatAFileMayHave) {
  for (const auto& [film, seconds, name] : Table<QString, double, std::string>{
           {"Film", 0, "Film – 0.00.00"},
           {"../a/b", 36061, "a b – 10.01.01"},
           {"...", -5, "0.00.00"},
           {"new\nline", std::nan(""), "new line – 0.00.00"},
       })
    EXPECT_EQ(screenshotName(film, seconds), name);
  EXPECT_LT(screenshotName(QString(4000, u'\u20ac'), 1).size(), 240u);
}

}  // namespace tromelo::testing
