#include "playback/Bookmarks.h"

#include <gtest/gtest.h>

#include "films/FilmMemory.h"
#include "support/Home.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

struct BookmarksTest : ::testing::Test, protected Home {
  static QStringList names(const Bookmarks& marks) {
    QStringList found;
    for (const FilmBookmark& one : marks.all()) found << one.name;
    return found;
  }
  [[nodiscard]] static bool areRemembered(const Bookmarks& marks) {
    return waitFor([&] {
      return std::ranges::all_of(marks.all(), [](const auto& one) { return one.id > 0; });
    });
  }

  const FilmKey film_{.identity = "film", .duration = 100};
  FilmMemory memory_{directory_.filePath("films.sqlite"),
                     [](const QString& fault) { ADD_FAILURE() << fault.toStdString(); }};
};

TEST_F(BookmarksTest, AreKeptWithTheFilmWhereverItLies) {
  Bookmarks marks(&memory_);
  marks.fileKnown("/a", film_);
  for (const double position : {30, 10, 20}) marks.add(position, QString::number(position));
  EXPECT_EQ(names(marks), QStringList({"10", "20", "30"})) << "at once";
  ASSERT_TRUE(areRemembered(marks));
  marks.rename(marks.all()[1].id, " The chase\t");
  marks.rename(marks.all()[2].id, "  ");
  marks.remove(marks.all()[0].id);
  EXPECT_EQ(names(marks), QStringList({"The chase", "30"}));

  Bookmarks others(&memory_);
  others.fileKnown("/b", film_);
  EXPECT_TRUE(waitFor([&] { return names(others) == names(marks); }));
  EXPECT_EQ(others.at(20.9)->name, "The chase");
  EXPECT_FALSE(others.at(21.1));
  others.fileStarted();
  EXPECT_EQ(names(others), QStringList());
  others.add(5, "Of what?");
  others.fileKnown("/c", FilmKey{.identity = "other", .duration = 100});
  others.add(50, "Another");
  ASSERT_TRUE(areRemembered(others));
  EXPECT_EQ(names(others), QStringList("Another"));
}

TEST_F(BookmarksTest, LastForTheSessionWhereTheyCantBeKept) {
  Bookmarks marks(&memory_);
  marks.fileKnown("/a", film_);
  marks.add(10, "Kept");
  ASSERT_TRUE(areRemembered(marks));
  memory_.setPrivate(true);
  marks.add(20, "Private");
  Q_EMIT memory_.changed();
  bool isAnswered = false;
  memory_.findBookmarks(film_, &marks, [&](const FilmBookmarks& kept) {
    isAnswered = true;
    EXPECT_EQ(kept.size(), 1);
  });
  ASSERT_TRUE(waitFor([&] { return isAnswered; }));
  EXPECT_EQ(names(marks), QStringList({"Kept", "Private"}));

  marks.fileStarted();
  marks.fileKnown("/stream", std::nullopt);
  marks.add(1, "Unknown");
  marks.rename(marks.all()[0].id, "Live");
  marks.fileStarted();
  marks.fileKnown("/a", film_);
  EXPECT_EQ(names(marks), QStringList({"Kept", "Private"}));
  marks.fileStarted();
  marks.fileKnown("/stream", std::nullopt);
  EXPECT_EQ(names(marks), QStringList("Live"));
}

}  // namespace tromelo::testing
