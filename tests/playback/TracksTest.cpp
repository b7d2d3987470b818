#include <QLocale>

#include "ModelTest.h"
#include "Nodes.h"
#include "support/Table.h"

namespace tromelo::testing {

using TrackKind = MediaTrack::Kind;
using P = MpvProperty;

MpvNode entry(std::int64_t id, const char* type, MpvMap others = {}) {
  others["id"] = integer(id);
  others["type"] = text(type);
  return map(std::move(others));
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

TEST_F(Tracks, AreReadWithWhatIsUsableOfThem) {
  MediaTrack plain;
  plain.id = 4;
  plain.kind = TrackKind::sub;
  MediaTrack full = plain;
  full.title = "SDH";
  full.language = "eng";
  full.codec = "subrip";
  full.channels = 6;
  full.isDefault = full.isForced = full.isExternal = full.isSelected = true;
  MediaTrack undecodable = plain;
  undecodable.title = QString(QChar(0xfffd));
  undecodable.language = "";
  MpvMap all{{"title", text("SDH")},    {"lang", text("eng")},
             {"codec", text("subrip")}, {"demux-channel-count", integer(6)},
             {"default", flag(true)},   {"forced", flag(true)},
             {"external", flag(true)},  {"selected", flag(true)}};
  MpvMap wrong;  // other kinds of values
  for (const auto& [key, value] : all)
    wrong[key] = key == "title" ? integer(1) : MpvNode{MpvList{}};
  const Table<const char*, MpvNode, QList<MediaTrack>> rows{
      {"everything", entry(4, "sub", all), {full}},
      {"other kinds of values", entry(4, "sub", wrong), {plain}},
      {"empty title", entry(4, "sub", {{"title", text("")}}), {plain}},
      {"not UTF-8", entry(4, "sub", {{"title", text("\xff")}, {"lang", text("")}}), {undecodable}},
      {"another kind", entry(4, "audio"), {}},
      {"no id", map({{"type", text("sub")}}), {}}};
  for (const auto& [what, node, expected] : rows) {
    MpvList list = notEntries();
    list.push_back(node);
    EXPECT_EQ(mediaTracks(listOf(list), TrackKind::sub), expected) << what;
  }
}

TEST_F(Tracks, AreNamedByTitleAndLanguage) {
  using Text = std::optional<QString>;
  for (const auto& [reader, title, language, expected] : Table<QLocale, Text, Text, QString>{
           {QLocale("en_US"), {}, {}, "Track 7"},
           {QLocale("en_US"), "Signs", {}, "Signs"},
           {QLocale("en_US"), {}, "en", "English"},
           {QLocale("en_US"), "English SDH", "en", "English SDH"},
           {QLocale("en_US"), "ENGLISH", "eng", "ENGLISH"},
           {QLocale("en_US"), "Commentary", "en", "Commentary (English)"},
           {QLocale("en_US"), "100%2 %1", "en", "100%2 %1 (English)"},
           {QLocale("de_DE"), "Commentary", "en", "Commentary (Englisch)"},
           {QLocale("tr_TR"), "İNGİLİZCE", "en", "İNGİLİZCE"},
       }) {
    QLocale::setDefault(reader);
    MediaTrack track;
    track.id = 7;
    track.title = title;
    track.language = language;
    EXPECT_EQ(track.name(), expected) << reader.name().toStdString();
  }
}

TEST_F(Tracks, AreDescribedByWhatIsKnownOfThem) {
  for (const auto& [codec, channels, isForced, isExternal, expected] :
       Table<std::optional<QString>, std::optional<qint64>, bool, bool, const char*>{
           {std::nullopt, {}, false, false, ""},
           {"eac3", 6, false, false, "EAC3 · 6 ch"},
           {"aac", 2, false, false, "AAC · Stereo"},
           {std::nullopt, 1, false, false, "Mono"},
           {"subrip", {}, true, true, "SUBRIP · Forced · External"},
           {std::nullopt, {}, false, true, "External"},
       }) {
    MediaTrack track;
    track.codec = codec;
    track.channels = channels;
    track.isForced = isForced;
    track.isExternal = isExternal;
    EXPECT_EQ(track.details(), expected);
  }
}

TEST_F(Tracks, AreSwitchedWithAWordOnWhatFollows) {
  for (const auto& [type, count, selected, says, asks] :
       Table<const char*, int, int, const char*, Requests>{
           {"sub", 0, -1, "No subtitles", {{"set", "sid", "no"}}},
           {"sub", 2, 0, "Subtitles: Track 2", {{"set", "sid", "2"}}},
           {"sub", 2, 1, "Subtitles off", {{"set", "sid", "no"}}},
           {"sub", 2, -1, "Subtitles: Track 1", {{"set", "sid", "1"}}},
           {"audio", 0, -1, "No audio", {}},
           {"audio", 1, 0, "Audio: Track 1", {}},
           {"audio", 2, 1, "Audio: Track 1", {{"set", "aid", "1"}}},
           {"audio", 2, -1, "Audio: Track 1", {{"set", "aid", "1"}}},
       }) {
    reportTracks(type, count, selected);
    const bool audio = type == std::string("audio");
    EXPECT_EQ(model().audioTracks().size(), audio ? count : 0);
    EXPECT_EQ(model().subtitleTracks().size(), audio ? 0 : count);
    takeRequests();
    EXPECT_EQ(audio ? model().cycleAudio() : model().cycleSubtitle(), says);
    EXPECT_EQ(takeRequests(), asks) << says;
  }
  report(P::trackList, {});
  EXPECT_TRUE(model().audioTracks().isEmpty());
}

}  // namespace tromelo::testing
