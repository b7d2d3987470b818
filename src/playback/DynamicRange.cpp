#include "playback/DynamicRange.h"

#include <QCoreApplication>

#include "playback/FileFacts.h"

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
  if (!profile) return QStringLiteral("Dolby Vision");
  return QCoreApplication::translate("DynamicRange", "Dolby Vision · Profile %1").arg(*profile);
}

QString DynamicRange::tag() const {
  switch (kind) {
    case Kind::sdr:
      return {};
    case Kind::hdr10:
      return QStringLiteral("HDR10");
    case Kind::hlg:
      return QStringLiteral("HLG");
    case Kind::dolbyVision:
      return QStringLiteral("DOLBY VISION");
  }
  return {};
}

DynamicRange dynamicRangeOf(const FileFacts& facts) {
  using Kind = DynamicRange::Kind;
  if (facts.colormatrix == "dolbyvision" || facts.dolbyVisionProfile.value_or(0) >= 1) {
    return {Kind::dolbyVision, facts.dolbyVisionProfile};
  }
  if (facts.gamma == "pq") return {Kind::hdr10, {}};
  if (facts.gamma == "hlg") return {Kind::hlg, {}};
  return {};
}

}  // namespace tromelo
