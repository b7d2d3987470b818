#include "overlay/QuickPlayerOverlay.h"

#include <QQmlComponent>
#include <utility>

#include "overlay/PlayerOverlayItem.h"
#include "pictures/PictureSource.h"
#include "playback/PlaybackModel.h"
#include "player/PlayerSceneItem.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

namespace {

std::unique_ptr<PlayerOverlayItem> makeView(QQmlEngine& engine, QQuickItem& scene,
                                            PlaybackModel& playback, PlayerWindowController& player,
                                            PictureSource* pictures) {
  QQmlComponent component(&engine, QStringLiteral("Tromelo.Overlay"),
                          QStringLiteral("PlayerOverlayView"));
  const auto* played = qobject_cast<PlayerSceneItem*>(&scene);  // none where a test draws no video
  std::unique_ptr<PlayerOverlayItem> view(
      qobject_cast<PlayerOverlayItem*>(component.createWithInitialProperties(
          {{QStringLiteral("playback"), QVariant::fromValue(&playback)},
           {QStringLiteral("chrome"), QVariant::fromValue(&player.chrome())},
           {QStringLiteral("player"), QVariant::fromValue(&player)},
           {QStringLiteral("pictures"), QVariant::fromValue(pictures)},
           {QStringLiteral("backdrop"),
            QVariant::fromValue<QQuickItem*>(played ? &played->video() : nullptr)}})));
  if (!view) qFatal("%s", qPrintable(component.errorString()));
  return view;
}

}  // namespace

QuickPlayerOverlay::QuickPlayerOverlay(QQmlEngine& engine, QQuickItem& scene,
                                       PlaybackModel& playback, PlayerWindowController& player,
                                       const ReducedMotion& reducedMotion, Clock& clock,
                                       PointerWatch::Place pointer, PictureSource* pictures)
    : scene_(scene),
      view_(makeView(engine, scene, playback, player, pictures)),
      chrome_(std::make_unique<ChromeGroup>(view_->chromeItem(), reducedMotion)),
      pointer_(*scene.window(), clock, std::move(pointer), [this] { onActivity(); }) {
  view_->setParentItem(&scene);
  connectInput(view_->input());
  connect(&scene, &QQuickItem::widthChanged, this, &QuickPlayerOverlay::fillScene);
  connect(&scene, &QQuickItem::heightChanged, this, &QuickPlayerOverlay::fillScene);
  fillScene();
  followLayout();
}

QuickPlayerOverlay::~QuickPlayerOverlay() {
  chrome_.reset();
  // It can be one of the view's own handlers that ends the overlay.
  view_->setParentItem(nullptr);
  view_.release()->deleteLater();
}

void QuickPlayerOverlay::connectInput(PlayerOverlayInput& input) {
  connect(&input, &PlayerOverlayInput::clicked, this, [this] { onClick(); });
  connect(&input, &PlayerOverlayInput::doubleClicked, this, [this] { onDoubleClick(); });
  connect(&input, &PlayerOverlayInput::scrolled, this, [this](double steps, bool isControlHeld) {
    isControlHeld ? onControlScroll(steps) : onScroll(steps);
  });
  connect(&input, &PlayerOverlayInput::filesDropped, this,
          [this](const QList<QUrl>& files) { onDropFiles(files); });
}

void QuickPlayerOverlay::followLayout() {
  for (const QQuickItem* item : {static_cast<QQuickItem*>(view_.get()), &view_->controls()})
    for (const auto changed : {&QQuickItem::xChanged, &QQuickItem::yChanged,
                               &QQuickItem::widthChanged, &QQuickItem::heightChanged})
      connect(item, changed, this, &QuickPlayerOverlay::scheduleLayout);
}

double QuickPlayerOverlay::height() const { return view_->height(); }

double QuickPlayerOverlay::controlsTop() const { return view_->height() - view_->controls().y(); }

void QuickPlayerOverlay::fillScene() { view_->setSize(scene_.size()); }

void QuickPlayerOverlay::scheduleLayout() {
  // What one new size moves is told of once, when all of it is in its place.
  if (std::exchange(layoutScheduled_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        layoutScheduled_ = false;
        onLayout();
      },
      Qt::QueuedConnection);
}

bool QuickPlayerOverlay::isMouseInsideChrome() const {
  return chrome_->contains(pointer_.position());
}

void QuickPlayerOverlay::setChromeVisible(bool visible, bool animated) {
  chrome_->setVisible(visible, animated);
}

}  // namespace tromelo
