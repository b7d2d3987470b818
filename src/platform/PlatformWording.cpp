#include "platform/PlatformWording.h"

#include <array>
#include <utility>

namespace tromelo {

QString platformWording(QString text) {
  static constexpr std::array<std::pair<QStringView, QStringView>, 5> kWords{{
      {u"⌘", u"Ctrl+"},
      {u"⇧", u"Shift+"},
      {u"⌥", u"Alt+"},
      {u"Finder", u"File Manager"},
      {u"VideoToolbox", u"hardware decoder"},
  }};
  for (const auto& [theirs, ours] : kWords) {
    text.replace(theirs.data(), theirs.size(), ours.data(), ours.size());
  }
  return text;
}

QString withoutKey(const QString& tooltip) {
  const qsizetype key = tooltip.lastIndexOf(QStringLiteral(" ("));
  return key < 0 ? tooltip : tooltip.first(key);
}

}  // namespace tromelo
