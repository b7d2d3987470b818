#include <QFile>
#include <QJsonArray>
#include <semaphore>

#include "ModelTest.h"
#include "platform/FilePath.h"
#include "playback/RecentFiles.h"
#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

const QString kRecents = "recentFiles";

std::string names(const QList<QUrl>& files) {
  std::string all;
  for (const QUrl& file : files) all += lastPathComponent(file).toStdString() + ' ';
  return all;
}

QUrl file(const std::string& name) { return fileUrlFromPath("/films/" + name); }

RecentFiles played(const std::string& each) {
  RecentFiles recents;
  for (const char name : each) recents.remember(file({name}));
  return recents;
}

TEST(RecentFilesTest, KeepsTheNewestTwelveOnce) {
  EXPECT_EQ(names(played("abc").files()), "c b a ");
  EXPECT_EQ(names(played("abca").files()), "a c b ");
  EXPECT_EQ(names(played("abcdefghijklm").files()), "m l k j i h g f e d c b ");
  RecentFiles recents = played("abc");
  recents.remove(file("b"));
  recents.remove(file("x"));
  EXPECT_EQ(names(recents.files()), "c a ");
}

TEST(RecentFilesTest, ShowsWhatIsThereInStoredOrderAndForgetsNothingUnanswered) {
  RecentFiles recents(
      QJsonArray{"/films/a", "/films/b", "/films/a", 7, "", "/films/c", "/films/d"});
  EXPECT_EQ(names(recents.unknown()), "a b c d ");
  recents.found(file("c"), true);
  recents.found(file("b"), false);
  recents.found(file("a"), true);
  EXPECT_EQ(names(recents.files()), "a c ");
  recents.remember(file("x"));
  EXPECT_EQ(recents.stored(), (QJsonArray{"/films/x", "/films/a", "/films/c", "/films/d"}));
  recents.remember(file("d"));  // played before its answer, which then says nothing new
  recents.found(file("d"), false);
  EXPECT_EQ(names(recents.files()), "d x a c ");
}

TEST(RecentFilesTest, LoadsWhateverIsStored) {
  QJsonArray many;
  for (int i = 0; i < 10'000; ++i) many.append(QString("/films/%1").arg(i));
  EXPECT_EQ(RecentFiles(many).unknown().size(), RecentFiles::kMost);
  for (const QJsonValue& wrong : {QJsonValue("/films/a"), QJsonValue(3), QJsonValue()})
    EXPECT_TRUE(RecentFiles(wrong).unknown().isEmpty());
}

struct StoredTest : ModelTest {
  std::string make(const QByteArray& name) {
    const std::string path = directory_.path().toStdString() + '/' + name.toStdString();
    writeFile(path);
    return path;
  }
  void play(const std::string& path) {
    report(event::StartFile{});
    report(MpvProperty::path, path);
    report(event::FileLoaded{});
  }
};

TEST_F(StoredTest, RemembersWhatPlaysAndShowsWhatIsThereAfterARestart) {
  const std::string kept = make("kept.mkv");
  const std::string bytes = make("\xff\xfe not UTF-8.mkv");
  const std::string gone = make("gone.mkv");
  play(gone);
  play(bytes);
  report(MpvProperty::path, kept);  // the engine says so late
  EXPECT_EQ(model().recents().size(), 3);
  EXPECT_EQ(model().lastURL(), fileUrlFromPath(kept));
  ASSERT_TRUE(QFile::remove(QString::fromStdString(gone)));
  remake();
  const QList<QUrl> there{fileUrlFromPath(kept), fileUrlFromPath(bytes)};
  EXPECT_TRUE(waitFor([&] { return model().recents() == there; }));
  EXPECT_EQ(defaults_.value(kRecents).toArray().size(), 3);  // loading writes nothing
  model().removeRecent(QUrl::fromLocalFile(QString::fromStdString(kept)));
  EXPECT_EQ(model().recents(), there.sliced(1));
  EXPECT_EQ(pathFromStored(defaults_.value(kRecents)[0].toString()), bytes);
  model().removeRecent(there[1]);
  EXPECT_TRUE(waitFor([this] { return model().hasNoRecents(); }));
  std::remove(bytes.c_str());  // which the directory's own clearing up doesn't find
}

TEST_F(StoredTest, APathIsOfTheFileThatHasStartedSince) {
  QStringList told;
  QObject::connect(&model(), &PlaybackModel::remembered, &model(),
                   [&told](const QUrl& file) { told << lastPathComponent(file); });
  QObject::connect(&model(), &PlaybackModel::forgotten, &model(),
                   [&told](const QUrl& file) { told << "not " + lastPathComponent(file); });
  report(MpvProperty::path, "/films/a.mkv");  // which can't be played
  report(event::StartFile{2});
  report(event::FileLoaded{});
  EXPECT_TRUE(model().recents().isEmpty());
  report(MpvProperty::path, "/films/b.mkv");
  EXPECT_EQ(names(model().recents()), "b.mkv ");
  model().removeRecent(file("b.mkv"));

  report(event::StartFile{3});  // the same file: the engine sees no change to report
  takeRequests();
  report(event::FileLoaded{});
  const Requests asked = takeRequests();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0][1], "path");
  const char* path = "/films/b.mkv";
  mpv_event_property answer{"path", MPV_FORMAT_OSD_STRING, &path};
  mpv_.queue(MPV_EVENT_GET_PROPERTY_REPLY, &answer, std::stoull(asked[0][2]));
  model().engine().drainEvents();
  EXPECT_EQ(names(model().recents()), "b.mkv ");
  EXPECT_EQ(told, (QStringList{"b.mkv", "not b.mkv", "b.mkv"}));
}

