#include "player/PlayerHostWindow.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>
#include <utility>

#include "platform/KeptInside.h"
#include "platform/Timeline.h"
#include "player/LostScene.h"

namespace tromelo {

namespace {

// A window of this size is dressed and mapped before the engine says how large its picture is.
constexpr QSize kProvisionalSize(640, 360);

// By then the press of a key that is held has come after its release; see HeldKey.
constexpr std::chrono::milliseconds kRepeatCome(60);

// In points.
constexpr QSize kMiniSize(320, 320);  // its longer side counts
constexpr QSize kMiniMinimum(160, 90);
constexpr int kMiniMargin = 16;

/// Types, or moves about in what is typed: also where there is no room, and where that ends.
bool isForText(const QKeyEvent& event) {
  const bool isArrow = event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
  return isArrow || (!event.text().isEmpty() && event.text().front().isPrint());
}

}  // namespace

PlayerHostWindow::PlayerHostWindow(QQmlEngine& engine, const ReducedMotion& reducedMotion) {
  QSurfaceFormat translucent = format();  // a scene needs the depth that it asks for
  translucent.setAlphaBufferSize(8);
  setFormat(translucent);
  setFlags(Qt::Window | Qt::FramelessWindowHint);
  setColor(Qt::transparent);
  setTitle(QGuiApplication::applicationDisplayName());
  resize(kProvisionalSize);
  endWhereSceneIsLost(*this);
  letsGo_.setSingleShot(true);
  letsGo_.setInterval(kRepeatCome);
  connect(&letsGo_, &QTimer::timeout, this, &PlayerHostWindow::letGo);
  QQmlComponent component(&engine, QStringLiteral("Tromelo.Player"), QStringLiteral("PlayerScene"));
  scene_.reset(qobject_cast<PlayerSceneItem*>(component.create()));
  if (!scene_) qFatal("%s", qPrintable(component.errorString()));
  scene_->setParentItem(contentItem());
  scene_->setOpacity(0);
  fade_ = std::make_unique<WindowFade>(*scene_, reducedMotion);
  connect(this, &QWindow::widthChanged, this, &PlayerHostWindow::fillWindow);
  connect(this, &QWindow::heightChanged, this, &PlayerHostWindow::fillWindow);
  fillWindow();
}

PlayerHostWindow::~PlayerHostWindow() = default;

void PlayerHostWindow::fillWindow() { scene_->setSize(size()); }

QSize PlayerHostWindow::pixelSize() const { return (QSizeF(size()) * devicePixelRatio()).toSize(); }

void PlayerHostWindow::resizeToPixels(QSize pixels) {
  const QSize points = roomFor((QSizeF(pixels) / devicePixelRatio()).toSize());
  if (points == size()) return;
  const QPoint middle = geometry().center();
  resize(points);
  center(middle);
}

/// A picture smaller than the smallest window is enlarged with its aspect kept, where the screen
/// has the room.
QSize PlayerHostWindow::roomFor(QSize picture) const {
  const QSize atLeast = picture.expandedTo(minimumSize());
  if (atLeast == picture || !screen()) return atLeast;
  const QSize enlarged = picture.scaled(minimumSize(), Qt::KeepAspectRatioByExpanding);
  const QSize available = screen()->availableSize();
  return enlarged.boundedTo(available) == enlarged ? enlarged : atLeast;
}

void PlayerHostWindow::center(QPoint middle) {
  if (!screen()) return;
  const QRect available = screen()->availableGeometry();
  QRect frame(QPoint(), size());
  // A window that a person has seen stays where it is, one that is new goes to the middle.
  frame.moveCenter(scene_->opacity() > 0 ? middle : available.center());
  setPosition(keptInside(frame, available).topLeft());
}

QSize PlayerHostWindow::pixelRoom() const {
  return screen() ? (QSizeF(screen()->availableSize()) * devicePixelRatio()).toSize() : pixelSize();
}

void PlayerHostWindow::setMini(bool isMini) {
  if (isMini == beforeMini_.has_value()) return;
  if (isMini) {
    beforeMini_ = Shape{minimumSize(), geometry()};
    setMinimumSize(kMiniMinimum);
    resize(size().scaled(kMiniSize, Qt::KeepAspectRatio).expandedTo(kMiniMinimum));
    if (!screen()) return;
    const int margin = kMiniMargin;
    QRect frame(QPoint(), size());
    frame.moveBottomRight(screen()->availableGeometry().bottomRight() - QPoint(margin, margin));
    setPosition(frame.topLeft());
  } else {
    const Shape shape = *std::exchange(beforeMini_, std::nullopt);
    setMinimumSize(shape.minimum);
    resize(shape.frame.size());
    setPosition(shape.frame.topLeft());
  }
}

void PlayerHostWindow::showUnseen() {
  if (isVisible()) return;
  center(geometry().center());
  // Without a compositor a transparent window is a black one: leave it one pixel to be.
  setMask(QRegion(0, 0, 1, 1));
  setVisible(true);
  Timeline::note("player window mapped");
}

void PlayerHostWindow::present() {
  Timeline::note("player window revealed");
  if (Timeline::isRunning())
    connect(this, &QQuickWindow::frameSwapped, this, [this] {
      if (scene_->opacity() > 0) Timeline::finish("first picture on the screen");
    });
  setMask(QRegion());
  // Not show(), which also ends full screen.
  if (windowStates() & Qt::WindowMinimized) setWindowStates(windowStates() & ~Qt::WindowMinimized);
  setVisible(true);
  raise();
  requestActivate();
}

void PlayerHostWindow::hidePointer() {
  pointerHidden_ = true;
  updateCursor();
}

void PlayerHostWindow::showPointer() {
  if (std::exchange(pointerHidden_, false)) updateCursor();
}

void PlayerHostWindow::updateCursor() {
  if (pointerHidden_)
    setCursor(Qt::BlankCursor);
  else if (edgesUnderPointer_)
    setCursor(cursorFor(edgesUnderPointer_));
  else
    unsetCursor();
}

void PlayerHostWindow::followPointer(const QSinglePointEvent& event) {
  if (std::exchange(pointer_, event.globalPosition()) != event.globalPosition()) showPointer();
  // A button that went down elsewhere keeps its pointer's look.
  if (event.buttons() != Qt::NoButton) return;
  // A host that takes the pointer away may let the button go first.
  if (event.type() != QEvent::MouseButtonRelease) edgeResize_.finishHostResize();
  const Qt::Edges edges = edgeResize_.edgesAt(event.position());
  if (std::exchange(edgesUnderPointer_, edges) != edges) updateCursor();
}

/// True when the event is no one else's.
bool PlayerHostWindow::handlePointer(QEvent& event) {
  switch (event.type()) {
    case QEvent::Enter:
      followPointer(static_cast<const QEnterEvent&>(event));
      return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
      followPointer(static_cast<const QMouseEvent&>(event));
      return edgeResize_.take(static_cast<const QMouseEvent&>(event));
    default:
      return false;
  }
}

bool PlayerHostWindow::isTypedInto() const {
  const QQuickItem* item = activeFocusItem();
  return item && item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

/// Menus and other popups lie on a layer of their own.
bool PlayerHostWindow::isInPopup() const {
  for (const QQuickItem* item = activeFocusItem(); item; item = item->parentItem())
    if (item->inherits("QQuickOverlay")) return true;
  return false;
}

/// A menu has all keys. What is typed into has them first, and those for text are never anyone
/// else's. True when the event needs to go nowhere else.
bool PlayerHostWindow::handleKey(QKeyEvent& event) {
  const bool isMenus = isInPopup();
  if (!isMenus && !isTypedInto()) return askMonitor(event);
  QQuickWindow::event(&event);
  if (isMenus) return true;
  if (!event.isAccepted() && !isForText(event)) event.setAccepted(askMonitor(event));
  return true;
}

bool PlayerHostWindow::askMonitor(const QKeyEvent& event) {
  KeyPress press = KeyPress::from(event);
  press.isRepeat = heldKey_.isRepeatedBy(event);
  if (press.isRepeat) letsGo_.stop();
  const KeyMonitor monitor = keyMonitor_;  // a key can be what takes it away
  if (!monitor || !monitor(press)) return false;
  down_ = press;
  return true;
}

/// Whichever key comes up, and when the keyboard is another window's: what is done for as long as a
/// key is down must not go on.
void PlayerHostWindow::letGo() {
  auto press = std::exchange(down_, {});
  if (!press || !keyMonitor_) return;
  press->isUp = true;
  const KeyMonitor monitor = keyMonitor_;
  monitor(*press);
}

bool PlayerHostWindow::event(QEvent* event) {
  if (handlePointer(*event)) return true;
  if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent&>(*event))) return true;
  if (event->type() == QEvent::KeyRelease) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    heldKey_.release(key);
    if (!key.isAutoRepeat()) letsGo_.start();
  }
  if (event->type() == QEvent::FocusOut) letGo();
  if (event->type() == QEvent::Close) {
    event->ignore();
    Q_EMIT closeRequested();
    return true;
  }
  if (event->type() == QEvent::DevicePixelRatioChange) Q_EMIT devicePixelRatioChanged();
  if (event->type() == QEvent::WindowStateChange) Q_EMIT stateReported(windowStates());
  return QQuickWindow::event(event);
}

}  // namespace tromelo
