#include "Curve.h"

#include <algorithm>
#include <array>
#include <functional>

#include "support/Files.h"

namespace tromelo::testing {

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 130;  // of a strip
constexpr int kLeft = 70;
constexpr int kTop = 34;
constexpr int kBetween = 50;

struct Strip {
  const char* title;
  const char* colour;
  double (*value)(const Sample&);
};
constexpr std::array kStrips{
    Strip{"Resident memory, MB", "#2f6fb0",
          [](const Sample& one) { return double(one.use.memory) / 1024; }},
    Strip{"Descriptors", "#2b8a5e", [](const Sample& one) { return double(one.use.descriptors); }},
    Strip{"Threads", "#8a5a2b", [](const Sample& one) { return double(one.use.threads); }},
    Strip{"Longest gap of the main thread between two samples, ms", "#b03a3a",
          [](const Sample& one) { return double(one.gap.wait.count()) / 1000; }}};

QString text(double x, double y, const QString& words, const char* anchor = "start") {
  return QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>\n")
      .arg(x)
      .arg(y)
      .arg(anchor, words);
}

QString strip(const Strip& strip, const std::vector<Sample>& samples, double top) {
  const double most = strip.value(*std::ranges::max_element(samples, {}, strip.value));
  const double minutes = std::max(samples.back().minute, 0.01);
  QString points;
  for (const Sample& one : samples)
    points += QStringLiteral("%1,%2 ")
                  .arg(kLeft + one.minute / minutes * kWidth, 0, 'f', 1)
                  .arg(top + kHeight * (1 - strip.value(one) / std::max(most, 1.0)), 0, 'f', 1);
  return text(kLeft, top - 8, strip.title) +
         text(kLeft - 8, top + 10, QString::number(most, 'f', 0), "end") +
         text(kLeft - 8, top + kHeight, "0", "end") +
         QStringLiteral(
             "<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" fill=\"none\" "
             "stroke=\"#c8ccd2\"/>\n<polyline points=\"%5\" fill=\"none\" stroke=\"%6\"/>\n")
             .arg(kLeft)
             .arg(top)
             .arg(kWidth)
             .arg(kHeight)
             .arg(points, strip.colour);
}

}  // namespace

void drawCurves(const std::vector<Sample>& samples, const QString& path) {
  if (samples.empty()) return;
  const int height = kTop + int(kStrips.size()) * (kHeight + kBetween);
  QString svg = QStringLiteral(
                    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" "
                    "viewBox=\"0 0 %1 %2\" "
                    "font-family=\"sans-serif\" font-size=\"14\" fill=\"#30343a\">\n"
                    "<rect width=\"%1\" height=\"%2\" fill=\"white\"/>\n")
                    .arg(kLeft + kWidth + 20)
                    .arg(height);
  double top = kTop;
  for (const Strip& each : kStrips) {
    svg += strip(each, samples, top);
    top += kHeight + kBetween;
  }
  svg += text(kLeft + kWidth, height - 20,
              QStringLiteral("%1 minutes").arg(samples.back().minute, 0, 'f', 0), "end");
  writeFile(path, (svg + "</svg>\n").toStdString());
}

}  // namespace tromelo::testing
