#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "platform/Clock.h"

namespace tromelo {

/// Notices that the engine hangs: a film that should play doesn't come further, one that is opened
/// isn't there yet, or what it was told isn't done, and a question isn't answered. A film that
/// stands still by itself (a still picture, a slow share) is told from that by the answer. Main
/// thread only.
class EngineWatch {
 public:
  struct Engine {
    /// For how long it may be silent; zero where it has nothing to do.
    std::function<std::chrono::seconds()> patience;
    /// Asks it something that both its core and its output have to answer.
    std::function<void(std::function<void()> answered)> ask;
    std::function<void()> hangs;
    /// It has answered, but the film hasn't come further.
    std::function<void()> stands;
    /// The film moves, and stopped() will be called when it does no more: no need to look.
    std::function<bool()> moves = [] { return false; };
  };

  EngineWatch(Clock& clock, Engine engine);

  /// Something was heard of it, such as that the film has come further.
  void heard();
  /// It was told to do something, and has yet to say what came of it.
  void told();
  /// It moves no more, or whether it does has to be looked at again.
  void stopped();

 private:
  void begin();
  void look();
  void answered();

  Clock& clock_;
  const Engine engine_;
  bool hasHeard_ = false;
  bool rests_ = false;
  int silentLooks_ = 0;
  std::unique_ptr<Clock::Timer> next_;  // while something should play
};

}  // namespace tromelo
