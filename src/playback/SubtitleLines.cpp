#include "playback/SubtitleLines.h"

#include <algorithm>
#include <utility>

namespace tromelo {

namespace {

constexpr double kSame = 0.01;  // seconds: what the clocks of two formats may differ by

/// An effect on the screen is often made of a line that is said again and again.
bool goesOn(const SubtitleLine& line, const SubtitleLine& next) {
  return next.text == line.text && next.start <= line.end + kSame;
}

}  // namespace

void SubtitleLines::setSource(const Source& source) {
  if (source_ == source) return;
  source_ = source;
  restart();
}

void SubtitleLines::setWanted(bool isWanted) {
  isWanted_ = isWanted;
  tryAgain();
}

/// The disk may be there again.
void SubtitleLines::tryAgain() {
  if (state_ == State::failed) state_ = State::idle;
  goOn();
}

void SubtitleLines::restart() {
  process_.end();
  state_ = State::idle;
  clear();
  goOn();
  grant();
  Q_EMIT changed();
}

void SubtitleLines::clear() {
  progress_ = 0;
  if (lines_.isEmpty()) return;
  lines_.clear();
  Q_EMIT replaced();
}

void SubtitleLines::goOn() {
  const bool isMeant = isWanted_ || wish_;
  if (state_ == State::reading && !isMeant) {
    process_.end();
    state_ = State::idle;
  }
  if (state_ != State::idle || !isMeant || source_.kind != Source::Kind::text) return;
  clear();
  state_ = State::reading;
  process_.read(source_.request, [this](const std::optional<LineNews>& news) { take(news); });
  Q_EMIT changed();
}

void SubtitleLines::take(const std::optional<LineNews>& news) {
  if (!news) state_ = State::failed;
  if (news) {
    add(news->lines);
    progress_ = std::max(progress_, news->progress);
    if (news->isEnd) state_ = State::whole;
  }
  grant();
  Q_EMIT changed();
}

void SubtitleLines::add(const QList<SubtitleLine>& fresh) {
  const auto first = static_cast<int>(lines_.size());
  bool isInOrder = true;
  for (SubtitleLine line : fresh) {
    line.start -= source_.begin;
    line.end -= source_.begin;
    if (!lines_.isEmpty() && goesOn(lines_.last(), line)) {
      lines_.last().end = std::max(lines_.last().end, line.end);
      continue;
    }
    isInOrder &= lines_.isEmpty() || lines_.last().start <= line.start;
    lines_.append(line);
  }
  if (!isInOrder) {
    std::ranges::stable_sort(lines_, {}, &SubtitleLine::start);
    Q_EMIT replaced();
  } else if (first < lines_.size()) {
    Q_EMIT appended(first);
  }
}

void SubtitleLines::findNext(double seconds,
                             std::function<void(std::optional<double> start)> found) {
  wish_ = Wish{seconds, std::move(found)};
  tryAgain();
  grant();
}

void SubtitleLines::grant() {
  if (!wish_) return;
  const auto next =
      std::ranges::upper_bound(lines_, wish_->seconds + kSame, {}, &SubtitleLine::start);
  if (next == lines_.end() && isReading()) return;
  const auto start = next == lines_.end() ? std::nullopt : std::optional(next->start);
  std::exchange(wish_, std::nullopt)->found(start);
  goOn();
}

QString SubtitleLines::note() const {
  if (!lines_.isEmpty()) return {};
  switch (source_.kind) {
    case Source::Kind::none:
      return tr("No subtitles are shown.");
    case Source::Kind::pictures:
      return tr("These subtitles are pictures: there are no lines to list.");
    case Source::Kind::unreadable:
      return tr("The lines of these subtitles can't be listed.");
    case Source::Kind::text:
      break;
  }
  if (isReading()) return tr("The lines are being read…");
  return state_ == State::failed ? tr("The subtitles couldn't be read; look whether their file is "
                                      "still there.")
                                 : tr("These subtitles have no lines.");
}

}  // namespace tromelo
