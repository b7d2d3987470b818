#include "overlay/LineModel.h"

#include <algorithm>
#include <utility>

#include "lines/LineText.h"

namespace tromelo {

namespace {

constexpr double kSoon = 0.2;  // seconds: the position is told in steps of this

}  // namespace

LineModel::~LineModel() {
  if (lines_) lines_->setWanted(false);
}

void LineModel::setLines(SubtitleLines* lines) {
  if (lines_ == lines) return;
  if (lines_) {
    lines_->disconnect(this);
    lines_->setWanted(false);
  }
  lines_ = lines;
  if (lines_) {
    connect(lines_, &SubtitleLines::replaced, this, &LineModel::refill);
    connect(lines_, &SubtitleLines::appended, this, &LineModel::append);
    lines_->setWanted(true);
  }
  refill();
  Q_EMIT linesChanged();
}

void LineModel::setSought(const QString& text) {
  if (sought_ == text) return;
  sought_ = text;
  folded_ = foldedText(text.simplified());
  beginResetModel();
  rows_ = found(0);
  endResetModel();
  Q_EMIT soughtChanged();
  Q_EMIT countChanged();
  current_ = -1;
  updateCurrent();
}

void LineModel::setSeconds(double seconds) {
  if (seconds_ == seconds) return;
  seconds_ = seconds;
  Q_EMIT secondsChanged();
  updateCurrent();
}

double LineModel::startOf(int row) const {
  return row >= 0 && row < count() ? lineAt(row).start : 0;
}

QVariant LineModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const SubtitleLine& line = lineAt(index.row());
  if (role == Start) return line.start;
  return role == Words ? QVariant(line.text) : QVariant();
}

QHash<int, QByteArray> LineModel::roleNames() const {
  return {{Start, QByteArrayLiteral("start")}, {Words, QByteArrayLiteral("words")}};
}

void LineModel::fold(int first) {
  const auto& all = lines_->all();
  texts_.resize(first);
  for (qsizetype line = first; line < all.size(); ++line) texts_.append(foldedText(all[line].text));
}

/// Of the lines from this one on.
QList<int> LineModel::found(int first) const {
  QList<int> rows;
  for (int line = first; line < static_cast<int>(texts_.size()); ++line)
    if (folded_.isEmpty() || texts_[line].contains(folded_)) rows.append(line);
  return rows;
}

void LineModel::refill() {
  beginResetModel();
  texts_.clear();
  if (lines_) fold(0);
  rows_ = found(0);
  endResetModel();
  Q_EMIT countChanged();
  current_ = -1;
  updateCurrent();
}

void LineModel::append(int first) {
  fold(first);
  const QList<int> more = found(first);
  if (more.isEmpty()) return;
  beginInsertRows({}, count(), count() + static_cast<int>(more.size()) - 1);
  rows_ += more;
  endInsertRows();
  Q_EMIT countChanged();
  updateCurrent();
}

void LineModel::updateCurrent() {
  const auto next = std::ranges::upper_bound(
      rows_, seconds_ + kSoon, {}, [this](int line) { return lines_->all()[line].start; });
  const auto current = static_cast<int>(next - rows_.begin()) - 1;
  if (std::exchange(current_, current) != current) Q_EMIT currentChanged();
}

}  // namespace tromelo
