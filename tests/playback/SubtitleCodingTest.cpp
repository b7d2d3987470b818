#include "ModelTest.h"
#include "support/Files.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

TEST_F(ModelTest, TheCodingOfAFileOfSubtitlesIsChosenWhereItDoesNotSayIt) {
  SubtitleCoding& coding = *model().subtitleCoding();
  const QString path = directory_.filePath("film.srt");
  const auto show = [&](const char* codec, bool isOwnFile) {
    reportTracks({});
    MpvMap shown = *track("sub", 1, "", true, codec).as<MpvMap>();
    shown["ff-index"] = MpvNode{std::int64_t{0}};
    if (isOwnFile) shown["external-filename"] = MpvNode{path.toStdString()};
    reportTracks({MpvNode{shown}});
  };
  load();
  for (const auto& [name, content, codec, isOwnFile, mayChoose] :
       Table<const char*, std::string, const char*, bool, bool>{
           {"it says nothing",
            "Gr\xf6\xdf"
            "e",
            "subrip", true, true},
           {"it says it",
            "Gr\xc3\xb6\xc3\x9f"
            "e",
            "subrip", true, false},
           {"pictures", "\xf6\xf6", "dvd_subtitle", true, false},
           {"in the film", "\xf6\xf6", "subrip", false, false},
       }) {
    SCOPED_TRACE(name);
    writeFile(path, content);
    show(codec, isOwnFile);
    EXPECT_TRUE(!mayChoose || waitFor([&] { return coding.note().isEmpty(); }));
    settle();
    EXPECT_EQ(coding.note().isEmpty(), mayChoose);
    takeRequests();
    coding.choose(4);
    EXPECT_EQ(takeRequests(),
              mayChoose
                  ? (Requests{{"set", "file-local-options/sub-codepage", "CP1251"}, {"sub-reload"}})
                  : Requests());
  }
  report(MpvProperty::subCodepage, std::string("CP1251"));
  EXPECT_EQ(coding.chosen(), 4);
  report(MpvProperty::subCodepage, std::string("auto"));
  EXPECT_EQ(coding.chosen(), 0);
}

}  // namespace tromelo::testing
