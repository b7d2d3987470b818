#include <QDir>
#include <QElapsedTimer>
#include <filesystem>
#include <fstream>
#include <thread>

#include "RealPlayback.h"
#include "support/Files.h"
#include "support/HostileFiles.h"
#include "support/Table.h"

namespace tromelo::testing {

namespace fs = std::filesystem;

struct BadInput : RealPlayback {
  [[nodiscard]] bool failsWith(const QUrl& url, const QString& message) {
    player_.take();
    model_.open(url);
    return waitFor([&] { return model_.errorMessage() == message; });
  }

  /// Waits, with nobody listening to the engine, until its log says something.
  [[nodiscard]] bool engineLogs(const QByteArray& text) {
    QElapsedTimer waited;
    for (waited.start(); waited.elapsed() < 30000; std::this_thread::yield())
      if (readFile(directory_.filePath("diagnostics/mpv.log")).contains(text)) return true;
    return false;
  }

  fs::path home() const { return directory_.path().toStdString(); }
};

TEST_F(BadInput, WhatCannotBePlayedIsNamedAndTheNextFilePlays) {
  for (const auto& [name, reason] : Table<const char*, QString>{
           {"missing.mkv", "loading failed"},
           {"empty.mkv", "unrecognized file format"},
           {"text.mkv", "unrecognized file format"},
           {"text.txt", "unrecognized file format"},
           {"headless.mp4", "unrecognized file format"},
           {"unknown-codec.mkv", "no audio or video data played"},
       }) {
    const QUrl url = clip(name);
    const QString message =
        QString("Could not play %1: %2").arg(lastPathComponentWithoutExtension(url), reason);
    EXPECT_TRUE(failsWith(url, message)) << name << model_.errorMessage().toStdString();
    EXPECT_EQ(model_.buffering(), "Unavailable") << name;
    EXPECT_TRUE(waitFor([this] { return player_.calls.contains("library"); })) << name;
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
  for (const auto& [what, files, isBusy] : Table<const char*, QList<QUrl>, bool>{
           {"a folder while the main thread is busy", {folder}, true},
           {"a list", {fileUrlFromPath(list.string())}, false},
           {"a folder behind a file", {clip("short-square.mp4"), folder}, false}}) {
    player_.take();
    model_.open(files);
    ASSERT_TRUE(!isBusy || engineLogs("3-good"));
    ASSERT_TRUE(waitFor([this] { return model_.title() != "3-good"; })) << what;
    ASSERT_TRUE(waitFor([this] { return model_.title() == "3-good" && model_.isLoaded(); }))
        << what;
    EXPECT_EQ(player_.calls.filter("toast").join('\n'),
              "toast Skipped 2-broken: unrecognized file format")
        << what;
    EXPECT_FALSE(player_.calls.contains("library")) << what;
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

TEST_F(BadInput, AHostileFileOfEachKindPlaysOrIsNamed) {
  HostileFiles files((home() / "hostile").string(), 18);
  for (int number = 0; number < HostileFiles::kinds; ++number) {
    const auto file = files.make(number);
    restarts_ = 0;
    model_.open(fileUrlFromPath(file.path));
    EXPECT_TRUE(waitFor([this] { return restarts_ > 0 || !model_.errorMessage().isEmpty(); }))
        << file.what;
  }
  EXPECT_TRUE(plays(clip("short-wide.mp4")));
}

TEST_F(BadInput, AnEmptyDirectoryIsNoFilm) {
  fs::create_directory(home() / "films");
  model_.open(fileUrlFromPath((home() / "films").string()));
  EXPECT_TRUE(waitFor([this] { return model_.status() != "Opening media"; }));
  EXPECT_FALSE(model_.isLoaded());
  EXPECT_TRUE(plays(clip("short-wide.mp4")));
}

}  // namespace tromelo::testing
