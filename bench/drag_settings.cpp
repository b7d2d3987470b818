// What a person who drags a settings slider waits for: two seconds of writes at 60 a second, next
// to the file that is given, on a real disk.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "platform/UserDefaults.h"
#include "settings/PlayerSettings.h"

namespace tromelo {

namespace {

constexpr int kWrites = 120;
constexpr std::chrono::milliseconds kFrame(16);

double milliseconds(const QElapsedTimer& timer) { return double(timer.nsecsElapsed()) / 1e6; }

struct Drag {
  double seconds = 0;
  double longestStall = 0;  // milliseconds by which a turn of the event loop was late
};

Drag drag(PlayerSettings& settings) {
  Drag result;
  int writes = 0;
  QElapsedTimer whole;
  QElapsedTimer turn;
  QTimer hand;
  hand.setTimerType(Qt::PreciseTimer);
  QObject::connect(&hand, &QTimer::timeout, &hand, [&] {
    settings.setSubtitleSize(20 + 0.25 * ++writes);
    if (writes == kWrites) QCoreApplication::quit();
  });
  QTimer beat;
  beat.setTimerType(Qt::PreciseTimer);
  QObject::connect(&beat, &QTimer::timeout, &beat, [&] {
    result.longestStall = std::max(result.longestStall, milliseconds(turn) - 1);
    turn.restart();
  });
  whole.start();
  turn.start();
  hand.start(kFrame);
  beat.start(std::chrono::milliseconds(1));
  QCoreApplication::exec();
  result.seconds = double(whole.nsecsElapsed()) / 1e9;
  return result;
}

int run(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QFileInfo neighbour(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
  const QTemporaryDir directory(neighbour.absolutePath() + QStringLiteral("/settings-XXXXXX"));
  const QString path = directory.filePath(QStringLiteral("defaults.json"));
  Drag result;
  double wanted = 0;
  QElapsedTimer ending;
  {
    UserDefaults defaults(path);
    PlayerSettings settings(defaults);
    result = drag(settings);
    wanted = settings.subtitleSize();
    ending.start();
  }
  const double quit = milliseconds(ending);
  UserDefaults later(path);
  const bool kept = PlayerSettings(later).subtitleSize() == wanted;
  std::printf("settings: %d writes took %.2f s, longest stall %.1f ms, then %.1f ms to quit; %s\n",
              kWrites, result.seconds, result.longestStall, quit,
              kept ? "the last value is on disk" : "the last value is LOST");
  return kept ? 0 : 1;
}

}  // namespace

}  // namespace tromelo

int main(int argc, char** argv) { return tromelo::run(argc, argv); }
