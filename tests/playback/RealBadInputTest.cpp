#include <QDir>
#include <QElapsedTimer>
#include <filesystem>
#include <fstream>
#include <thread>

#include "RealPlayback.h"

namespace tromelo {

namespace {

namespace fs = std::filesystem;
using testing::clipPath;
using testing::RealPlayback;
using testing::waitFor;

struct BadInput : RealPlayback {
  [[nodiscard]] bool failsWith(const QUrl& url, const QString& message) {
    player_.take();
    model_.open(url);
    return waitFor([&] { return model_.errorMessage() == message; });
  }

  /// Waits, with nobody listening to the engine, until its log says something.
  [[nodiscard]] bool engineLogs(const QByteArray& text) {
    QElapsedTimer waited;
    for (waited.start(); waited.elapsed() < 30000; std::this_thread::yield()) {
      QFile log(directory_.filePath("diagnostics/mpv.log"));
      if (log.open(QFile::ReadOnly) && log.readAll().contains(text)) return true;
    }
    return false;
  }

  fs::path home() const { return directory_.path().toStdString(); }
};

}  // namespace

TEST_F(BadInput, WhatCannotBePlayedIsNamedAndTheNextFilePlays) {
  const struct {
    const char* name;
    QString reason;
  } rows[] = {
      {"missing.mkv", "loading failed"},
      {"empty.mkv", "unrecognized file format"},
      {"text.mkv", "unrecognized file format"},
      {"text.txt", "unrecognized file format"},
      {"headless.mp4", "unrecognized file format"},
      {"unknown-codec.mkv", "no audio or video data played"},
  };
  for (const auto& row : rows) {
    const QUrl url = clip(row.name);
    const QString message = QStringLiteral("Could not play %1: %2")
                                .arg(lastPathComponentWithoutExtension(url), row.reason);
    EXPECT_TRUE(failsWith(url, message)) << row.name << model_.errorMessage().toStdString();
    EXPECT_EQ(model_.buffering(), "Unavailable") << row.name;
    EXPECT_TRUE(waitFor([this] { return player_.calls.contains("library"); })) << row.name;
  }
  EXPECT_TRUE(plays(clip("short-wide.mp4")));
  EXPECT_EQ(model_.errorMessage(), "");
}

TEST_F(BadInput, ACodecThatFailsLeavesTheNextFilePlayable) {
  model_.open(clip("noise.mkv"));
  ASSERT_TRUE(waitFor([this] { return model_.isLoaded(); }));
  EXPECT_TRUE(plays(clip("short-wide.mp4")));
}

TEST_F(BadInput, ListsOfFilesPlayOnAfterABrokenOne) {
  const fs::path films = home() / "films";
  fs::create_directory(films);
  fs::copy(clipPath("short-wide.mp4"), films / "1-good.mp4");
  fs::copy(clipPath("text.mkv"), films / "2-broken.mkv");
  fs::copy(clipPath("short-wide.mp4"), films / "3-good.mp4");
  const fs::path list = home() / "list.m3u";
  std::ofstream(list) << "films/1-good.mp4\nfilms/2-broken.mkv\nfilms/3-good.mp4\n";
  const QUrl folder = fileUrlFromPath(films.string());
  const struct {
    const char* what;
    QList<QUrl> files;
    bool isBusy;
  } rows[] = {{"a folder while the main thread is busy", {folder}, true},
              {"a list", {fileUrlFromPath(list.string())}, false},
              {"a folder behind a file", {clip("short-square.mp4"), folder}, false}};
  for (const auto& row : rows) {
    player_.take();
    model_.open(row.files);
    ASSERT_TRUE(!row.isBusy || engineLogs("3-good"));
    ASSERT_TRUE(waitFor([this] { return model_.title() == "3-good" && model_.isLoaded(); }))
        << row.what;
    EXPECT_EQ(player_.calls.filter("toast").join('\n'),
              "toast Skipped 2-broken: unrecognized file format")
        << row.what;
    EXPECT_FALSE(player_.calls.contains("library")) << row.what;
  }
}

TEST_F(BadInput, AnyNameThatAFileSystemAllowsPlays) {
  std::string deep = (home() / "deep").string();
  while (deep.size() < 3800) deep += "/" + std::string(180, 'd');
  deep += "/";
  deep += std::string(3996 - deep.size(), 'f') + ".mp4";
  const std::string base = home().string() + "/";
  for (const std::string& path : {
           base + "new\nline.mp4",
           base + "'quotes' \"both\".mp4",
           base + "comma, start=5,hwdec=no.mp4",
           base + "percent %20 %n#?&.mp4",
           base + "-start=3.mp4",
           base + "not utf-8 \xff\xfe.mp4",
           base + "\xe6\x98\xa0\xe7\x94\xbb.mp4",
           base + "${media-title}.mp4",
           deep,
       }) {
    fs::create_directories(fs::path(path).parent_path());
    fs::copy(clipPath("short-wide.mp4"), path);
    EXPECT_TRUE(plays(fileUrlFromPath(path))) << path;
    EXPECT_TRUE(waitFor([&] { return pathFromFileUrl(model_.lastURL()) == path; })) << path;
    EXPECT_EQ(model_.errorMessage(), "") << path;
    fs::remove(path);  // not every name is one that Qt's own clearing up can spell
  }
  EXPECT_EQ(deep.size(), 4000u);
}

TEST_F(BadInput, AFileThatIsRemovedPlaysOn) {
  const std::string path = (home() / "gone.mkv").string();
  fs::copy(clipPath("sample.mkv"), path);
  ASSERT_TRUE(plays(fileUrlFromPath(path)));
  fs::remove(path);
  ASSERT_TRUE(seeks([this] { model_.seekTo(8); }));
  EXPECT_TRUE(waitFor([this] { return position_ > 8.1; }));
  EXPECT_EQ(model_.errorMessage(), "");
}

TEST_F(BadInput, ACutOffFilePlaysAsFarAsItGoes) {
  ASSERT_TRUE(plays(clip("truncated.mkv"), 4));
  EXPECT_TRUE(waitFor([this] { return model_.isPaused(); }));
  EXPECT_LT(position_, 7);
  EXPECT_EQ(model_.errorMessage(), "");
}

TEST_F(BadInput, SeveralMissingFilesAreEachNamed) {
  model_.open(QList<QUrl>{clip("one.mkv"), clip("two.mkv"), clip("three.mkv")});
  ASSERT_TRUE(waitFor([this] { return player_.calls.contains("library"); }));
  EXPECT_TRUE(player_.calls.contains("toast Skipped one: loading failed"));
  EXPECT_TRUE(player_.calls.contains("toast Skipped two: loading failed"));
  EXPECT_EQ(model_.errorMessage(), "Could not play three: loading failed");
}

TEST_F(BadInput, AnEmptyDirectoryIsNoFilm) {
  fs::create_directory(home() / "films");
  model_.open(fileUrlFromPath((home() / "films").string()));
  EXPECT_TRUE(waitFor([this] { return model_.status() != "Opening media"; }));
  EXPECT_FALSE(model_.isLoaded());
  EXPECT_TRUE(plays(clip("short-wide.mp4")));
}

}  // namespace tromelo
