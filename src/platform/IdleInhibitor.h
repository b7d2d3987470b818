#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Clock.h"

namespace tromelo {

/// Ends an inhibition; is called once at most.
using ReleaseInhibition = std::function<void()>;
/// One way to keep the screen and the system awake: asks for it and waits for nothing. The answer
/// comes once, now or later, with what ends the inhibition, or empty where it was refused.
using AskForInhibition = std::function<void(std::function<void(ReleaseInhibition)> answer)>;

/// Keeps the screen and the system awake while that is wanted, in the first way that works. What is
/// granted when it isn't wanted any more is given back, even after our own end. Main thread only.
class IdleInhibitor : public QObject {
 public:
  /// `clock` outlives it.
  IdleInhibitor(std::vector<AskForInhibition> ways, Clock& clock);
  ~IdleInhibitor() override;

  void setInhibited(bool inhibited);

 private:
  void ask(std::size_t way);
  void takeAnswer(unsigned question, ReleaseInhibition release);
  void goOn();

  const std::vector<AskForInhibition> ways_;
  Clock& clock_;
  bool wanted_ = false;
  std::optional<std::size_t> asked_;  // the way whose answer we wait for
  unsigned question_ = 0;             // the last one; answers to others are late
  std::unique_ptr<Clock::Timer> patience_;
  ReleaseInhibition release_;  // empty: not inhibited
};

/// The desktop's portal: neither the screen nor the system goes to sleep. This and the next end by
/// themselves when our connection to the bus does, even by a crash.
AskForInhibition portalInhibition(const QDBusConnection& bus);

/// The older screen saver service.
AskForInhibition screenSaverInhibition(const QDBusConnection& bus);

/// The Wayland host's own protocol, for as long as one of our windows is visible. To be made after
/// the application object.
AskForInhibition hostInhibition();

/// The X server's own, which ends with us too. To be made after the application object; `clock`
/// outlives it.
AskForInhibition serverInhibition(Clock& clock);

}  // namespace tromelo
