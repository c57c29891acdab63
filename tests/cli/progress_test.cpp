#include "cli/progress.h"

#include <gtest/gtest.h>

#include <csignal>

#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/run.h"

namespace tolva::test {
namespace {

using namespace cli;
using std::chrono::hours;
using std::chrono::seconds;

TEST(Progress, IsALineOnATerminal) {
  TerminalOutput terminal;
  Progress progress(terminal, {.bytes = 200, .files = 3}, seconds(0));
  progress.Add({.bytes = 50, .files = 1});
  EXPECT_EQ(terminal.text(), "\r\x1B[K25 %, 1 of 3 files");
  terminal.Clear();
  progress.StepAside([&] { terminal.Write("text"); });
  progress.StepAside([&] { terminal.Write("more"); });
  EXPECT_EQ(terminal.text(), "\r\x1B[Ktextmore");

  Progress later(terminal, {}, hours(1));
  TextOutput file;
  Progress unseen(file, {}, seconds(0));
  for (Progress* const silent : {&later, &unseen}) silent->Add({.bytes = 1});
  EXPECT_EQ(terminal.text(), "\r\x1B[Ktextmore");
  EXPECT_EQ(file.text(), "");
}

#if !defined(_WIN32)
TEST(Interrupt, EndsAReadAndNotTheProcess) {
  TerminalOutput terminal;
  Progress progress(terminal, {});
  const auto stream = Watch(*StreamOf("text").Get(), progress);
  char byte = 0;
  ULONG count = 0;
  CatchInterrupt();
  EXPECT_EQ(stream->Read(&byte, 1, &count), S_OK);
  std::raise(SIGINT);
  EXPECT_EQ(ReasonOf(stream->Read(&byte, 1, &count)), "it was interrupted");
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGTERM, SIG_DFL);
  CatchInterrupt();
  EXPECT_FALSE(IsInterrupted());
}
#endif

}  // namespace
}  // namespace tolva::test
