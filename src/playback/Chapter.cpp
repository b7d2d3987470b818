#include "playback/Chapter.h"

#include <QCoreApplication>
#include <algorithm>

#include "engine/MpvValue.h"

namespace tromelo {

namespace {

/// For so many seconds a chapter counts as only just begun.
constexpr double kJustBegun = 3;

QString chapterTitle(const MpvMap& entry, qsizetype position) {
  const QString title = nodeText(entry, "title").value_or(QString());
  // libmpv makes up a title of its own where the file has none.
  const bool isUntitled = title.isEmpty() || title == QLatin1String("(unnamed)");
  if (!isUntitled) return title;
  return QCoreApplication::translate("Chapter", "Chapter %1").arg(position + 1);
}

double chapterTime(const MpvMap& entry) {
  if (const auto* seconds = mpvEntry<double>(entry, "time")) return *seconds;
  const auto* seconds = mpvEntry<std::int64_t>(entry, "time");
  return seconds ? static_cast<double>(*seconds) : 0;
}

}  // namespace

QList<Chapter> chapterList(const MpvValue& list) {
  QList<Chapter> chapters;
  for (const MpvMap* entry : list.list()) {
    const qsizetype position = chapters.size();
    chapters.append({position, chapterTitle(*entry, position), chapterTime(*entry)});
  }
  return chapters;
}

QString chapterTitleAt(const QList<Chapter>& chapters, double seconds) {
  const auto next = std::ranges::upper_bound(chapters, seconds, {}, &Chapter::time);
  return next == chapters.begin() ? QString() : std::prev(next)->title;
}

std::optional<int> steppedChapter(const QList<Chapter>& chapters, std::optional<int> current,
                                  double elapsed, int steps) {
  const auto isThere = [&](qint64 position) { return position >= 0 && position < chapters.size(); };
  const int from = current.value_or(-1);
  const bool returns = steps < 0 && isThere(from) && elapsed - chapters[from].time > kJustBegun;
  const qint64 target = returns ? from : qint64{from} + steps;
  if (!isThere(target)) return {};
  return static_cast<int>(target);
}

}  // namespace tromelo
