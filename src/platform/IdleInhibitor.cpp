#include "platform/IdleInhibitor.h"

#include <QPointer>
#include <utility>

namespace tromelo {

namespace {

/// How long a way may keep silent before the next one is tried.
constexpr std::chrono::milliseconds kPatience(5000);

}  // namespace

IdleInhibitor::IdleInhibitor(std::vector<AskForInhibition> ways, Clock& clock)
    : ways_(std::move(ways)), clock_(clock) {}

IdleInhibitor::~IdleInhibitor() { setInhibited(false); }

void IdleInhibitor::setInhibited(bool inhibited) {
  if (std::exchange(wanted_, inhibited) == inhibited) return;
  if (wanted_ && !asked_ && !release_) ask(0);
  if (!wanted_ && release_) std::exchange(release_, {})();
}

void IdleInhibitor::ask(std::size_t way) {
  if (way >= ways_.size()) return;
  asked_ = way;
  patience_ = clock_.after(kPatience, [this] { goOn(); });
  const auto answer = [self = QPointer(this), question = ++question_](ReleaseInhibition release) {
    if (self)
      self->takeAnswer(question, std::move(release));
    else if (release)
      release();
  };
  ways_[way](answer);
}

void IdleInhibitor::takeAnswer(unsigned question, ReleaseInhibition release) {
  const bool isLate = question != question_ || !asked_;
  if (!release) return isLate ? void() : goOn();
  // A late answer is as good as any while there is no other.
  const bool keeps = wanted_ && !release_;
  if (keeps || !isLate) {
    asked_.reset();
    patience_.reset();
  }
  if (!keeps) return release();
  release_ = std::move(release);
}

void IdleInhibitor::goOn() {
  const std::size_t next = asked_.value_or(0) + 1;
  asked_.reset();
  patience_.reset();
  if (wanted_) ask(next);
}

}  // namespace tromelo
