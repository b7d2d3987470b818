#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <cstdio>

namespace {

/// A corner of the screen from which a hand can drag what the command line says: a type, then its
/// lines. Tells what the target under the pointer would do, and what came of it; stays for those
/// who fetch the data then.
struct DragSource : QRasterWindow {
  DragSource() {
    setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    setGeometry(0, 0, 60, 60);
  }

 protected:
  void exposeEvent(QExposeEvent* event) override {
    QRasterWindow::exposeEvent(event);
    std::puts("ready");
    std::fflush(stdout);
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const QStringList arguments = QCoreApplication::arguments();
    auto* const data = new QMimeData;  // the drag owns it
    data->setData(arguments.at(1), arguments.sliced(2).join("\r\n").toUtf8());
    auto* const drag = new QDrag(this);  // Qt deletes it
    drag->setMimeData(data);
    connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) { say("would", action); });
    say("did", drag->exec(Qt::CopyAction | Qt::MoveAction));
  }

 private:
  static void say(const char* what, Qt::DropAction action) {
    std::printf("%s %s\n", what, action == Qt::CopyAction ? "copy" : "nothing");
    std::fflush(stdout);
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  DragSource source;
  source.show();
  return QGuiApplication::exec();
}
