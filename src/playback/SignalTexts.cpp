#include "playback/SignalTexts.h"

#include <QCoreApplication>

namespace tromelo {

std::optional<QString> outputText(const FileFacts& facts, const DynamicRange& range) {
  if (!facts.targetGamma) return {};
  QString primaries;
  if (facts.targetPrimaries) {
    primaries = QStringLiteral(" · ") + QString::fromUtf8(*facts.targetPrimaries).toUpper();
  }
  const QString extended = primaries + QStringLiteral(" (EDR)");
  if (*facts.targetGamma == "pq") return QStringLiteral("HDR · PQ") + extended;
  if (*facts.targetGamma == "hlg") return QStringLiteral("HDR · HLG") + extended;
  const bool toneMapped = range.kind != DynamicRange::Kind::sdr;
  return (toneMapped ? QCoreApplication::translate("SignalTexts", "Tone-mapped to SDR")
                     : QStringLiteral("SDR")) +
         primaries;
}

QString displayText(const ScreenHeadroom& screen) {
  if (!(screen.potential > 1)) return QCoreApplication::translate("SignalTexts", "SDR display");
  return QCoreApplication::translate("SignalTexts", "EDR · %1× headroom (now %2×)")
      .arg(screen.potential, 0, 'f', 1)
      .arg(screen.current, 0, 'f', 1);
}

}  // namespace tromelo
