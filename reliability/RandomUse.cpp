#include "RandomUse.h"

#include <QElapsedTimer>
#include <array>

#include "Screen.h"
#include "support/Clips.h"
#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

namespace {

constexpr std::array kFilms{"sample.mp4", "short-wide.mp4", "short-tall.mp4", "short-square.mp4",
                            "tracks.mkv", "hdr10.mkv",      "sample.mkv",     "video-only.mkv"};
constexpr std::array kOthers{"audio.m4a", "empty.mkv", "text.mkv", "truncated.mkv"};

constexpr qsizetype kLogged = 4000;  // bytes

QString clip(const char* name) { return QString::fromStdString(clipPath(name)); }

std::string named(const char* what, const char* film, bool waits) {
  return std::string(what) + ' ' + film + (waits ? " and see it" : "");
}

}  // namespace

RandomUse::RandomUse(RunningPlayer& player, SoundServer& sound, unsigned seed)
    : player_(player), sound_(sound), engine_(player.ipcPath()), random_(seed) {
  engine_.mayBeReplaced = true;
}

int RandomUse::below(int limit) { return int(random_() % unsigned(limit)); }

bool RandomUse::chance(double probability) {
  return random_() < probability * double(std::mt19937::max());
}

RandomUse::Step RandomUse::step() {
  const bool waits = chance(0.6);
  switch (below(18)) {
    case 0:
    case 1:
    case 2:
      return open(waits);
    case 3:
      return next(waits);
    case 4:
    case 5:
      return seek();
    case 6:
    case 7:
      return pause();
    case 8:
    case 9:
    case 10:
      return pressKey();
    case 11:
      return resize();
    case 12:
      return openOtherWindow();
    case 13:
      return plug();
    default:
      return close();
  }
}

