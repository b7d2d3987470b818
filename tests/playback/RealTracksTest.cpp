#include <QLocale>

#include "RealPlayback.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

QStringList described(const QList<MediaTrack>& tracks) {
  QStringList lines;
  for (const MediaTrack& track : tracks) lines << track.name() + " | " + track.details();
  return lines;
}

QList<qint64> selected(const QList<MediaTrack>& tracks) {
  QList<qint64> ids;
  for (const MediaTrack& track : tracks)
    if (track.isSelected) ids << track.id;
  return ids;
}

struct RealTracks : RealPlayback {
  [[nodiscard]] bool shows(const char* field, const QVariant& value) {
    return waitFor([&] { return model_.property(field) == value; });
  }
  [[nodiscard]] bool hasSubtitle(const QList<qint64>& ids) {
    return waitFor([&] { return selected(model_.subtitleTracks()) == ids; });
  }
  [[nodiscard]] bool hasAudio(qint64 id) {
    return waitFor([&] { return selected(model_.audioTracks()) == QList{id}; });
  }
};

TEST_F(RealTracks, AreNamedDescribedAndSwitched) {
  QLocale::setDefault(QLocale("en_US"));
  ASSERT_TRUE(plays(clip("tracks.mkv")));
  ASSERT_TRUE(waitFor([this] { return model_.subtitleTracks().size() == 4; }));
  EXPECT_EQ(described(model_.audioTracks()),
            (QStringList{"English | AAC · Mono", "Commentary (French) | AAC · Mono"}));
  EXPECT_EQ(described(model_.subtitleTracks()),
            (QStringList{"English | SUBRIP", "German | SUBRIP", "Signs (English) | SUBRIP · Forced",
                         "Brazilian Portuguese | SUBRIP"}));
  ASSERT_TRUE(pauses());

  ASSERT_TRUE(hasAudio(1));
  EXPECT_EQ(model_.cycleAudio(), "Audio: Commentary (French)");
  EXPECT_TRUE(hasAudio(2));
  model_.engine().setProperty("sid", "4");
  ASSERT_TRUE(hasSubtitle({4}));
  EXPECT_EQ(model_.cycleSubtitle(), "Subtitles off");
  EXPECT_TRUE(hasSubtitle({}));
  EXPECT_EQ(model_.cycleSubtitle(), "Subtitles: English");
  EXPECT_TRUE(hasSubtitle({1}));
  QLocale::setDefault(QLocale::c());
}

TEST_F(RealTracks, ASubtitleFileIsAddedAndShown) {
  const QString path = directory_.filePath("extra.srt");
  writeFile(path, "1\n00:00:00,500 --> 00:00:05,000\nA line\n");
  ASSERT_TRUE(plays(clip("sample.mp4")));
  model_.presentSubtitleFilePanel();
  chooser_.answer({QUrl::fromLocalFile(path)});
  EXPECT_TRUE(hasSubtitle({1}));
  EXPECT_EQ(described(model_.subtitleTracks()), QStringList{"extra.srt | SUBRIP · External"});
}

TEST_F(RealTracks, ChaptersAreListedAndSought) {
  ASSERT_TRUE(plays(clip("tracks.mkv")));
  ASSERT_TRUE(pauses());
  const QList<Chapter> expected{{0, "Opening", 0}, {1, "Chapter 2", 3}, {2, "Closing", 6}};
  EXPECT_TRUE(waitFor([&] { return model_.chapters() == expected; }));
  EXPECT_TRUE(shows("currentChapter", 0));
  ASSERT_TRUE(seeks([this] { EXPECT_EQ(model_.stepChapter(1)->title, "Chapter 2"); }));
  EXPECT_TRUE(waitFor([this] { return std::abs(model_.elapsed() - 3) < 0.1; }));
  ASSERT_TRUE(seeks([this] { model_.seekTo(7); }));
  EXPECT_TRUE(shows("currentChapter", 2));
  EXPECT_EQ(model_.stepChapter(1), std::nullopt);
  EXPECT_TRUE(plays(clip("bt709.mkv")));
  EXPECT_TRUE(waitFor([this] { return model_.chapters().isEmpty(); }));
}

TEST_F(RealTracks, TheSignalAndTheDecoderOfEachFileAreDescribed) {
  for (const auto& [name, label] : Table<const char*, const char*>{{"bt709.mkv", "SDR"},
                                                                   {"hdr10.mkv", "HDR10 · PQ"},
                                                                   {"hdr10.mkv", "HDR10 · PQ"},
                                                                   {"hlg.mkv", "HLG"},
                                                                   {"bt709.mkv", "SDR"}}) {
    ASSERT_TRUE(plays(clip(name)));
    EXPECT_TRUE(waitFor([&] { return model_.dynamicRange().label() == label; })) << name;
    EXPECT_TRUE(shows("videoSize", "320 × 180")) << name;
    EXPECT_TRUE(shows("decoder", "Software (FFmpeg)")) << name << model_.decoder().toStdString();
  }
}

TEST_F(RealTracks, AFileThatFellBackStaysInSoftware) {
  ASSERT_TRUE(plays(clip("sample.mp4")));
  ASSERT_TRUE(waitFor([this] { return position_ > 1.2; }));
  model_.engine().onEvent(event::HardwareDecodeError{});
  EXPECT_TRUE(waitFor([this] {
    return readFile(directory_.filePath("diagnostics/mpv.log"))
        .contains("file-local-options/hwdec=\"no\" -> 1");
  }));
  ASSERT_TRUE(plays(clip("sample.mp4")));
  EXPECT_TRUE(shows("decoder", "Software (stream rejected by VideoToolbox)"));
}

}  // namespace tromelo::testing
