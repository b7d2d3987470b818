#include <QStringList>
#include <algorithm>

#include "adjustments/AdjustmentValue.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

constexpr double kBottom = 100;  // percent of the height

QString changeText(const PlaybackModel& model, const AdjustmentRow& row) {
  const bool saysItself = row.isSwitch() || row.kind == AdjustmentRow::Kind::crop;
  return saysItself ? adjustmentName(row) : model.adjustmentToast(row.adjustment);
}

const MediaTrack* chosen(const QList<MediaTrack>& tracks, const std::string& choice) {
  const auto found = std::ranges::find(tracks, choice, &MediaTrack::choice);
  return found == tracks.end() ? nullptr : &*found;
}

}  // namespace

/// The engine begins with them by itself, but for those that it can't know.
void PlaybackModel::takeAdjustments() {
  if (!adjustments_.fileKnown(filmKeeper_.adjustments()))
    tell(tr("Some of what was kept for this film made no sense; look at what is changed in it."));
  addedSecond_.clear();
  smoothMotion_ = {};
  motion_ = QString();
  placeSubtitles();
  showSecondSubtitle();
  updateMotion();
  tellChanges();
}

void PlaybackModel::lookAround() {
  soundDevices_.refresh();
  for (const AdjustmentRow& row : adjustmentRows()) {
    if (!row.needs || lacking_.contains(row.needs)) continue;
    engine_.readProperty("option-info/" + std::string(row.needs) + "/name",
                         [this, option = row.needs](const std::optional<std::string>& name) {
                           if (!name) lacking_.insert(option);
                         });
  }
}

QString PlaybackModel::adjustmentText(Adjustment adjustment) const {
  const AdjustmentRow& row = adjustmentRow(adjustment);
  const std::string value = adjustments_.value(adjustment);
  if (row.kind != AdjustmentRow::Kind::track) return valueText(row, value);
  const QList<MediaTrack> tracks = subtitleTracks();
  const MediaTrack* track = chosen(tracks, value);
  return track ? track->name() : tr("Off");
}

QString PlaybackModel::adjustmentToast(Adjustment adjustment) const {
  return adjustmentName(adjustmentRow(adjustment)) + u' ' + adjustmentText(adjustment);
}

bool PlaybackModel::canAdjust(Adjustment adjustment) const {
  const char* needs = adjustmentRow(adjustment).needs;
  return !needs || !lacking_.contains(needs);
}

void PlaybackModel::adjust(Adjustment adjustment, const std::string& value) {
  if (!isLoaded_) return;
  adjustments_.set(adjustment, value);
  adjusted(adjustmentRow(adjustment));
  filmKeeper_.adjusted(adjustments_.ofFilm());
}

void PlaybackModel::stepAdjustment(Adjustment adjustment, int steps) {
  if (adjustment == Adjustment::secondSubtitle) return stepSecondSubtitle(steps);
  if (adjustment == Adjustment::crop) return cutBars();
  const AdjustmentRow& row = adjustmentRow(adjustment);
  adjust(adjustment, steppedValue(row, adjustments_.value(adjustment), steps));
}

void PlaybackModel::makeAsMade(AdjustmentGroup group) {
  const auto changed = adjustments_.changed();
  for (const AdjustmentRow* row : changed)
    if (row->group == group) adjust(row->adjustment, asMade(*row));
}

void PlaybackModel::useForAll(AdjustmentGroup group) {
  adjustments_.useForAll(group);
  filmKeeper_.setForAll(adjustments_.forAll());
  filmKeeper_.adjusted(adjustments_.ofFilm());
}

void PlaybackModel::compare(bool isAsMade) {
  for (const AdjustmentRow* row : adjustments_.changed())
    if (row->group == AdjustmentGroup::picture)
      writeAdjustment(*row, isAsMade ? asMade(*row) : adjustments_.value(row->adjustment));
}

/// It has another value.
void PlaybackModel::adjusted(const AdjustmentRow& row) {
  writeAdjustment(row, adjustments_.value(row.adjustment));
  if (row.adjustment == Adjustment::subtitlePosition) placeSubtitles();
  if (row.adjustment == Adjustment::secondSubtitle) showSecondSubtitle();
  updateMotion();
  tellChanges();
}

void PlaybackModel::writeAdjustment(const AdjustmentRow& row, const std::string& value) {
  for (const MpvPropertyWrite& one : engineWrites(row, value)) writeForFilm(one, &row);
}

