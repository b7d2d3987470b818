#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

namespace tromelo {
namespace {

CommandLine parse(std::vector<std::string> arguments) {
  std::vector<char*> pointers{nullptr};
  std::string program = "tromelo";
  pointers[0] = program.data();
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  return CommandLine::parse(pointers);
}

TEST(CommandLine, FindsThePathAndTheStart) {
  struct Row {
    std::vector<std::string> arguments;
    std::optional<std::string> path;
    std::optional<double> start;
  };
  const Row rows[] = {
      {{}, {}, {}},
      {{"-x", "movie.mkv", "--start=90"}, "movie.mkv", 90},
      {{"--start=1.5", "a.mkv", "b.mkv"}, "a.mkv", 1.5},
      {{"movie.mkv", "--start=abc"}, "movie.mkv", {}},
      {{"movie.mkv", "--start="}, "movie.mkv", {}},
      {{"movie.mkv", "--start=12x"}, "movie.mkv", {}},
      {{"movie.mkv", "--start=nan"}, "movie.mkv", {}},
      {{"--start=abc", "--start=5"}, {}, {}},
      {{"--start=-5"}, {}, -5},
      {{"--unknown=1", "-"}, {}, {}},
      {{"bad\xff.mkv"}, "bad\xff.mkv", {}},
  };
  for (const Row& row : rows) {
    const CommandLine line = parse(row.arguments);
    EXPECT_EQ(line.path, row.path);
    EXPECT_EQ(line.start, row.start);
    EXPECT_FALSE(line.help || line.version || line.displaySelftest || line.report);
  }
}

TEST(CommandLine, KnowsTheOptionsThatItsHelpNames) {
  EXPECT_TRUE(parse({"--help"}).help);
  EXPECT_TRUE(parse({"--version"}).version);
  EXPECT_TRUE(parse({"--display-selftest"}).displaySelftest);
  EXPECT_TRUE(parse({"--report"}).report);
  for (const char* option : {"--help", "--version", "--display-selftest", "--report", "--start"})
    EXPECT_NE(CommandLine::helpText().find(option), std::string::npos) << option;
}

}  // namespace
}  // namespace tromelo
