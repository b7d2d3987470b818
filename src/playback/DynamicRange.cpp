#include "playback/DynamicRange.h"

namespace tromelo {

QString DynamicRange::label() const {
  switch (kind) {
    case Kind::sdr:
      return QStringLiteral("SDR");
    case Kind::hdr10:
      return QStringLiteral("HDR10 · PQ");
    case Kind::hlg:
      return QStringLiteral("HLG");
    case Kind::dolbyVision:
      break;
  }
  const QString name = QStringLiteral("Dolby Vision");
  return profile ? name + QStringLiteral(" · Profile %1").arg(*profile) : name;
}

}  // namespace tromelo
