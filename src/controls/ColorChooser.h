#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColorDialog>
#include <QPointer>
#include <QQuickItem>

namespace tromelo {

/// A window in which a person chooses an opaque colour. Nothing waits for it: each colour that they
/// try shows at once, and the one before comes back when they cancel. It goes with its
/// parent item. Needs a QApplication. Main thread only.
class ColorChooser : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString title MEMBER title_ REQUIRED)

 public:
  using QObject::QObject;
  ~ColorChooser() override;

  /// Above the window of `item`. While it is open it only comes to the front.
  Q_INVOKABLE void open(const QColor& color, QQuickItem* item);

 Q_SIGNALS:
  void chosen(const QColor& color);

 private:
  void show(const QColor& color, QWindow* above);

  QString title_;
  QPointer<QColorDialog> dialog_;
  bool hasTried_ = false;  // a colour was tried since the dialog opened
};

}  // namespace tromelo
