#include "settings/SubtitlePicture.h"

#include <QCoreApplication>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace tromelo {

namespace {

constexpr double kFontScale = 0.42;
constexpr double kBottomPadding = 14;
constexpr double kBoxSide = 6;
constexpr double kBoxRise = 2;
constexpr double kBoxRadius = 3;
constexpr int kCentred = Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap;
constexpr int kDotsPerMeterOfAPoint = 2835;  // 72 to the inch

/// One soft copy of the text, beneath it.
struct Shadow {
  QColor color;
  double radius;
  QPointF offset;
  int copies;
};

/// An empty picture in which a point of a font is one of its own points.
QImage layer(QSizeF size, double scale) {
  QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.setDotsPerMeterX(kDotsPerMeterOfAPoint);
  image.setDotsPerMeterY(kDotsPerMeterOfAPoint);
  image.fill(Qt::transparent);
  return image;
}

QRectF textArea(QSizeF size, const PlayerPreferences& style) {
  const QRectF all(QPointF(), size);
  if (style.subtitleBorderStyle != SubtitleBorderStyle::box)
    return all.adjusted(0, 0, 0, -kBottomPadding);
  return all.adjusted(kBoxSide, 0, -kBoxSide, -kBottomPadding - kBoxRise);
}

void drawText(QPainter& painter, QRectF area, const PlayerPreferences& style) {
  painter.setFont(subtitleSampleFont(style));
  painter.setPen(style.subtitleColor.toQColor());
  painter.drawText(area, kCentred, subtitleSampleText());
}

/// Half of a bell curve, from its middle outwards. The whole curve adds up to 1.
std::vector<double> bell(double deviation) {
  std::vector<double> weights(static_cast<std::size_t>(std::ceil(deviation * 3)) + 1);
  double sum = 0;
  for (std::size_t i = 0; i < weights.size(); ++i) {
    weights[i] = std::exp(-double(i * i) / (2 * deviation * deviation));
    sum += i == 0 ? weights[i] : 2 * weights[i];
  }
  for (double& weight : weights) weight /= sum;
  return weights;
}

/// Each value spread along lines of `length` values that lie `step` apart.
std::vector<double> spread(const std::vector<double>& values, const std::vector<double>& weights,
                           std::ptrdiff_t step, std::ptrdiff_t length) {
  std::vector<double> result(values.size());
  for (std::ptrdiff_t i = 0; i < std::ptrdiff_t(values.size()); ++i) {
    const std::ptrdiff_t place = i / step % length;
    double sum = weights[0] * values[std::size_t(i)];
    for (std::ptrdiff_t d = 1; d < std::ptrdiff_t(weights.size()); ++d) {
      if (place >= d) sum += weights[std::size_t(d)] * values[std::size_t(i - d * step)];
      if (place + d < length) sum += weights[std::size_t(d)] * values[std::size_t(i + d * step)];
    }
    result[std::size_t(i)] = sum;
  }
  return result;
}

QImage blurred(const QImage& text, const QColor& color, double deviation) {
  const QImage alpha = text.convertToFormat(QImage::Format_Alpha8);
  std::vector<double> values;
  for (int y = 0; y < alpha.height(); ++y)
    values.insert(values.end(), alpha.constScanLine(y), alpha.constScanLine(y) + alpha.width());
  const auto weights = bell(deviation);
  values = spread(values, weights, 1, alpha.width());
  values = spread(values, weights, alpha.width(), alpha.height());
  QImage result(text.size(), QImage::Format_ARGB32_Premultiplied);
  result.setDevicePixelRatio(text.devicePixelRatio());
  for (int y = 0; y < result.height(); ++y)
    for (int x = 0; x < result.width(); ++x) {
      QColor pixel = color;
      pixel.setAlphaF(float(color.alphaF() * values[std::size_t(y * result.width() + x)] / 255));
      result.setPixelColor(x, y, pixel);
    }
  return result;
}

void drawBox(QPainter& painter, QRectF area, const PlayerPreferences& style) {
  painter.setFont(subtitleSampleFont(style));
  const QRectF text = painter.boundingRect(area, kCentred, subtitleSampleText());
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.62F));
  painter.drawRoundedRect(text.adjusted(-kBoxSide, -kBoxRise, kBoxSide, kBoxRise), kBoxRadius,
                          kBoxRadius);
}

std::optional<Shadow> shadowOf(const PlayerPreferences& style) {
  switch (style.subtitleBorderStyle) {
    case SubtitleBorderStyle::outline:
      return Shadow{style.subtitleOutlineColor.toQColor(), 0.8, {0, 0}, 3};
    case SubtitleBorderStyle::shadow:
      return Shadow{QColor::fromRgbF(0, 0, 0, 0.8F), 1, {1.5, 1.5}, 1};
    case SubtitleBorderStyle::box:
      break;
  }
  return {};
}

QBrush backdrop(QSizeF size) {
  QLinearGradient gradient(QPointF(), QPointF(size.width(), size.height()));
  gradient.setColorAt(0, QColor::fromRgbF(0.2F, 0.32F, 0.45F));
  gradient.setColorAt(1, QColor::fromRgbF(0.55F, 0.48F, 0.4F));
  return gradient;
}

}  // namespace

QString subtitleSampleText() {
  return QCoreApplication::translate("SubtitlePreview",
                                     "The quick brown fox jumps over the lazy dog");
}

QFont subtitleSampleFont(const PlayerPreferences& style) {
  QFont font(style.subtitleFont);
  font.setPointSizeF(style.subtitleSize * kFontScale);
  font.setBold(style.subtitleBold);
  return font;
}

QImage subtitlePicture(QSizeF size, double scale, const PlayerPreferences& style) {
  const QRectF area = textArea(size, style);
  QImage text = layer(size, scale);
  QPainter textPainter(&text);
  drawText(textPainter, area, style);
  textPainter.end();

  QImage picture = layer(size, scale);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(QRectF(QPointF(), size), backdrop(size));
  if (style.subtitleBorderStyle == SubtitleBorderStyle::box) drawBox(painter, area, style);
  if (const auto shadow = shadowOf(style)) {
    const QImage soft = blurred(text, shadow->color, shadow->radius * scale);
    for (int i = 0; i < shadow->copies; ++i) painter.drawImage(shadow->offset, soft);
  }
  painter.drawImage(0, 0, text);
  return picture;
}

}  // namespace tromelo
