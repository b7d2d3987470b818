#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "FakeChooser.h"
#include "FakePlayer.h"
#include "adjustments/AdjustmentValue.h"
#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "playback/PlaybackModel.h"
#include "support/Clips.h"
#include "support/Files.h"
#include "support/HeadlessMpv.h"
#include "support/Home.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

namespace fs = std::filesystem;

/// The engine counts delays more coarsely than we do.
bool isNear(double one, double other) { return std::abs(one - other) < 1e-6; }

/// From the program's start to its end, with a memory of films that stays.
struct FilmSession {
  FilmSession(Home& home, FakePlayer::Log& log)
      : memory_(home.directory_.filePath("films.sqlite"),
                [](const QString& told) { ADD_FAILURE() << told.toStdString(); }),
        model_({.api = headlessMpv(),
                .clock = clock_,
                .files = chooser_,
                .defaults = home.defaults_,
                .diagnosticsDirectory = home.directory_.filePath("state"),
                .makePlayer = [&log](PlaybackModel&) { return std::make_unique<FakePlayer>(log); },
                .films = &memory_}) {
    QObject::connect(&model_, &PlaybackModel::resumed,
                     [this](double position) { resumedAt_ = position; });
    auto& onEvent = model_.engine().onEvent;
    onEvent = [this, toModel = onEvent](const MpvEvent& event) {
      note(event);
      toModel(event);
    };
  }
  ~FilmSession() {
    model_.setShuttingDown(true);
    bool ended = false;
    model_.engine().terminate([&ended] { ended = true; });
    EXPECT_TRUE(waitFor([&ended] { return ended; }));
  }

  [[nodiscard]] bool plays(const fs::path& film, std::optional<double> startAt = {}) {
    first_.reset();
    hasStarted_ = false;
    resumedAt_.reset();
    model_.open(fileUrlFromPath(film.string()), startAt);
    return waitFor([this] { return first_ && model_.film() && !model_.audioTracks().isEmpty(); });
  }
  [[nodiscard]] bool comesTo(double position) {
    return waitFor([=, this] { return std::abs(model_.elapsed() - position) < 3; });
  }

  static qint64 selected(const QList<MediaTrack>& tracks) {
    const auto track = std::ranges::find_if(tracks, &MediaTrack::isSelected);
    return track == tracks.end() ? 0 : track->id;
  }

  SystemClock clock_;
  FakeChooser chooser_;
  FilmMemory memory_;
  std::optional<double> resumedAt_;
  std::optional<double> first_;  // the first position that was reported while the film played
  bool hasStarted_ = false;
  PlaybackModel model_;

 private:
  void note(const MpvEvent& event) {
    if (std::holds_alternative<event::PlaybackRestart>(event)) hasStarted_ = true;
    const auto* change = std::get_if<event::Property>(&event);
    if (!hasStarted_ || !change || change->property != MpvProperty::timePos) return;
    if (const auto* seconds = change->value.as<double>(); seconds && !first_) first_ = *seconds;
  }
};

struct RealFilms : ::testing::Test, Home {
  RealFilms() {
    fs::copy_file(clipPath("long.mkv"), film_);
    writeFile(subtitle_.string(), "1\n00:00:00,500 --> 00:09:00,000\nOne more\n");
  }
  void start() { session_ = std::make_unique<FilmSession>(*this, player_); }
  void restart() {
    session_.reset();
    start();
  }
  /// Plays it, goes there, and ends.
  void leaveAt(double position) {
    start();
    ASSERT_TRUE(session_->plays(film_));
    session_->model_.seekTo(position);
    ASSERT_TRUE(session_->comesTo(position));
    session_.reset();
  }

  FakePlayer::Log player_;
  fs::path folder_ = directory_.path().toStdString();
  fs::path film_ = folder_ / "film.mkv";
  fs::path subtitle_ = folder_ / "added.srt";
  std::unique_ptr<FilmSession> session_;
};

TEST_F(RealFilms, AFilmThatWasRenamedGoesOnWithItsTracksAndDelays) {
  start();
  ASSERT_TRUE(session_->plays(film_));
  auto* model = &session_->model_;
  EXPECT_FALSE(session_->resumedAt_);
  model->selectAudio(2);
  model->addSubtitle(fileUrlFromPath(subtitle_.string()));
  model->setAudioDelay(0.15);
  model->setSubtitleDelay(-0.4);
  model->seekTo(200);
  ASSERT_TRUE(session_->comesTo(200));
  ASSERT_TRUE(waitFor([&] {
    return FilmSession::selected(model->audioTracks()) == 2 &&
           FilmSession::selected(model->subtitleTracks()) == 3;
  }));
  const double left = model->elapsed();
  model->stop();
  ASSERT_TRUE(waitFor([&] { return !model->isLoaded(); }));

  restart();
  const fs::path renamed = folder_ / "renamed.mkv";
  fs::rename(film_, renamed);
  ASSERT_TRUE(session_->plays(renamed));
  model = &session_->model_;
  EXPECT_NEAR(*session_->first_, left, 1) << "jumped there later";
  ASSERT_TRUE(session_->resumedAt_);
  EXPECT_NEAR(*session_->resumedAt_, left, 1);
  EXPECT_TRUE(waitFor([&] {
    return FilmSession::selected(model->audioTracks()) == 2 && isNear(model->audioDelay(), 0.15) &&
           isNear(model->subtitleDelay(), -0.4);
  }));
  const QList<MediaTrack> subtitles = model->subtitleTracks();
  ASSERT_EQ(subtitles.size(), 3);
  EXPECT_TRUE(subtitles[2].isSelected && subtitles[2].isExternal);

  // Nothing was chosen this time, and all of it stays; but the next film has its own.
  ASSERT_TRUE(session_->plays(clipPath("tracks.mkv")));
  EXPECT_TRUE(waitFor([&] { return isNear(model->audioDelay(), 0); }));
  ASSERT_TRUE(session_->plays(renamed));
  EXPECT_TRUE(waitFor([&] { return FilmSession::selected(model->audioTracks()) == 2; }));
}

