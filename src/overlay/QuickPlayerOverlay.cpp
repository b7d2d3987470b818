#include "overlay/QuickPlayerOverlay.h"

#include <QQmlComponent>

namespace tromelo {

QuickPlayerOverlay::QuickPlayerOverlay(QQmlEngine& engine, QQuickItem& scene) : scene_(scene) {
  QQmlComponent component(&engine, QStringLiteral("Tromelo.Overlay"),
                          QStringLiteral("PlayerOverlayView"));
  view_.reset(qobject_cast<QQuickItem*>(component.create()));
  if (!view_) qFatal("%s", qPrintable(component.errorString()));
  view_->setParentItem(&scene);
  connect(&scene, &QQuickItem::widthChanged, this, &QuickPlayerOverlay::fillScene);
  connect(&scene, &QQuickItem::heightChanged, this, &QuickPlayerOverlay::fillScene);
  fillScene();
  connect(view_.get(), SIGNAL(doubleClicked()), this, SLOT(reportDoubleClick()));
  connect(view_.get(), SIGNAL(filesDropped(QList<QUrl>)), this, SLOT(reportDrop(QList<QUrl>)));
}

QuickPlayerOverlay::~QuickPlayerOverlay() {
  // It can be one of the view's own handlers that ends the overlay.
  view_->setParentItem(nullptr);
  view_.release()->deleteLater();
}

void QuickPlayerOverlay::fillScene() { view_->setSize(scene_.size()); }

void QuickPlayerOverlay::reportDoubleClick() { onDoubleClick(); }

void QuickPlayerOverlay::reportDrop(const QList<QUrl>& urls) {
  QList<QUrl> files;
  for (const QUrl& url : urls)
    if (url.isLocalFile()) files.append(url);
  if (!files.isEmpty()) onDropFiles(files);
}

}  // namespace tromelo
