#include "app/StateReport.h"

#include <QMetaProperty>

#include "platform/PlatformWording.h"
#include "playback/PlaybackModel.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

constexpr std::chrono::milliseconds kTogether(20);

QString yesNo(bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); }

QString panelText(std::optional<PlayerPanel> panel) {
  if (!panel) return QStringLiteral("none");
  return QString::fromLatin1(QMetaEnum::fromType<PlayerPanel>().valueToKey(int(*panel)));
}

}  // namespace

StateReport::StateReport(const PlaybackModel& playback, const PlayerWindowController& player,
                         Clock& clock, std::function<QString()> windowText, std::FILE* out)
    : playback_(playback),
      player_(player),
      clock_(clock),
      windowText_(std::move(windowText)),
      out_(out) {
  const QMetaObject* type = &PlaybackState::staticMetaObject;
  const QMetaMethod slot = metaObject()->method(metaObject()->indexOfMethod("schedule()"));
  for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
    if (type->property(i).hasNotifySignal())
      connect(&playback, type->property(i).notifySignal(), this, slot);
  connect(&player, &PlayerWindowController::windowStateChanged, this, &StateReport::schedule);
  connect(&player.chrome(), &PlayerChrome::panelChanged, this, &StateReport::schedule);
  schedule();
}

void StateReport::schedule() {
  if (pending_) return;
  pending_ = clock_.after(kTogether, [this] {
    pending_.reset();
    flush();
  });
}

void StateReport::line(const QString& key, const QString& value) {
  if (said_.value(key) == value && said_.contains(key)) return;
  said_.insert(key, value);
  QString oneLine = value;
  out_ << key << ": " << oneLine.replace(u'\n', u' ').replace(u'\r', u' ') << '\n';
}

void StateReport::flush() {
  line(QStringLiteral("title"), playback_.title());
  line(QStringLiteral("signal"), playback_.dynamicRange().label());
  line(QStringLiteral("output"), playback_.output());
  line(QStringLiteral("decoder"), platformWording(playback_.decoder()));
  line(QStringLiteral("decoder-drops"), QString::number(playback_.decoderFrameDrops()));
  line(QStringLiteral("output-drops"), QString::number(playback_.outputFrameDrops()));
  line(QStringLiteral("duration"), QString::number(playback_.duration(), 'f', 3));
  line(QStringLiteral("position"), QString::number(playback_.elapsed(), 'f', 3));
  line(QStringLiteral("fullscreen"), yesNo(playback_.isFullscreen()));
  line(QStringLiteral("window"), windowText_());
  line(QStringLiteral("panel"), panelText(player_.chrome().panel()));
  line(QStringLiteral("error"), playback_.errorMessage());
  line(QStringLiteral("status"), playback_.status());
  out_.flush();
}

}  // namespace tromelo
