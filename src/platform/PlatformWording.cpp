#include "platform/PlatformWording.h"

#include <QCoreApplication>
#include <array>
#include <utility>

namespace tromelo {

QString platformWording(QString text) {
  static constexpr std::array<std::pair<QStringView, const char*>, 5> kWords{{
      {u"⌘", QT_TRANSLATE_NOOP("PlatformWording", "Ctrl+")},
      {u"⇧", QT_TRANSLATE_NOOP("PlatformWording", "Shift+")},
      {u"⌥", QT_TRANSLATE_NOOP("PlatformWording", "Alt+")},
      {u"Finder", QT_TRANSLATE_NOOP("PlatformWording", "File Manager")},
      {u"VideoToolbox", QT_TRANSLATE_NOOP("PlatformWording", "hardware decoder")},
  }};
  for (const auto& [theirs, ours] : kWords) {
    if (text.contains(theirs))
      text.replace(theirs.toString(), QCoreApplication::translate("PlatformWording", ours));
  }
  return text;
}

}  // namespace tromelo
