#pragma once

#include <QObject>

#include "platform/UserDefaults.h"

namespace tromelo {

/// How wide the sidebar is, in points; remembered. Main thread only.
class SidebarWidth : public QObject {
  Q_OBJECT
  Q_PROPERTY(double least READ least CONSTANT)
  Q_PROPERTY(double most READ most CONSTANT)
  Q_PROPERTY(double width READ width WRITE setWidth NOTIFY widthChanged)

 public:
  /// `defaults` outlives it.
  explicit SidebarWidth(UserDefaults& defaults, QObject* parent = nullptr);

  static double least() { return 200; }
  static double most() { return 300; }
  double width() const { return width_; }
  /// Takes the nearest width that is allowed.
  void setWidth(double points);
  /// Makes it wider by so many points, or narrower.
  Q_INVOKABLE void widen(double points) { setWidth(width_ + points); }
  /// Back to the width that it had at first.
  Q_INVOKABLE void reset();

 Q_SIGNALS:
  void widthChanged();

 private:
  UserDefaults& defaults_;
  double width_;
};

}  // namespace tromelo
