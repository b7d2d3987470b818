#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/FilePath.h"
#include "support/Table.h"

namespace tromelo::testing {

CommandLine parse(std::vector<std::string> arguments) {
  std::vector<char*> pointers{nullptr};
  std::string program = "tromelo";
  pointers[0] = program.data();
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  return CommandLine::parse(pointers);
}

TEST(CommandLine, FindsTheFileAndTheStart) {
  for (const auto& [arguments, file, start] :
       Table<std::vector<std::string>, std::optional<QUrl>, std::optional<double>>{
           {std::vector<std::string>(), {}, {}},
           {{"-x", "movie.mkv", "--start=90"}, fileUrlFromPath("movie.mkv"), 90},
           {{"--start=1.5", "/a.mkv", "/b.mkv"}, fileUrlFromPath("/a.mkv"), 1.5},
           {{"/a.mkv", "--start=abc"}, fileUrlFromPath("/a.mkv"), {}},
           {{"/a.mkv", "--start="}, fileUrlFromPath("/a.mkv"), {}},
           {{"/a.mkv", "--start=12x"}, fileUrlFromPath("/a.mkv"), {}},
           {{"/a.mkv", "--start=nan"}, fileUrlFromPath("/a.mkv"), {}},
           {{"--start=abc", "--start=5"}, {}, {}},
           {{"--start=-5"}, {}, -5},
           {{"--unknown=1", "-"}, {}, {}},
           {{"/bad\xff.mkv"}, fileUrlFromPath("/bad\xff.mkv"), {}},
           {{"file:///a%20(b).mkv"}, fileUrlFromPath("/a (b).mkv"), {}},
           {{"file:///%ff\xff.mkv"}, fileUrlFromPath("/\xff\xff.mkv"), {}},
           {{"smb://nas/a.mkv"}, QUrl("smb://nas/a.mkv"), {}},
           {{"/Part 2: //.mkv"}, fileUrlFromPath("/Part 2: //.mkv"), {}},
       }) {
    const CommandLine line = parse(arguments);
    EXPECT_EQ(line.file, file);
    EXPECT_EQ(line.start, start);
    EXPECT_FALSE(line.help || line.version || line.displaySelftest || line.report);
  }
}

TEST(CommandLine, KnowsTheOptionsThatItsHelpNames) {
  const std::pair<const char*, bool CommandLine::*> options[] = {
      {"--help", &CommandLine::help},
      {"--version", &CommandLine::version},
      {"--display-selftest", &CommandLine::displaySelftest},
      {"--report", &CommandLine::report},
      {"--private", &CommandLine::isPrivate}};
  for (const auto& [option, member] : options) {
    EXPECT_TRUE(parse({option}).*member) << option;
    EXPECT_NE(CommandLine::helpText().find(option), std::string::npos) << option;
  }
}

}  // namespace tromelo::testing
