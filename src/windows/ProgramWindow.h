#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <memory>

namespace tromelo {

/// One of the program's smaller windows. It is made when it is asked for, comes to the front when
/// it is asked for again, stays above the window that it was asked for in where that fills the
/// screen, and is gone when the person closes it. Main thread only.
class ProgramWindow : public QObject {
  Q_OBJECT

 public:
  /// `type` is the window's name in Tromelo.Windows. `engine` and what is in `properties` outlive
  /// it.
  ProgramWindow(QQmlEngine& engine, const char* type, QVariantMap properties);
  ~ProgramWindow() override;

  QQuickWindow& show();
  bool isOpen() const { return window_ != nullptr; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void make();
  void placeOver(QWindow& active);
  void bringForward();
  void follow(QWindow& main);
  void stayAbove(QWindow& main);

  QQmlEngine& engine_;
  const char* type_;
  const QVariantMap properties_;
  std::unique_ptr<QQuickWindow> window_;
  QMetaObject::Connection mainIsShown_;
};

}  // namespace tromelo
