#include "library/WindowFrame.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QScreen>
#include <optional>

#include "platform/KeptInside.h"

namespace tromelo {

namespace {

// How much of a remembered window has to be on a screen for a person to get hold of it.
constexpr int kReachable = 80;

/// The part of a screen where windows may be, if the frame can be reached on one.
std::optional<QRect> screenOf(const QRect& frame) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect shown = frame & screen->availableGeometry();
    if (shown.width() >= kReachable && shown.height() >= kReachable)
      return screen->availableGeometry();
  }
  return std::nullopt;
}

}  // namespace

WindowFrame::WindowFrame(UserDefaults& defaults, const QString& name)
    : defaults_(defaults), key_(QStringLiteral("windowFrame ") + name) {}

QRect WindowFrame::restored(QSize size, QSize least) const {
  const QJsonArray numbers = defaults_.value(key_).toArray();
  if (numbers.size() == 4) {
    QRect frame(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt());
    const auto screen = screenOf(frame);
    frame.setSize(frame.size().expandedTo(least));
    if (screen) return keptInside(frame, *screen);
  }
  QRect frame(QPoint(), size);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    frame.moveCenter(screen->availableGeometry().center());
    frame = keptInside(frame, screen->availableGeometry());
  }
  return frame;
}

void WindowFrame::save(const QRect& frame) {
  defaults_.set(key_, QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()});
}

}  // namespace tromelo