std::string RandomUse::engineState() {
  QByteArray state = "Engines that were replaced: " + QByteArray::number(engine_.replaced) + '\n';
  for (const char* property :
       {"path", "time-pos", "duration", "pause", "core-idle", "eof-reached", "idle-active",
        "current-vo", "current-ao", "aid", "loop-file", "ab-loop-a", "ab-loop-b", "playlist"})
    state += QByteArray("  ") + property + ": " +
             QJsonDocument(QJsonArray{engine_.get(QLatin1StringView(property))})
                 .toJson(QJsonDocument::Compact) +
             '\n';
  state += "  window with the keyboard: " +
           screen::xdotool({QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
               .toUtf8() +
           '\n';
  return (state + readFile(player_.logPath()).right(kLogged)).toStdString();
}

/// What an engine was told goes with it when it is replaced.
void RandomUse::tell(const std::function<void()>& requests) {
  int replaced = 0;
  do {
    replaced = engine_.replaced;
    requests();
  } while (engine_.replaced != replaced);
}

bool RandomUse::waitForFilm(const QString& name) {
  return player_.waitUntil([&] {
    return player_.isRevealed() && name.startsWith(player_.said(QStringLiteral("title")) + u'.') &&
           player_.said(QStringLiteral("status")) != QStringLiteral("Opening media");
  });
}

/// What is sent to the engine from here would overtake what the program sent it, and without the
/// program's knowledge a film could come up in the window that was given up.
bool RandomUse::waitForIdle() {
  return testing::waitFor([&] {
    if (engine_.get(QStringLiteral("idle-active")).toBool())
      return !engine_.get(QStringLiteral("current-vo")).isString();
    // It plays without the window that the key was meant for.
    if (player_.said(QStringLiteral("title")) == QStringLiteral("audio"))
      engine_.command({QStringLiteral("stop")});
    return false;
  });
}

RandomUse::Step RandomUse::openAndWait() { return open(true); }

RandomUse::Step RandomUse::open(bool waits) {
  const bool isFilm = waits || chance(0.8);
  const char* name = isFilm ? kFilms[std::size_t(below(int(kFilms.size())))]
                            : kOthers[std::size_t(below(int(kOthers.size())))];
  tell([&] { engine_.command({QStringLiteral("loadfile"), clip(name)}); });
  return {.name = named("open", name, waits),
          .isDone = !waits || waitForFilm(QString::fromLatin1(name))};
}

RandomUse::Step RandomUse::next(bool waits) {
  const char* name = kFilms[std::size_t(below(int(kFilms.size())))];
  bool isDone = false;
  // A key that was pressed before this may take the queue elsewhere after it.
  for (int tries = 0; tries < 2 && !isDone; ++tries) {
    tell([&] {
      engine_.command({QStringLiteral("loadfile"), clip(name), QStringLiteral("append-play")});
      engine_.set(QStringLiteral("playlist-pos"),
                  engine_.get(QStringLiteral("playlist-count")).toInt() - 1);
    });
    isDone = !waits || waitForFilm(QString::fromLatin1(name));
  }
  return {.name = named("next", name, waits), .isDone = isDone};
}

RandomUse::Step RandomUse::seek() {
  const int percent = below(100);
  engine_.command({QStringLiteral("seek"), percent, QStringLiteral("absolute-percent")});
  return {.name = "seek", .isDone = true};
}

RandomUse::Step RandomUse::pause() {
  const bool paused = chance(0.5);
  engine_.set(QStringLiteral("pause"), paused);
  // Not for long, where a film is closing at the moment.
  return {.name = paused ? "pause" : "play", .isDone = true};
}

RandomUse::Step RandomUse::pressKey() {
  const char* key = kPlayerKeys[std::size_t(below(int(kPlayerKeys.size())))];
  // Elsewhere it could close the library, and so the program.
  if (player_.isRevealed() && waitForKeyboard()) screen::press(QString::fromLatin1(key));
  return {.name = key, .isDone = player_.isRunning()};
}

RandomUse::Step RandomUse::resize() {
  const QString window =
      screen::windowOf(player_.processId(), player_.said(QStringLiteral("title")));
  if (player_.isRevealed() && !window.isEmpty())
    screen::xdotool({QStringLiteral("windowsize"), window, QString::number(400 + below(800)),
                     QString::number(250 + below(500))});
  return {.name = "resize", .isDone = true};
}

RandomUse::Step RandomUse::openOtherWindow() {
  if (!player_.isRevealed() || !waitForKeyboard()) return {.name = "no window", .isDone = true};
  screen::press(QStringLiteral("ctrl+comma"));
  const QString title = QStringLiteral("^Settings");
  const auto isOpen = [&] { return !screen::windowOf(player_.processId(), title).isEmpty(); };
  const auto isActive = [&] { return screen::isActive(player_.processId(), title); };
  // The film's window may have closed before the key reached it.
  const bool opened = player_.waitUntil([&] { return isActive() || !player_.isRevealed(); });
  if (!opened) return {.name = "settings that don't open"};
  // On a busy machine the window is active before it takes keys.
  for (int tries = 0; tries < 3 && isOpen(); ++tries) {
    if (isActive()) screen::press(QStringLiteral("Escape"));
    (void)testing::waitFor([&] { return !isOpen(); }, std::chrono::seconds(10));
  }
  return {.name = isOpen() ? "settings that don't close" : "settings", .isDone = !isOpen()};
}

RandomUse::Step RandomUse::plug() {
  switch (below(3)) {
    case 0:
      screen::unplug(1);
      if (chance(0.5)) screen::run(QStringLiteral("sleep"), {QStringLiteral("0.5")});
      screen::plugIn(1);
      return {.name = "screen", .isDone = true};
    case 1:
      sound_.kill();
      sound_.start();
      hasSpeakers_ = true;
      return {.name = "sound server", .isDone = true};
    default:
      hasSpeakers_ = !hasSpeakers_;
      hasSpeakers_ ? sound_.plugIn() : sound_.unplug();
      return {.name = hasSpeakers_ ? "speakers" : "no speakers", .isDone = true};
  }
}

/// The film's window has the keyboard; false when there is none any more.
bool RandomUse::waitForKeyboard() {
  return player_.waitUntil([&] {
    if (!player_.isRevealed()) return true;
    const QString title = player_.said(QStringLiteral("title"));
    return screen::isActive(player_.processId(), title);
  }) && player_.isRevealed();
}

/// Panels take keys for themselves. False where there is no film's window any more.
bool RandomUse::closePanel() {
  const auto isClosed = [&] {
    return player_.said(QStringLiteral("panel")) == QStringLiteral("none");
  };
  if (!isClosed()) screen::press(QStringLiteral("Escape"));
  return player_.waitUntil([&] { return isClosed() || !player_.isRevealed(); }) &&
         player_.isRevealed();
}

RandomUse::Step RandomUse::close() {
  const bool hasKeyboard = waitForKeyboard() && closePanel();
  QElapsedTimer timer;
  timer.start();
  if (hasKeyboard)
    screen::press(QStringLiteral("s"));
  else
    engine_.command({QStringLiteral("stop")});
  const bool isDone = player_.waitUntil([&] {
    return player_.said(QStringLiteral("window")) == QStringLiteral("none") &&
           !screen::windowOf(player_.processId(), QStringLiteral("^Tromelo$")).isEmpty();
  });
  const std::chrono::milliseconds closing(timer.elapsed());
  return {.name = "close",
          .isDone = isDone && waitForIdle(),
          .closing = closing,
          .use = ProcessUse::of(player_.processId())};
}

}  // namespace tromelo::testing
