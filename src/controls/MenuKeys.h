#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

namespace tromelo {

/// Watches for the keys that open a menu bar, to which Qt 6.8's own doesn't listen, and gives the
/// keyboard back to the item that had it before. Main thread only.
class MenuKeys : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* bar MEMBER bar_ WRITE setBar REQUIRED)
  Q_PROPERTY(bool showsLetters READ showsLetters NOTIFY showsLettersChanged)

 public:
  /// Listens to the application object from now on.
  explicit MenuKeys(QObject* parent = nullptr);

  /// Keys are watched in its window, whichever that is.
  void setBar(QQuickItem* bar);

  /// From when Alt or F10 goes down until the mouse is used or the window loses the keyboard.
  bool showsLetters() const { return showsLetters_; }

 Q_SIGNALS:
  /// F10, or Alt pressed and let go with nothing in between.
  void called();
  void showsLettersChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setWindow(QQuickWindow* window);
  void followFocus();
  bool takeKey(int key, Qt::KeyboardModifiers modifiers);
  void showLetters(bool shows);

  QPointer<QQuickItem> bar_;
  QPointer<QQuickWindow> window_;
  QPointer<QQuickItem> before_;  // the last item outside of menus that had the keyboard
  bool altIsAlone_ = false;
  bool showsLetters_ = false;
};

}  // namespace tromelo
