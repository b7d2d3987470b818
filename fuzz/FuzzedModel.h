#pragma once

#include <QJsonValue>
#include <QTemporaryDir>
#include <deque>

#include "Input.h"
#include "playback/FakeChooser.h"
#include "playback/FakePlayer.h"
#include "playback/PlaybackModel.h"
#include "support/FakeMpv.h"
#include "support/Home.h"
#include "support/ManualClock.h"

namespace tromelo::fuzz {

/// The model over an engine that reports whatever an input says.
class FuzzedModel : testing::Home {
 public:
  FuzzedModel();

  PlaybackModel& model() { return *model_; }

  /// A word for the kind of event or the name of a property, and what it carries as JSON; texts are
  /// bytes, written as the letters of Latin-1. False for what is no event.
  bool report(Input line);

  /// Everything that views and desktops read can be read, and nothing senseless was asked for.
  void checkAll();

 private:
  mpv_node nodeOf(const QJsonValue& value);
  const char* textOf(const QJsonValue& value);
  void queue(mpv_event_id id, const QJsonValue& value);
  bool reportProperty(std::string_view name, const QJsonValue& value);

  testing::FakeMpv mpv_;
  testing::ManualClock clock_;
  testing::FakeChooser chooser_;
  testing::FakePlayer::Log player_;
  std::unique_ptr<PlaybackModel> model_;

  // What the engine owns until the next event.
  std::deque<std::string> texts_;
  std::deque<std::vector<mpv_node>> values_;
  std::deque<std::vector<char*>> keys_;
  std::deque<mpv_node_list> lists_;
};

}  // namespace tromelo::fuzz
