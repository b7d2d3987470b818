#include <algorithm>
#include <cmath>

#include "platform/PlatformWording.h"
#include "playback/PlaybackModel.h"
#include "player/PlayerActions.h"

namespace tromelo {

namespace {

using Held = PlayerActions::Held;

bool repeats(Held held, const PlaybackModel& playback) {
  return held == Held::again || (held == Held::whenPaused && playback.isPaused());
}

const PlayerActions::Action* firstOf(const auto& isIt) {
  for (const PlayerActions::Group& group : PlayerActions::groups)
    for (const PlayerActions::Line& line : group.lines)
      for (const PlayerActions::Action& action : line.actions)
        if (isIt(action)) return &action;
  return nullptr;
}

}  // namespace

bool PlayerActions::Key::matches(const KeyPress& press) const {
  if ((press.modifiers & ~anyway) != modifiers) return false;
  if (key != Qt::Key_unknown) return press.key == key;
  return press.characters.size() == 1 && characters.contains(press.characters);
}

const PlayerActions::Action* PlayerActions::find(const KeyPress& press) {
  return firstOf([&](const Action& action) {
    return action.act &&
           std::ranges::any_of(action.keys, [&](const Key& key) { return key.matches(press); });
  });
}

QString PlayerActions::perform(const Action& action, bool isRepeat, PlayerWindowController& player,
                               PlaybackModel& playback) {
  if (isRepeat && !repeats(action.held, playback)) return {};
  playback.catchUp();
  return action.act(player, playback);
}

QKeySequence PlayerActions::programKey(Program command) {
  const Action* action = firstOf([&](const Action& one) { return one.program == command; });
  const Key& key = action->keys.front();
  return QKeyCombination(key.modifiers, key.key);
}

QString PlayerActions::tip(Tip tip) {
  const char* text = nullptr;
  firstOf([&](const Action& action) {
    const auto told = std::ranges::find(action.tips, tip, &std::pair<Tip, const char*>::first);
    if (told != action.tips.end()) text = told->second;
    return text != nullptr;
  });
  return platformWording(tr(text));
}

QString PlayerActions::volumeText(const PlaybackModel& playback) {
  return tr("Volume %1%").arg(std::lround(playback.volume()));
}

}  // namespace tromelo
