#include "playback/SignalTexts.h"

#include <format>

namespace tromelo {

std::optional<QString> outputText(const SignalInputs& inputs, const DynamicRange& range) {
  if (!inputs.targetGamma) return {};
  QString primaries;
  if (inputs.targetPrimaries) {
    primaries = QStringLiteral(" · ") + QString::fromUtf8(*inputs.targetPrimaries).toUpper();
  }
  const QString extended = primaries + QStringLiteral(" (EDR)");
  if (*inputs.targetGamma == "pq") return QStringLiteral("HDR · PQ") + extended;
  if (*inputs.targetGamma == "hlg") return QStringLiteral("HDR · HLG") + extended;
  const bool toneMapped = range.kind != DynamicRange::Kind::sdr;
  return (toneMapped ? QStringLiteral("Tone-mapped to SDR") : QStringLiteral("SDR")) + primaries;
}

QString displayText(const ScreenHeadroom& screen) {
  if (!(screen.potential > 1)) return QStringLiteral("SDR display");
  return QString::fromStdString(
      std::format("EDR · {:.1f}× headroom (now {:.1f}×)", screen.potential, screen.current));
}

}  // namespace tromelo
