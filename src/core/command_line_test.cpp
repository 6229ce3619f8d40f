// The run switches of the command line.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

struct Outcome {
  int silentmode = 0;
  int cleanmode = 0;
  int suitemode = 0;
  int forceclean = 0;
  bool given = true;
  int hidden_run = 0;
  bool shown = true;

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out) {
  *out << "silent " << outcome.silentmode << ", clean " << outcome.cleanmode << ", suite "
       << outcome.suitemode << ", force " << outcome.forceclean << ", given " << outcome.given
       << ", hidden run " << outcome.hidden_run << ", shown " << outcome.shown;
}

// What the Initialize event makes of a command line.
Outcome outcome_of(ScanFixture& fixture, std::string_view line) {
  Session session(fixture.machine.platform());
  ModalWindows windows(session);
  Form7 form(session, windows);
  form.initialize(line);
  return {session.silentmode,       session.cleanmode, session.suitemode,     session.forceclean,
          session.CommandLineGiven, session.HiddenRun, session.shown_at_start};
}

struct Case {
  std::string_view line;
  Outcome outcome;
};

constexpr Outcome run(int cleanmode, int forceclean = 0) {
  return {.silentmode = 1, .cleanmode = cleanmode, .forceclean = forceclean, .shown = false};
}
constexpr Outcome quick_run(int suitemode) {
  return {.silentmode = 1, .suitemode = suitemode, .shown = false};
}
constexpr Outcome kNothing{};

constexpr Case kSwitches[] = {
    {"w4", quick_run(1)},
    {"w4-c4", quick_run(2)},
    {"g", {.silentmode = 2, .hidden_run = 1, .shown = false}},
    {"w", run(0)},
    {"w-c", run(1)},
    {"w2", run(0)},
    {"w2-c2", run(2)},
    {"w3", run(0)},
    {"w3-c3", run(2, 1)},
    {"s", {.hidden_run = 1, .shown = false}},
    {"d", kNothing},  // tested when the window loads
};

TEST(CommandLine, EachSwitchSetsItsFields) {
  ScanFixture fixture;
  for (const auto& [line, outcome] : kSwitches) {
    EXPECT_EQ(outcome_of(fixture, line), outcome) << line;
  }
}

constexpr Case kEdges[] = {
    // The line is trimmed and lower-cased first.
    {"W2-C2", run(2)},
    {"  w-c  ", run(1)},
    {"G", {.silentmode = 2, .hidden_run = 1, .shown = false}},
    // An unknown second half scans without cleaning.
    {"w-x", run(0)},
    {"w-", run(0)},
    {"w-c2", run(0)},
    {"w2-c", run(0)},
    {"w3-c2", run(0)},
    {"w4-c", quick_run(1)},
    // Only the first two parts count, blanks in them too.
    {"w-c-x", run(1)},
    {"w4-c4-x", quick_run(2)},
    {"w - c", kNothing},
    // Switches of the whole line.
    {"g-c", kNothing},
    {"s-c", kNothing},
    {"d-c", kNothing},
    // Others leave the window open.
    {"x", kNothing},
    {"w5", kNothing},
    {"-c", kNothing},
    {"-", kNothing},
    {"/w", kNothing},
    {"ww", kNothing},
};

TEST(CommandLine, OtherLinesDoNoMoreThanTheyName) {
  ScanFixture fixture;
  for (const auto& [line, outcome] : kEdges) {
    EXPECT_EQ(outcome_of(fixture, line), outcome) << line;
  }
}

TEST(CommandLine, AnEmptyOneIsAStartByTheUser) {
  ScanFixture fixture;
  for (const char* line : {"", "   "}) {
    EXPECT_EQ(outcome_of(fixture, line), Outcome{.given = false}) << line;
  }
}

TEST(CommandLine, IsKeptTrimmedAndInLowerCase) {
  ScanFixture fixture;
  Program program(fixture.machine.platform());
  Form7 form(program.session, program.windows);
  form.initialize("  W2-C2 ");
  EXPECT_EQ(form.session.cmdline, "w2-c2");
}

}  // namespace
}  // namespace quillvane
