#include "ModelTest.h"
#include "Nodes.h"

namespace tromelo {

namespace {

using P = MpvProperty;
using testing::integer;
using testing::listOf;
using testing::ModelTest;
using testing::number;
using testing::text;

using Position = std::optional<int>;

/// Three, at 0, 10 and 20 seconds.
MpvValue threeChapters() {
  return listOf({testing::map({{"title", text("One")}}),
                 testing::map({{"title", text("Two")}, {"time", number(10)}}),
                 testing::map({{"title", text("Three")}, {"time", integer(20)}})});
}

struct Chapters : ModelTest {};

}  // namespace

TEST(Chapter, IsReadWithWhatIsUsableOfIt) {
  MpvList list = testing::notEntries();
  list.push_back(testing::map({}));
  list.push_back(testing::map({{"title", text("")}, {"time", text("1")}}));
  list.push_back(testing::map({{"title", text("(unnamed)")}}));
  list.push_back(testing::map({{"title", integer(1)}, {"time", number(1.5)}}));
  list.push_back(testing::map({{"title", text("\xff")}, {"time", integer(testing::kHuge)}}));
  const QList<Chapter> expected{{0, "Chapter 1", 0},
                                {1, "Chapter 2", 0},
                                {2, "Chapter 3", 0},
                                {3, "Chapter 4", 1.5},
                                {4, QString(QChar(0xfffd)), static_cast<double>(testing::kHuge)}};
  EXPECT_EQ(chapterList(listOf(list)), expected);
  for (const MpvValue& nothing :
       {MpvValue(), MpvValue(1.0), listOf({}), MpvValue(testing::map({}))})
    EXPECT_TRUE(chapterList(nothing).isEmpty());
}

TEST(Chapter, IsSteppedToWithinTheList) {
  const auto chapters = chapterList(threeChapters());
  const struct {
    const char* what;
    Position current;
    double elapsed;
    int steps;
    Position expected;
  } rows[] = {
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
  };
  for (const auto& row : rows) {
    EXPECT_EQ(steppedChapter(chapters, row.current, row.elapsed, row.steps), row.expected)
        << row.what;
  }
  EXPECT_EQ(steppedChapter({}, 0, 99, -1), Position());
}

TEST_F(Chapters, TheCurrentOneIsAPositionOrNone) {
  const struct {
    MpvValue reported;
    Position expected;
  } rows[] = {{std::int64_t{2}, 2},         {std::int64_t{-1}, {}},
              {std::int64_t{0}, 0},         {1.0, {}},
              {testing::kHuge, 2147483647}, {{}, {}}};
  for (const auto& row : rows) {
    report(P::chapter, row.reported);
    EXPECT_EQ(model().currentChapter(), row.expected);
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

}  // namespace tromelo
