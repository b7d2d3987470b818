#include "ModelTest.h"
#include "Nodes.h"
#include "support/Table.h"

namespace tromelo::testing {

using P = MpvProperty;

using Position = std::optional<int>;

/// Three, at 0, 10 and 20 seconds.
MpvValue threeChapters() {
  return listOf({map({{"title", text("One")}}), map({{"title", text("Two")}, {"time", number(10)}}),
                 map({{"title", text("Three")}, {"time", integer(20)}})});
}

struct Chapters : ModelTest {};

TEST(Chapter, IsReadWithWhatIsUsableOfIt) {
  MpvList list = notEntries();
  list.push_back(map({}));
  list.push_back(map({{"title", text("")}, {"time", text("1")}}));
  list.push_back(map({{"title", text("(unnamed)")}}));
  list.push_back(map({{"title", integer(1)}, {"time", number(1.5)}}));
  list.push_back(map({{"title", text("\xff")}, {"time", integer(kHuge)}}));
  const QList<Chapter> expected{{0, "Chapter 1", 0},
                                {1, "Chapter 2", 0},
                                {2, "Chapter 3", 0},
                                {3, "Chapter 4", 1.5},
                                {4, QString(QChar(0xfffd)), static_cast<double>(kHuge)}};
  EXPECT_EQ(chapterList(listOf(list)), expected);
  for (const MpvValue& nothing : {MpvValue(), MpvValue(1.0), listOf({}), MpvValue(map({}))})
    EXPECT_TRUE(chapterList(nothing).isEmpty());
}

TEST(Chapter, IsSteppedToWithinTheList) {
  const auto chapters = chapterList(threeChapters());
  for (const auto& [what, current, elapsed, steps, expected] :
       Table<const char*, Position, double, int, Position>{
           {"on", 0, 5, 1, 1},
           {"on from the last", 2, 25, 1, {}},
           {"on from none", {}, 0, 1, 0},
           {"back, just begun", 2, 23, -1, 1},
           {"back, in the middle", 2, 23.1, -1, 2},
           {"back from the first, just begun", 0, 3, -1, {}},
           {"back in the first", 0, 8, -1, 0},
           {"back from none", {}, 8, -1, {}},
           {"two on", 0, 0, 2, 2},
           {"two back, in the middle", 2, 25, -2, 2},
           {"nowhere", 1, 15, 0, 1},
           {"from behind the list", 3, 99, -1, 2},
           {"far from far", 2147483647, 0, 2147483647, {}},
           {"far back", 0, 0, -2147483647 - 1, {}},
       }) {
    EXPECT_EQ(steppedChapter(chapters, current, elapsed, steps), expected) << what;
  }
  EXPECT_EQ(steppedChapter({}, 0, 99, -1), Position());
}

TEST_F(Chapters, TheCurrentOneIsAPositionOrNone) {
  const Table<MpvValue, Position> rows{{std::int64_t{2}, 2}, {std::int64_t{-1}, {}},
                                       {std::int64_t{0}, 0}, {1.0, {}},
                                       {kHuge, 2147483647},  {MpvValue(), {}}};
  for (const auto& [reported, expected] : rows) {
    report(P::chapter, reported);
    EXPECT_EQ(model().currentChapter(), expected);
  }
}

TEST_F(Chapters, AreSoughtAndShownAtOnce) {
  EXPECT_EQ(model().stepChapter(1), std::nullopt);
  report(P::chapterList, threeChapters());
  report(P::chapter, std::int64_t{2});
  report(P::timePos, 22.0);
  takeRequests();
  EXPECT_EQ(model().stepChapter(1), std::nullopt);
  model().seekToChapter(-1);
  model().seekToChapter(3);
  EXPECT_EQ(takeRequests(), Requests());
  EXPECT_EQ(model().currentChapter(), 2);
  EXPECT_EQ(model().stepChapter(-1)->title, "Two");
  EXPECT_EQ(takeRequests(), (Requests{{"set", "chapter", "1"}}));
  EXPECT_EQ(model().currentChapter(), 1);
}

}  // namespace tromelo::testing