/// The engine forgets what is set in this way together with the file.
void PlaybackModel::writeForFilm(const MpvPropertyWrite& write, const AdjustmentRow* row) {
  engine_.command({"set", "file-local-options/" + write.name, write.value},
                  [this, row](const std::optional<std::string>& error) {
                    if (error && row) refused(*row);
                  });
}

void PlaybackModel::refused(const AdjustmentRow& row) {
  if (row.needs) lacking_.insert(row.needs);
  adjustments_.set(row.adjustment, asMade(row));
  filmKeeper_.adjusted(adjustments_.ofFilm());
  updateMotion();
  tellChanges();
  player().showToast(tr("This libmpv can't do that: %1").arg(adjustmentName(row)));
}

/// The controls lift only what they would cover.
void PlaybackModel::placeSubtitles() {
  double place = std::stod(adjustments_.value(Adjustment::subtitlePosition));
  if (subtitleLift_ > 0) place = std::min(place, kBottom - subtitleLift_);
  if (std::exchange(subtitlePlace_, place) == place) return;
  engine_.setProperty("sub-pos", QString::number(place, 'f', 2).toStdString());
}

void PlaybackModel::showSecondSubtitle() {
  const std::string wanted = adjustments_.value(Adjustment::secondSubtitle);
  const MediaTrack* track = chosen(subtitleTracks_, wanted);
  const bool isShown = std::ranges::any_of(subtitleTracks_.get(), &MediaTrack::isSecond);
  if (track && !track->isSecond) {
    writeForFilm({"secondary-sid", std::to_string(track->id)});
  } else if (wanted == "no" && isShown) {
    writeForFilm({"secondary-sid", wanted});
  } else if (!track && wanted.starts_with('/') && std::exchange(addedSecond_, wanted) != wanted) {
    engine_.command({"sub-add", wanted, "auto"}, [](const std::optional<std::string>&) {});
  }
}

void PlaybackModel::stepSecondSubtitle(int steps) {
  std::vector<std::string> choices{"no"};
  for (const MediaTrack& track : subtitleTracks())
    if (!track.isSelected) choices.push_back(track.choice());
  const auto now = std::ranges::find(choices, adjustments_.value(Adjustment::secondSubtitle));
  const auto count = std::ssize(choices);
  const auto from = now == choices.end() ? 0 : now - choices.begin();
  adjust(Adjustment::secondSubtitle, choices[((from + steps) % count + count) % count]);
}

/// Or puts them back.
void PlaybackModel::cutBars() {
  if (!adjustments_.value(Adjustment::crop).empty()) return adjust(Adjustment::crop, {});
  if (!isLoaded_ || !facts_.hasPicture() || !currentPath_) return;
  player().showToast(tr("Looking for black bars…"));
  barsFinder_.find(*currentPath_, QSize(int(*facts_.width), int(*facts_.height)), duration_,
                   [this](const std::variant<QRect, NoBars>& found) { tellOfBars(found); });
}

void PlaybackModel::tellOfBars(const std::variant<QRect, NoBars>& found) {
  if (const auto* part = std::get_if<QRect>(&found)) {
    adjust(Adjustment::crop, QStringLiteral("%1x%2+%3+%4")
                                 .arg(part->width())
                                 .arg(part->height())
                                 .arg(part->x())
                                 .arg(part->y())
                                 .toStdString());
    return player().showToast(adjustmentName(adjustmentRow(Adjustment::crop)));
  }
  switch (std::get<NoBars>(found)) {
    case NoBars::none:
      return player().showToast(tr("There are no black bars"));
    case NoBars::tooDark:
      return player().showToast(tr("Too dark to tell where the bars end"));
    case NoBars::vary:
      return player().showToast(tr("The picture's shape changes in this film, so nothing is cut"));
    case NoBars::failed:
      return player().showToast(tr("The film couldn't be searched for black bars"));
  }
}

void PlaybackModel::tellChanges() {
  QStringList changes;
  for (const AdjustmentRow* row : adjustments_.changed()) changes << changeText(*this, *row);
  changes_ = changes.join(QStringLiteral(", "));
}

/// With each fact that comes, so nothing is done where it is off.
void PlaybackModel::updateMotion() {
  const bool wants = isLoaded_ && adjustments_.value(Adjustment::smoothMotion) == "on";
  const SmoothMotion motion =
      wants ? smoothMotion(facts_.containerFps.value_or(0), facts_.displayFps.value_or(0))
            : SmoothMotion();
  if (std::exchange(smoothMotion_, motion) == motion) return;
  if (isLoaded_)
    for (const MpvPropertyWrite& one : engineWrites(motion)) writeForFilm(one);
  motion_ = motionText(motion);
}

}  // namespace tromelo
