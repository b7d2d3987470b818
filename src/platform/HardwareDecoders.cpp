#include "platform/HardwareDecoders.h"

#include <QDir>

namespace tromelo {

bool mayDecodeInHardware(const QString& devices) {
  const auto has = [&](const QString& folder, const QStringList& names) {
    return !QDir(devices + folder).entryList(names, QDir::System | QDir::Files).isEmpty();
  };
  // Graphics cards; those that go by a driver of their own; decoders on chips that are no card.
  return has(QStringLiteral("/dri"), {QStringLiteral("*")}) ||
         has({}, {QStringLiteral("nvidia*"), QStringLiteral("dxg"), QStringLiteral("video*")});
}

}  // namespace tromelo
