// The real program that prints its report and ends.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "tests/e2e/Process.h"
#include "tests/support/Pty.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

bool Says(Process& program, const std::string& text) {
  return program.Said().find(text) != std::string::npos;
}

TEST(Diagnose, PrintsWhatCameWithoutPositionsAndNames) {
  const Pty wire;
  const std::string profile = "[Nmea]\nPort=1\n[Ports]\n1=" + wire.Device() + "\n[Track]\nBandwidth=33\n";
  Process program(VEERWATCH_PROGRAM, profile);
  ASSERT_TRUE(program.Start({"--diagnose"}, {{"DISPLAY=", "QT_QPA_PLATFORM=nothing"}, {}}));
  const std::string position =
      WithChecksum("$GPRMC,091523,A,5403.127,N,01008.456,E,5.20,157.0,221126,3.0,E") + "\r\n";
  ASSERT_TRUE(Await([&] {
    wire.Write(position);
    return !program.Runs();
  })) << program.Said();
  EXPECT_EQ(program.AwaitEnd(), 0) << program.Said();
  EXPECT_TRUE(Says(program, "Veerwatch report, ")) << program.Said();
  EXPECT_TRUE(Says(program, "\nGPRMC ")) << program.Said();
  EXPECT_TRUE(Says(program, "input: 1, device <name>?baud=4800, open\n")) << program.Said();
  EXPECT_TRUE(Says(program, "Track / Bandwidth = 33\n"));
  EXPECT_FALSE(Says(program, "5403"));
  EXPECT_FALSE(Says(program, wire.Device()));
  EXPECT_FALSE(Says(program, program.Folder().string()));
  EXPECT_EQ(program.Profile(), profile) << "nothing is written";
  EXPECT_EQ(wire.Read(), "") << "nothing is sent";
}

TEST(Diagnose, LeavesTheProfileOfARunningProgramAlone) {
  Process first(VEERWATCH_REMOTE, "[Simulate]\nNmea=True\n");
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(Await([&] { return Says(first, "ready"); }));
  Process second(&first);
  const auto began = std::chrono::steady_clock::now();
  ASSERT_TRUE(second.Start({"--diagnose"}));
  EXPECT_EQ(second.AwaitEnd(), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(9)) << "it did not listen";
  EXPECT_TRUE(Says(second, "Another Veerwatch runs with this profile")) << second.Said();
  EXPECT_TRUE(first.Runs());
  first.Terminate();
  EXPECT_EQ(first.AwaitEnd(), 0);
}

}  // namespace
}  // namespace veerwatch