TEST_F(RealFilms, GoesOnInAQueueButNotWhereItIsToldToBeginOrShallNot) {
  leaveAt(200);
  start();
  ASSERT_TRUE(session_->plays(film_, 60));
  EXPECT_NEAR(*session_->first_, 60, 2);
  EXPECT_FALSE(session_->resumedAt_);

  leaveAt(250);
  start();
  auto& queue = session_->model_;
  ASSERT_TRUE(session_->plays(clipPath("sample.mkv")));
  queue.enqueue({fileUrlFromPath(film_.string())});
  ASSERT_TRUE(waitFor([&] { return queue.hasNext(); }));
  queue.playNext();
  EXPECT_TRUE(waitFor([&] { return session_->resumedAt_.has_value(); }));
  EXPECT_TRUE(session_->comesTo(250));
  queue.startOver();
  EXPECT_TRUE(session_->comesTo(0));
  queue.toggleLoop();
  queue.seekTo(queue.duration() - 1);
  EXPECT_TRUE(session_->comesTo(queue.duration() - 1));
  EXPECT_TRUE(session_->comesTo(0)) << "a round of a loop goes on where the film was left";

  leaveAt(250);
  start();
  session_->model_.settings().setResumesFilms(false);
  ASSERT_TRUE(session_->plays(film_));
  EXPECT_NEAR(*session_->first_, 0, 2);
}

/// What the engine says of all that adjustments are told it by.
std::map<std::string, std::string> adjusted(PlaybackModel& model) {
  std::map<std::string, std::string> values;
  int asked = 0;
  std::set<std::string> names{"video-sync", "interpolation", "secondary-sid", "sub-pos"};
  for (const AdjustmentRow& row : adjustmentRows())
    for (const MpvPropertyWrite& write : engineWrites(row, asMade(row))) names.insert(write.name);
  for (const std::string& name : names)
    model.engine().readProperty(name, [&, name](const std::optional<std::string>& value) {
      values[name] = value.value_or("none");
      ++asked;
    });
  EXPECT_TRUE(waitFor([&] { return asked == std::ssize(names); }));
  return values;
}

TEST_F(RealFilms, WhatIsChangedAboutAFilmIsDoneUndoneAndKeptWithIt) {
  start();
  fs::copy_file(clipPath("tracks.mkv"), film_, fs::copy_options::overwrite_existing);
  ASSERT_TRUE(session_->plays(film_));
  auto made = adjusted(session_->model_);
  for (const AdjustmentRow& row : adjustmentRows()) {
    // Without a screen there is nothing to be in step with.
    if (row.adjustment == Adjustment::smoothMotion || row.needs) continue;
    auto& model = session_->model_;
    if (row.adjustment == Adjustment::crop)
      model.adjust(row.adjustment, "300x100+10+40");
    else
      model.stepAdjustment(row.adjustment, 1);
    EXPECT_TRUE(waitFor([&] { return adjusted(model) != made; })) << row.name;
    EXPECT_FALSE(model.changes().isEmpty()) << row.name;
    model.makeAsMade(row.group);
    EXPECT_TRUE(waitFor([&] { return adjusted(model) == made; })) << row.name;
    EXPECT_TRUE(model.changes().isEmpty()) << row.name;
  }
  for (const Adjustment one : {Adjustment::zoom, Adjustment::secondSubtitle,
                               Adjustment::subtitlePosition, Adjustment::nightMode})
    session_->model_.stepAdjustment(one, -1);
  session_->model_.useForAll(AdjustmentGroup::sound);
  ASSERT_TRUE(waitFor([&] { return session_->model_.subtitleTracks()[3].isSecond; }));
  const auto changed = adjusted(session_->model_);
  session_->model_.seekTo(3);
  ASSERT_TRUE(session_->comesTo(3));

  restart();
  ASSERT_TRUE(session_->plays(film_));
  EXPECT_TRUE(waitFor([&] { return adjusted(session_->model_) == changed; }));
  made["af"] = changed.at("af");
  ASSERT_TRUE(session_->plays(clipPath("sample.mkv")));
  EXPECT_TRUE(waitFor([&] { return adjusted(session_->model_) == made; })) << "another film";
}

TEST_F(RealFilms, AFilmInPrivateLeavesNoTrace) {
  start();
  session_->model_.setPrivate(true);
  ASSERT_TRUE(session_->plays(film_));
  session_->model_.seekTo(200);
  ASSERT_TRUE(session_->comesTo(200));
  const auto isInLog = [this] {
    return readFile(directory_.filePath("state/mpv.log"))
        .contains(film_.filename().string().c_str());
  };
  EXPECT_FALSE(isInLog());
  restart();
  ASSERT_TRUE(session_->plays(film_));
  EXPECT_FALSE(session_->resumedAt_);
  EXPECT_TRUE(waitFor(isInLog));
}

}  // namespace tromelo::testing
