#include <QLocale>

#include "ModelTest.h"
#include "Nodes.h"

namespace tromelo {

namespace {

using TrackKind = MediaTrack::Kind;
using P = MpvProperty;
using testing::flag;
using testing::integer;
using testing::listOf;
using testing::ModelTest;
using testing::number;
using testing::text;

MpvNode entry(std::int64_t id, const char* type, MpvMap others = {}) {
  others["id"] = integer(id);
  others["type"] = text(type);
  return testing::map(std::move(others));
}

struct Tracks : ModelTest {
  Tracks() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
  ~Tracks() override { QLocale::setDefault(QLocale::c()); }

  void reportTracks(const char* type, int count, int selected) {
    MpvList list;
    for (int i = 0; i < count; ++i) {
      list.push_back(entry(i + 1, type, {{"selected", flag(i == selected)}}));
    }
    report(P::trackList, listOf(list));
  }
};

}  // namespace

TEST_F(Tracks, AreReadWithWhatIsUsableOfThem) {
  const MediaTrack plain{
      .id = 4, .kind = TrackKind::sub, .title = {}, .language = {}, .codec = {}, .channels = {}};
  MediaTrack full{.id = 2,
                  .kind = TrackKind::sub,
                  .title = "SDH",
                  .language = "eng",
                  .codec = "subrip",
                  .channels = 6};
  full.isDefault = full.isForced = full.isExternal = full.isSelected = true;
  MediaTrack undecodable = plain;
  undecodable.title = QString(QChar(0xfffd));
  undecodable.language = "";
  const struct {
    const char* what;
    MpvNode entry;
    QList<MediaTrack> expected;
  } rows[] = {
      {"everything",
       entry(2, "sub",
             {{"title", text("SDH")},
              {"lang", text("eng")},
              {"codec", text("subrip")},
              {"demux-channel-count", integer(6)},
              {"audio-channels", integer(2)},
              {"default", flag(true)},
              {"forced", flag(true)},
              {"external", flag(true)},
              {"selected", flag(true)}}),
       {full}},
      {"other kinds of values",
       entry(4, "sub",
             {{"title", integer(1)},
              {"lang", flag(true)},
              {"codec", testing::map({})},
              {"demux-channel-count", number(6)},
              {"audio-channels", text("stereo")},
              {"default", integer(1)},
              {"forced", text("yes")},
              {"external", number(1)},
              {"selected", MpvNode{MpvList{}}}}),
       {plain}},
      {"empty title", entry(4, "sub", {{"title", text("")}}), {plain}},
      {"not UTF-8", entry(4, "sub", {{"title", text("\xff")}, {"lang", text("")}}), {undecodable}},
      {"another kind", entry(4, "audio"), {}},
      {"no id", testing::map({{"type", text("sub")}}), {}},
  };
  for (const auto& row : rows) {
    MpvList list = testing::notEntries();
    list.push_back(row.entry);
    EXPECT_EQ(mediaTracks(listOf(list), TrackKind::sub), row.expected) << row.what;
  }
}

TEST_F(Tracks, AreNamedByTitleAndLanguage) {
  using Text = std::optional<QString>;
  const struct {
    QLocale reader;
    Text title;
    Text language;
    QString expected;
  } rows[] = {
      {QLocale("en_US"), {}, {}, "Track 7"},
      {QLocale("en_US"), "Signs", {}, "Signs"},
      {QLocale("en_US"), {}, "en", "English"},
      {QLocale("en_US"), "English SDH", "en", "English SDH"},
      {QLocale("en_US"), "ENGLISH", "eng", "ENGLISH"},
      {QLocale("en_US"), "Commentary", "en", "Commentary (English)"},
      {QLocale("en_US"), "100%2 %1", "en", "100%2 %1 (English)"},
      {QLocale("en_US"), "Signs", "qaa", "Signs (qaa)"},
      {QLocale("de_DE"), "Commentary", "en", "Commentary (Englisch)"},
      {QLocale("tr_TR"), "İNGİLİZCE", "en", "İNGİLİZCE"},
  };
  for (const auto& row : rows) {
    QLocale::setDefault(row.reader);
    MediaTrack track;
    track.id = 7;
    track.title = row.title;
    track.language = row.language;
    EXPECT_EQ(track.name(), row.expected) << row.reader.name().toStdString();
  }
}

TEST_F(Tracks, AreDescribedByWhatIsKnownOfThem) {
  const struct {
    std::optional<QString> codec;
    std::optional<qint64> channels;
    bool isForced;
    bool isExternal;
    const char* expected;
  } rows[] = {
      {{}, {}, false, false, ""},
      {"eac3", 6, false, false, "EAC3 · 6 ch"},
      {"aac", 2, false, false, "AAC · Stereo"},
      {{}, 1, false, false, "Mono"},
      {"subrip", {}, true, true, "SUBRIP · Forced · External"},
      {{}, {}, false, true, "External"},
  };
  for (const auto& row : rows) {
    MediaTrack track;
    track.codec = row.codec;
    track.channels = row.channels;
    track.isForced = row.isForced;
    track.isExternal = row.isExternal;
    EXPECT_EQ(track.details(), row.expected);
  }
}

TEST_F(Tracks, AreSwitchedWithAWordOnWhatFollows) {
  const struct {
    const char* type;
    int count;
    int selected;
    const char* says;
    Requests asks;
  } rows[] = {
      {"sub", 0, -1, "No subtitles", {{"set", "sid", "no"}}},
      {"sub", 2, 0, "Subtitles: Track 2", {{"set", "sid", "2"}}},
      {"sub", 2, 1, "Subtitles off", {{"set", "sid", "no"}}},
      {"sub", 2, -1, "Subtitles: Track 1", {{"set", "sid", "1"}}},
      {"audio", 0, -1, "No audio", {}},
      {"audio", 1, 0, "Audio: Track 1", {}},
      {"audio", 2, 1, "Audio: Track 1", {{"set", "aid", "1"}}},
      {"audio", 2, -1, "Audio: Track 1", {{"set", "aid", "1"}}},
  };
  for (const auto& row : rows) {
    reportTracks(row.type, row.count, row.selected);
    const bool audio = row.type == std::string("audio");
    EXPECT_EQ(model().audioTracks().size(), audio ? row.count : 0);
    EXPECT_EQ(model().subtitleTracks().size(), audio ? 0 : row.count);
    takeRequests();
    EXPECT_EQ(audio ? model().cycleAudio() : model().cycleSubtitle(), row.says);
    EXPECT_EQ(takeRequests(), row.asks) << row.says;
  }
  report(P::trackList, {});
  EXPECT_TRUE(model().audioTracks().isEmpty());
}

}  // namespace tromelo
