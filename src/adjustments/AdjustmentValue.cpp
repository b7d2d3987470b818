#include "adjustments/AdjustmentValue.h"

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <regex>

#include "platform/NumberText.h"

namespace tromelo {

namespace {

using Kind = AdjustmentRow::Kind;

QString translated(const char* text) { return QCoreApplication::translate("Adjustment", text); }

std::optional<double> number(const std::string& value) {
  double read = 0;
  const char* const end = value.data() + value.size();
  const auto [rest, error] = std::from_chars(value.data(), end, read);
  if (error != std::errc() || rest != end || !std::isfinite(read)) return {};
  return read;
}

/// To whole steps, so that going back and forth ends where it began.
std::string keptNumber(const AdjustmentRange& range, double value) {
  const double steps = std::round((value - range.asMade) / range.step);
  const double exact = range.asMade + steps * range.step;
  constexpr double kFine = 1e6;  // more than any step needs
  return numberText(std::clamp(std::round(exact * kFine) / kFine, range.least, range.most));
}

auto choiceOf(const AdjustmentRow& row, const std::string& value) {
  return std::ranges::find_if(row.choices, [&](const auto& one) { return one.value == value; });
}

bool isCrop(const std::string& value) {
  static const std::regex form("[1-9][0-9]{0,4}x[1-9][0-9]{0,4}\\+[0-9]{1,5}\\+[0-9]{1,5}");
  return value.empty() || std::regex_match(value, form);
}

bool isTrack(const std::string& value) {
  return value == "no" || value.starts_with('/') ||
         (!value.empty() && value.size() < 5 &&
          std::ranges::all_of(value, [](char one) { return one >= '0' && one <= '9'; }));
}

}  // namespace

std::string asMade(const AdjustmentRow& row) {
  switch (row.kind) {
    case Kind::choice:
      return row.choices.front().value;
    case Kind::number:
      return numberText(row.range.asMade);
    case Kind::crop:
      return {};
    case Kind::track:
      return "no";
  }
  return {};
}

std::optional<std::string> keptValue(const AdjustmentRow& row, const std::string& value) {
  bool isFine = false;
  switch (row.kind) {
    case Kind::number:
      if (const auto read = number(value)) return keptNumber(row.range, *read);
      break;
    case Kind::choice:
      isFine = choiceOf(row, value) != row.choices.end();
      break;
    case Kind::crop:
      isFine = isCrop(value);
      break;
    case Kind::track:
      isFine = isTrack(value);
      break;
  }
  return isFine ? std::optional(value) : std::nullopt;
}

std::string steppedValue(const AdjustmentRow& row, const std::string& value, int steps) {
  if (row.kind == Kind::number) {
    const double from = number(value).value_or(row.range.asMade);
    return keptNumber(row.range, from + steps * row.range.step);
  }
  if (row.kind != Kind::choice) return value;
  const auto count = std::ssize(row.choices);
  const auto to = (choiceOf(row, value) - row.choices.begin() + steps) % count;
  return row.choices[(to + count) % count].value;
}

std::vector<MpvPropertyWrite> engineWrites(const AdjustmentRow& row, const std::string& value) {
  if (row.option) return {{row.option, value}};
  return row.tell ? row.tell(value) : std::vector<MpvPropertyWrite>();
}

QString valueText(const AdjustmentRow& row, const std::string& value) {
  if (row.kind == Kind::number) return row.text(number(value).value_or(row.range.asMade));
  if (row.kind != Kind::choice) return QString::fromStdString(value);
  const auto choice = choiceOf(row, value);
  return choice == row.choices.end() ? QString() : translated(choice->name);
}

QString adjustmentName(const AdjustmentRow& row) { return translated(row.name); }

}  // namespace tromelo
