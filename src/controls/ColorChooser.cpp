#include "controls/ColorChooser.h"

#include <QQuickWindow>

namespace tromelo {

ColorChooser::~ColorChooser() { delete dialog_; }

void ColorChooser::open(const QColor& color, QQuickItem* item) {
  if (!dialog_) return show(color, item->window());
  dialog_->raise();
  dialog_->activateWindow();
}

void ColorChooser::show(const QColor& color, QWindow* above) {
  dialog_ = new QColorDialog(color);
  dialog_->setAttribute(Qt::WA_DeleteOnClose);
  dialog_->setWindowTitle(title_);
  hasTried_ = false;
  connect(dialog_, &QColorDialog::currentColorChanged, this, [this](const QColor& tried) {
    hasTried_ = true;
    Q_EMIT chosen(tried);
  });
  connect(dialog_, &QColorDialog::rejected, this, [this, color] {
    if (hasTried_) Q_EMIT chosen(color);
  });
  dialog_->winId();
  dialog_->windowHandle()->setTransientParent(above);
  dialog_->show();
}

}  // namespace tromelo
