#include "playback/DynamicRange.h"

#include <QCoreApplication>

#include "playback/SignalInputs.h"

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

DynamicRange dynamicRangeOf(const SignalInputs& inputs) {
  using Kind = DynamicRange::Kind;
  if (inputs.colormatrix == "dolbyvision" || inputs.dolbyVisionProfile.value_or(0) >= 1) {
    return {Kind::dolbyVision, inputs.dolbyVisionProfile};
  }
  if (inputs.gamma == "pq") return {Kind::hdr10, {}};
  if (inputs.gamma == "hlg") return {Kind::hlg, {}};
  return {};
}

}  // namespace tromelo
