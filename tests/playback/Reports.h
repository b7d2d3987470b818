#pragma once

#include "playback/PlaybackModel.h"

namespace tromelo::testing {

inline MpvNode track(const char* type, std::int64_t id, const char* title, bool isSelected,
                     const char* codec = "") {
  return MpvNode{MpvMap{{"type", MpvNode{type}},
                        {"id", MpvNode{id}},
                        {"title", MpvNode{title}},
                        {"codec", MpvNode{codec}},
                        {"selected", MpvNode{isSelected}}}};
}

/// A test that says what the engine reports to a model.
struct Reports {
  virtual ~Reports() = default;
  virtual PlaybackModel& model() = 0;

  void report(const MpvEvent& event) { model().engine().onEvent(event); }
  void report(MpvProperty property, MpvValue value) {
    report(MpvEvent(std::in_place_type<event::Property>, property, std::move(value)));
  }
  /// A file that plays.
  void load(double duration = 0) {
    report(event::StartFile{});
    report(event::FileLoaded{});
    report(MpvProperty::duration, duration);
  }
  /// `names` in order, entries 1, 2, …; `current` the position of the one that plays.
  void reportPlaylist(const std::vector<std::string>& names, std::size_t current) {
    MpvList list;
    for (std::size_t i = 0; i < names.size(); ++i) {
      MpvMap entry{{"filename", MpvNode{"/films/" + names[i]}},
                   {"id", MpvNode{static_cast<std::int64_t>(i + 1)}}};
      if (i == current) entry["current"] = MpvNode{true};
      list.push_back(MpvNode{entry});
    }
    report(MpvProperty::playlist, MpvNode{list});
  }
  /// Each named "At " and its second.
  void reportChapters(const std::vector<double>& times) {
    MpvList list;
    for (const double time : times)
      list.push_back(MpvNode{
          MpvMap{{"title", MpvNode{"At " + std::to_string(int(time))}}, {"time", MpvNode{time}}}});
    report(MpvProperty::chapterList, MpvNode{list});
  }
  void reportTracks(const MpvList& tracks) { report(MpvProperty::trackList, MpvNode{tracks}); }
};

}  // namespace tromelo::testing
