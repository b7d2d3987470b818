#include "adjustments/FilmAdjustments.h"

#include <QJsonObject>
#include <algorithm>

#include "adjustments/AdjustmentValue.h"
#include "platform/UserDefaults.h"

namespace tromelo {

namespace {

const QString kStored = QStringLiteral("adjustments");

std::string valueIn(const AdjustmentValues& forAll, const AdjustmentValues& ofFilm,
                    const AdjustmentRow& row) {
  for (const AdjustmentValues* values : {&ofFilm, &forAll})
    if (const auto found = values->find(row.key); found != values->end()) return found->second;
  return asMade(row);
}

/// Those that make sense; false where some don't.
bool take(const AdjustmentValues& from, AdjustmentValues& into) {
  bool areFine = true;
  for (const auto& [key, value] : from) {
    // Another edition may know of more.
    const AdjustmentRow* row = adjustmentRow(key);
    if (!row) continue;
    const auto kept = keptValue(*row, value);
    if (kept) into[key] = *kept;
    areFine = areFine && kept == value;
  }
  return areFine;
}

}  // namespace

FilmAdjustments::FilmAdjustments(UserDefaults& defaults) : defaults_(defaults) {
  AdjustmentValues stored;
  const QJsonObject object = defaults.value(kStored).toObject();
  for (auto one = object.begin(); one != object.end(); ++one)
    stored[one.key().toStdString()] = one.value().toString().toStdString();
  take(stored, forAll_);
}

bool FilmAdjustments::fileKnown(const AdjustmentValues& ofFilm) { return take(ofFilm, ofFilm_); }

std::string FilmAdjustments::value(Adjustment adjustment) const {
  return valueIn(forAll_, ofFilm_, adjustmentRow(adjustment));
}

void FilmAdjustments::set(Adjustment adjustment, const std::string& value) {
  const AdjustmentRow& row = adjustmentRow(adjustment);
  const auto kept = keptValue(row, value);
  if (!kept) return;
  if (*kept == valueIn(forAll_, {}, row))
    ofFilm_.erase(row.key);
  else
    ofFilm_[row.key] = *kept;
}

void FilmAdjustments::makeAsMade(AdjustmentGroup group) {
  for (const AdjustmentRow& row : adjustmentRows())
    if (row.group == group) set(row.adjustment, asMade(row));
}

void FilmAdjustments::useForAll(AdjustmentGroup group) {
  QJsonObject stored = defaults_.value(kStored).toObject();
  for (const AdjustmentRow& row : adjustmentRows()) {
    if (row.group != group || !row.suitsAll) continue;
    const std::string now = value(row.adjustment);
    ofFilm_.erase(row.key);
    forAll_.erase(row.key);
    stored.remove(QString::fromLatin1(row.key));
    if (now == asMade(row)) continue;
    forAll_[row.key] = now;
    stored.insert(QString::fromLatin1(row.key), QString::fromStdString(now));
  }
  defaults_.set(kStored, stored);
}

std::vector<const AdjustmentRow*> FilmAdjustments::changed() const {
  std::vector<const AdjustmentRow*> rows;
  for (const AdjustmentRow& row : adjustmentRows())
    if (value(row.adjustment) != asMade(row)) rows.push_back(&row);
  return rows;
}

bool FilmAdjustments::isChanged(AdjustmentGroup group) const {
  return std::ranges::any_of(changed(), [&](const auto* row) { return row->group == group; });
}

bool FilmAdjustments::suitsAll(AdjustmentGroup group) const {
  return std::ranges::any_of(ofFilm_, [&](const auto& one) {
    const AdjustmentRow* row = adjustmentRow(one.first);
    return row->group == group && row->suitsAll;
  });
}

std::vector<MpvPropertyWrite> engineWrites(const AdjustmentValues& forAll,
                                           const AdjustmentValues& ofFilm) {
  std::vector<MpvPropertyWrite> writes;
  for (const AdjustmentRow& row : adjustmentRows()) {
    const auto value = keptValue(row, valueIn(forAll, ofFilm, row));
    if (value && *value != asMade(row))
      std::ranges::move(engineWrites(row, *value), std::back_inserter(writes));
  }
  return writes;
}

}  // namespace tromelo
