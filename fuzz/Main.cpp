// fuzz TARGET [--seconds=N] [--seed=N]: gives TARGET inputs without end, made of its corpus.
// fuzz TARGET FILE...: gives it these.
// fuzz: lists the targets.
// An input that ends the process, or takes ten seconds, is written where TROMELO_FOUND says.

#include <fcntl.h>
#include <sanitizer/asan_interface.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "Coverage.h"
#include "Mutator.h"
#include "Targets.h"
#include "support/Files.h"
#include "support/PrivateHome.h"

namespace tromelo::fuzz {

namespace {

constexpr unsigned kPatience = 10;  // seconds for one input
constexpr int kSettling = 200;      // inputs, until everything has been opened that is opened once
constexpr int kSlack = 8;           // descriptors

constexpr std::array kTargets{Target{"settings", settings},
                              Target{"films-file", filmsFile},
                              Target{"films-records", filmsRecords},
                              Target{"arguments", arguments},
                              Target{"mpris", mpris},
                              Target{"engine", engine},
                              Target{"display", display},
                              Target{"playlists", playlists},
                              Target{"pictures", pictures},
                              Target{"lines", lines}};

std::string input;
std::string foundPath;

/// Of what is about to end: nothing is allocated any more.
void keepInput() {
  const int file = ::open(foundPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (file < 0 || ::write(file, input.data(), input.size()) < 0) return;
  std::fprintf(stderr, "\nThe input is kept as %s\n", foundPath.c_str());
}

void run(const Target& target) {
  alarm(kPatience);
  target.run(Input(input));
  alarm(0);
}

int descriptors() {
  return int(QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size());
}

struct Options {
  double seconds = 10;
  unsigned seed = std::random_device()();
  std::vector<std::string> files;
};

Options optionsOf(int argc, char** argv) {
  Options options;
  for (int i = 2; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument.starts_with("--seconds="))
      options.seconds = std::atof(argument.substr(10).data());
    else if (argument.starts_with("--seed="))
      options.seed = unsigned(std::atoll(argument.substr(7).data()));
    else
      options.files.emplace_back(argument);
  }
  return options;
}

int runFiles(const Target& target, const std::vector<std::string>& files) {
  for (const std::string& file : files) {
    input = testing::readFile(QString::fromStdString(file)).toStdString();
    run(target);
  }
  return 0;
}

Mutator mutatorOf(const Target& target, unsigned seed) {
  Mutator mutator(seed);
  const QDir corpus(QString(TROMELO_CORPUS "/") + target.name);
  for (const QString& name : corpus.entryList(QDir::Files)) {
    input = testing::readFile(corpus.filePath(name)).toStdString();
    coverage::begin();
    run(target);
    coverage::takeNew();
    mutator.know(input);
  }
  check(mutator.known() > 0);
  return mutator;
}

int runAtRandom(const Target& target, const Options& options) {
  using Clock = std::chrono::steady_clock;
  std::printf("%s; again with --seed=%u\n", target.name, options.seed);
  std::fflush(stdout);
  Mutator mutator = mutatorOf(target, options.seed);
  const auto end = Clock::now() + std::chrono::duration<double>(options.seconds);
  int count = 0;
  std::optional<int> open;
  for (; Clock::now() < end; ++count) {
    if (count == kSettling) open = descriptors();
    input = mutator.make();
    coverage::begin();
    run(target);
    if (coverage::takeNew() > 0) mutator.know(input);
  }
  std::printf("%s: %d inputs, %.0f a second, %zu worth keeping, %zu places\n", target.name, count,
              count / options.seconds, mutator.known(), coverage::places());
  check(!open || descriptors() <= *open + kSlack);
  return 0;
}

}  // namespace

std::span<const Target> allTargets() { return kTargets; }

void check(bool holds, std::source_location where) {
  if (holds) return;
  std::fprintf(stderr, "%s:%u: a promise isn't kept\n", where.file_name(), where.line());
  std::abort();
}

int main(int argc, char** argv) {
  const auto found =
      std::ranges::find(kTargets, std::string_view(argc > 1 ? argv[1] : ""),
                        [](const Target& one) { return std::string_view(one.name); });
  if (found == kTargets.end()) {
    for (const Target& target : kTargets) std::puts(target.name);
    return argc > 1;
  }
  const char* folder = std::getenv("TROMELO_FOUND");
  foundPath = std::string(folder ? folder : "/tmp") + "/fuzz-" + found->name + '-' +
              std::to_string(getpid());
  if (access("/dev/shm", W_OK) == 0) setenv("TMPDIR", "/dev/shm", 1);
  // What is said of each of millions of inputs is of use to nobody.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const testing::PrivateHome home;
  const QCoreApplication application(argc, argv);
  std::signal(SIGALRM, [](int) { std::abort(); });
  __sanitizer_set_death_callback(keepInput);
  const Options options = optionsOf(argc, argv);
  return options.files.empty() ? runAtRandom(*found, options) : runFiles(*found, options.files);
}

}  // namespace tromelo::fuzz

extern "C" const char* __asan_default_options() {
  return "handle_abort=1:quarantine_size_mb=16:allocator_may_return_null=1";
}

int main(int argc, char** argv) { return tromelo::fuzz::main(argc, argv); }
