#include "support/Reader.h"

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace tromelo::testing {

namespace {

void setActive(bool active) {
  QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
}

}  // namespace

Reader::Reader(QWindow& window) : window_(window) {
  setActive(true);
  heard.clear();
  QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    if (event->type() == QAccessible::Announcement)
      heard << static_cast<QAccessibleAnnouncementEvent*>(event)->message();
  });
}

Reader::~Reader() {
  QAccessible::installUpdateHandler(nullptr);
  setActive(false);
}

}  // namespace tromelo::testing