TEST_F(StoredTest, AShareThatDoesNotAnswerHoldsNothingUp) {
  auto answers = std::make_shared<std::counting_semaphore<>>(0);
  fileExists_ = [answers](const std::string& path) {
    if (path.ends_with("slow")) answers->acquire();
    return true;
  };
  defaults_.set(kRecents, QJsonArray{"/share/slow", "/films/quick"});
  remake();
  EXPECT_TRUE(model().recents().isEmpty());  // not even a quick answer is waited for
  EXPECT_FALSE(model().hasNoRecents());
  ASSERT_TRUE(waitFor([this] { return names(model().recents()) == "quick "; }));
  play("/films/new");
  EXPECT_EQ(names(model().recents()), "new quick ");
  EXPECT_EQ(defaults_.value(kRecents).toArray().size(), 3);
  answers->release();
  EXPECT_TRUE(waitFor([this] { return names(model().recents()) == "new slow quick "; }));
  remake();
  model_.reset();  // with a question open: its answer finds nobody
  answers->release();
  settle();
}

TEST_F(StoredTest, SettingsReachTheEngineAtTheStartAndOnceForEachWriteWithTheFinalValues) {
  EXPECT_EQ(startRequests_.front(),
            (std::vector<std::string>{"set", "sub-font", "Helvetica Neue"}));
  model().settings().setSubtitleFont("Arial");
  model().settings().resetSubtitleStyle();
  model().settings().setSubtitleSize(60);
  EXPECT_TRUE(takeRequests().empty());
  settle();
  Requests sent = takeRequests();
  EXPECT_EQ(sent.size() % startRequests_.size(), 0U) << "always all of them";
  std::erase_if(sent, [](const auto& words) { return words[1] != "sub-font-size"; });
  EXPECT_GT(sent.size(), 1U);
  EXPECT_EQ(sent, Requests(sent.size(), {"set", "sub-font-size", "60.0"}));
}

TEST_F(StoredTest, WhatIsToldLeavesPlaybackAlone) {
  load();
  const QString status = model().status();
  model().tell("Full.");
  EXPECT_EQ(model().errorMessage(), "Full.");
  EXPECT_EQ(model().status(), status);
  EXPECT_EQ(model().buffering(), "Ready");
}

}  // namespace tromelo::testing
