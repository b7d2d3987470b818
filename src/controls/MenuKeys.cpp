#include "controls/MenuKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <utility>

namespace tromelo {

namespace {

/// Menus and other popups lie on a layer of their own.
bool isInPopup(const QQuickItem* item) {
  for (; item; item = item->parentItem())
    if (item->inherits("QQuickOverlay")) return true;
  return false;
}

}  // namespace

MenuKeys::MenuKeys(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

void MenuKeys::setBar(QQuickItem* bar) {
  bar_ = bar;
  connect(bar, &QQuickItem::windowChanged, this, &MenuKeys::setWindow);
  setWindow(bar->window());
}

void MenuKeys::setWindow(QQuickWindow* window) {
  if (window_) disconnect(window_, nullptr, this, nullptr);
  window_ = window;
  if (!window_) return;
  connect(window_, &QQuickWindow::activeFocusItemChanged, this, &MenuKeys::followFocus,
          Qt::QueuedConnection);
  followFocus();
}

void MenuKeys::followFocus() {
  QQuickItem* item = window_ ? window_->activeFocusItem() : nullptr;
  if (!item || isInPopup(item) || bar_->isAncestorOf(item)) return;
  if (item != window_->contentItem())
    before_ = item;
  else if (before_)
    before_->forceActiveFocus(Qt::MenuBarFocusReason);
}

void MenuKeys::showLetters(bool shows) {
  if (std::exchange(showsLetters_, shows) != shows) Q_EMIT showsLettersChanged();
}

bool MenuKeys::takeKey(int key, Qt::KeyboardModifiers modifiers) {
  altIsAlone_ = key == Qt::Key_Alt && (modifiers & ~Qt::AltModifier) == Qt::NoModifier;
  const bool calls = key == Qt::Key_F10 && modifiers == Qt::NoModifier;
  if (altIsAlone_ || calls) showLetters(true);
  if (calls) Q_EMIT called();
  return calls;
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event) {
  // For a key that is a shortcut, the window gets no other event.
  if (event->type() == QEvent::ShortcutOverride)
    altIsAlone_ &= static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt;
  if (!window_ || watched != window_) return false;
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto* key = static_cast<QKeyEvent*>(event);
      return takeKey(key->key(), key->modifiers());
    }
    case QEvent::KeyRelease:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt && std::exchange(altIsAlone_, false))
        Q_EMIT called();
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::FocusOut:
      altIsAlone_ = false;
      showLetters(false);
      return false;
    default:
      return false;
  }
}

}  // namespace tromelo
