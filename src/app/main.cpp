#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStringList>
#include <QStyleHints>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "app/CommandLine.h"
#include "app/Program.h"
#include "app/SelftestCommand.h"
#include "display/HostRelay.h"
#include "lines/LineReader.h"
#include "pictures/PictureMaker.h"
#include "pictures/Thumbnailer.h"
#include "platform/HeapMemory.h"
#include "platform/HostEnvironment.h"
#include "platform/SessionBus.h"
#include "platform/Timeline.h"

namespace {

/// Put round the making of the application object: where the display can't be reached, which Qt
/// takes for a reason to abort, the process ends with one sentence and status 1. One at a time.
class DisplayGuard {
 public:
  DisplayGuard() { qInstallMessageHandler(hold); }
  /// Passes on what Qt has said meanwhile.
  ~DisplayGuard() {
    qInstallMessageHandler(nullptr);
    const std::scoped_lock lock(mutex);
    for (const QString& line : std::exchange(held, {}))
      std::fprintf(stderr, "%s\n", qPrintable(line));
  }

 private:
  static void hold(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const std::scoped_lock lock(mutex);
    if (type != QtFatalMsg) return held.append(qFormatLogMessage(type, context, message));
    std::fputs(
        "Tromelo can't reach the display that QT_QPA_PLATFORM, WAYLAND_DISPLAY or DISPLAY names: "
        "start it in a Wayland or X11 session.\n",
        stderr);
    std::_Exit(1);
  }

  static inline std::mutex mutex;  // messages come from any thread
  static inline QStringList held;
};

bool hasHostDisplay() {
  for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "DISPLAY"})
    if (qEnvironmentVariableIsSet(name)) return true;
  return false;
}

void prepareGraphics() {
  // The picture comes in as a texture, or as a buffer that only EGL can import: GLX can't.
  if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
    tromelo::HostEnvironment::set("QT_XCB_GL_INTEGRATION", "xcb_egl");
}

/// The dialogs that Qt draws itself stay light where no desktop's theme answers.
void darken(QApplication& application) {
  application.styleHints()->setColorScheme(Qt::ColorScheme::Dark);
  if (application.palette().color(QPalette::Window).lightness() < 128) return;
  QPalette dark(QColor(0x2c, 0x2e, 0x35), QColor(0x1a, 0x1c, 0x22));
  dark.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb0));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  application.setPalette(dark);
}

void describe(QApplication& application) {
  application.setApplicationName(QStringLiteral("Tromelo"));
  application.setApplicationDisplayName(QStringLiteral("Tromelo"));
  application.setApplicationVersion(QStringLiteral(TROMELO_VERSION));
  application.setDesktopFileName(QStringLiteral("org.tromelo.Tromelo"));
  application.setQuitOnLastWindowClosed(false);
  // Menus look like the rest of the window that they belong to.
  application.setAttribute(Qt::AA_DontUseNativeMenuBar);
}

/// The program's texts, and those of Qt's dialogs in the same language: the first of the person's
/// languages that there is a catalogue for.
struct Translations {
  Translations() {
    // English has a catalogue too, so that whoever prefers it to German doesn't get German.
    if (!program.load(QLocale::system(), QStringLiteral("tromelo"), QStringLiteral("_"),
                      QStringLiteral(":/i18n")))
      return;
    QCoreApplication::installTranslator(&program);
    if (qt.load(QStringLiteral("qtbase_") + program.language(),
                QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
      QCoreApplication::installTranslator(&qt);
  }

  QTranslator program;
  QTranslator qt;
};

/// What is ours has ended in order, and nothing waits for the engine's threads.
[[noreturn]] void endUnderTheEngine(int status) {
  std::fputs("The playback engine hangs, and was left behind.\n", stderr);
  std::fflush(nullptr);
  std::_Exit(status);
}

}  // namespace

int main(int argc, char** argv) {
  const auto arguments = std::span(argv, static_cast<std::size_t>(argc));
  // These are no players: they need neither a display nor a bus, and touch neither.
  const std::string_view first = argc > 1 ? argv[1] : "";
  if (first == tromelo::kPicturesOption) return tromelo::runPictureMaker();
  if (first == tromelo::kLinesOption) return tromelo::runLineReader(arguments.subspan(2));
  if (first == tromelo::kThumbnailOption) return tromelo::runThumbnailer(arguments.subspan(2));
  const auto line = tromelo::CommandLine::parse(arguments);
  if (line.help) return std::fputs(tromelo::CommandLine::helpText().c_str(), stdout) < 0;
  if (line.version) return std::puts("Tromelo " TROMELO_VERSION) < 0;
  if (line.timeline) tromelo::Timeline::begin();
  tromelo::Timeline::note("main() reached");
  if (!hasHostDisplay()) {
    std::fputs("Tromelo needs a display: start it in a Wayland or X11 session.\n", stderr);
    return 1;
  }
  tromelo::leaveSilentSessionBus();
  tromelo::Timeline::note("session bus asked");
  tromelo::shareHeaps();
  prepareGraphics();
  auto relay = tromelo::HostRelay::offer();  // ends after the application object
  std::optional<DisplayGuard> guard(std::in_place);
  QApplication application(argc, argv);
  guard.reset();
  if (relay && !relay->isTaken()) relay.reset();
  tromelo::Timeline::note("application object made");
  describe(application);
  darken(application);
  if (line.displaySelftest)
    return std::fputs(qPrintable(tromelo::runDisplaySelftest()), stdout) < 0;
  const Translations translations;  // before any text is made
  tromelo::Timeline::note("translations loaded");
  std::optional<tromelo::Program> program(std::in_place, line, relay.get());
  tromelo::Timeline::note("program made");
  const int status = program->run();
  const bool engineHangs = program->engineHangs();
  program.reset();
  if (engineHangs) endUnderTheEngine(status);
  return status;
}
