#include "pictures/StandardRange.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace tromelo {

namespace {

// The constants and the curve are those of display/hdr.frag, which draws the playing film.
constexpr double kReferenceWhite = 203;  // cd/m², ITU-R BT.2408
constexpr double kHlgPeak = 1000;        // cd/m² of the screen that HLG is meant for
constexpr double kKnee = 0.75;           // of white: what is darker stays as it is

struct Light {
  double red, green, blue;  // 1 is white
};

/// SMPTE ST 2084.
double fromPq(double signal) {
  constexpr double kM1 = 0.1593017578125, kM2 = 78.84375;
  constexpr double kC1 = 0.8359375, kC2 = 18.8515625, kC3 = 18.6875;
  const double power = std::pow(signal, 1 / kM2);
  return 10000 / kReferenceWhite *
         std::pow(std::max(power - kC1, 0.0) / (kC2 - kC3 * power), 1 / kM1);
}

/// ITU-R BT.2100: the light of the scene.
double fromHlg(double signal) {
  constexpr double kA = 0.17883277, kB = 0.28466892, kC = 0.55991073;
  return signal < 0.5 ? signal * signal / 3 : (std::exp((signal - kC) / kA) + kB) / 12;
}

std::array<double, 256> tableOf(double (*curve)(double)) {
  std::array<double, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = curve(double(i) / 255);
  return table;
}

/// What a screen makes of the scene.
Light ofHlgScreen(Light scene) {
  const double brightness = 0.2627 * scene.red + 0.6780 * scene.green + 0.0593 * scene.blue;
  const double gain = kHlgPeak / kReferenceWhite * std::pow(std::max(brightness, 0.000001), 0.2);
  return {gain * scene.red, gain * scene.green, gain * scene.blue};
}

/// BT.2020 to BT.709, ITU-R BT.2087.
Light inBt709(Light light) {
  const auto [r, g, b] = light;
  return {std::max(1.6605 * r - 0.5876 * g - 0.0728 * b, 0.0),
          std::max(-0.1246 * r + 1.1329 * g - 0.0083 * b, 0.0),
          std::max(-0.0182 * r - 0.1006 * g + 1.1187 * b, 0.0)};
}

QRgb onScreen(Light light) {
  const double brightest = std::max({light.red, light.green, light.blue});
  const double scale =
      brightest > kKnee
          ? (1 - (1 - kKnee) * std::exp((kKnee - brightest) / (1 - kKnee))) / brightest
          : 1;
  const auto value = [scale](double part) {
    return static_cast<int>(
        std::lround(255 * std::pow(std::clamp(scale * part, 0.0, 1.0), 1 / 2.2)));
  };
  return qRgb(value(light.red), value(light.green), value(light.blue));
}

}  // namespace

void bringToStandardRange(QImage& picture, const std::string& transfer) {
  const bool isHlg = transfer == "hlg";
  if (!isHlg && transfer != "pq") return;
  const auto table = tableOf(isHlg ? &fromHlg : &fromPq);
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (QRgb& pixel : std::span(line, static_cast<std::size_t>(picture.width()))) {
      const Light light{table[std::size_t(qRed(pixel))], table[std::size_t(qGreen(pixel))],
                        table[std::size_t(qBlue(pixel))]};
      pixel = onScreen(inBt709(isHlg ? ofHlgScreen(light) : light));
    }
  }
}

}  // namespace tromelo
