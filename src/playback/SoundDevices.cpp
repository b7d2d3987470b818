#include "playback/SoundDevices.h"

#include <algorithm>
#include <utility>

#include "engine/MpvEngine.h"
#include "engine/MpvValue.h"
#include "settings/PlayerSettings.h"

namespace tromelo {

namespace {

/// The engine's name for the desktop's choice.
const QString kDesktops = QStringLiteral("auto");

}  // namespace

SoundDevices::SoundDevices(MpvEngine& engine, PlayerSettings& settings, Find find)
    : engine_(engine), settings_(settings), find_(std::move(find)) {
  connect(&settings, &PlayerSettings::changed, this, [this] {
    isElsewhere_ = false;  // the engine is told of all settings again
    Q_EMIT changed();
  });
}

QString SoundDevices::wanted() const { return settings_.audioDevice(); }

void SoundDevices::refresh() {
  refresh([] {});
}

void SoundDevices::refresh(std::function<void()> refreshed) {
  looks_.run(find_, [this, refreshed = std::move(refreshed)](const MpvValue& list) {
    take(list);
    refreshed();
  });
}

bool SoundDevices::hasOneOf(const std::string& driver) const {
  const QString prefix = QString::fromStdString(driver) + u'/';
  return std::ranges::any_of(devices_,
                             [&](const Device& device) { return device.name.startsWith(prefix); });
}

void SoundDevices::take(const MpvValue& list) {
  QList<Device> devices;
  for (const MpvMap* entry : list.list()) {
    const auto name = nodeText(*entry, "name");
    if (!name || *name == kDesktops) continue;
    const QString label = nodeText(*entry, "description").value_or(QString());
    devices.append({*name, label.isEmpty() ? *name : label});
  }
  if (std::exchange(devices_, devices) != devices) Q_EMIT changed();
}

QStringList SoundDevices::labels() const {
  QStringList labels{tr("Automatic")};
  for (const Device& device : devices_) labels << device.label;
  if (index() > devices_.size()) labels << wanted();
  return labels;
}

int SoundDevices::index() const {
  if (wanted() == kDesktops) return 0;
  const auto found = std::ranges::find(devices_, wanted(), &Device::name);
  return static_cast<int>(found - devices_.begin()) + 1;
}

void SoundDevices::choose(int index) {
  if (index < 0 || index > devices_.size()) return;
  settings_.setAudioDevice(index == 0 ? kDesktops : devices_[index - 1].name);
}

void SoundDevices::step(int steps) {
  const auto count = static_cast<int>(devices_.size()) + 1;
  choose(((std::min(index(), count - 1) + steps) % count + count) % count);
}

QString SoundDevices::lost() {
  if (wanted() == kDesktops || std::exchange(isElsewhere_, true)) return {};
  engine_.setProperty("audio-device", kDesktops.toStdString());
  return tr("The sound device you chose isn't there, so the sound goes to the usual one.");
}

void SoundDevices::tryWanted() {
  if (std::exchange(isElsewhere_, false))
    engine_.setProperty("audio-device", wanted().toStdString());
}

}  // namespace tromelo
