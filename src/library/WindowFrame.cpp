#include "library/WindowFrame.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QScreen>

namespace tromelo {

namespace {

// So much of a remembered window has to be on a screen that a person can get hold of it.
constexpr int kReachable = 80;

bool isReachable(const QRect& frame) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect shown = frame & screen->availableGeometry();
    if (shown.width() >= kReachable && shown.height() >= kReachable) return true;
  }
  return false;
}

}  // namespace

WindowFrame::WindowFrame(UserDefaults& defaults, const QString& name)
    : defaults_(defaults), key_(QStringLiteral("windowFrame ") + name) {}

QRect WindowFrame::restored(QSize size) const {
  const QJsonArray numbers = defaults_.value(key_).toArray();
  if (numbers.size() == 4) {
    const QRect frame(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(),
                      numbers[3].toInt());
    if (!frame.isEmpty() && isReachable(frame)) return frame;
  }
  QRect frame(QPoint(), size);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect available = screen->availableGeometry();
    frame.setSize(size.boundedTo(available.size()));
    frame.moveCenter(available.center());
  }
  return frame;
}

void WindowFrame::save(const QRect& frame) {
  defaults_.set(key_, QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()});
}

}  // namespace tromelo
