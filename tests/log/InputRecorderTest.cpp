#include "log/InputRecorder.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <sstream>

#include "log/LineTime.h"
#include "log/LogReader.h"
#include "tests/support/HandClock.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr std::int64_t kHour = 3600000;  // [ms]
constexpr const char* kWind = "$IIMWV,045.0,R,10.5,N,A*1F";

class Recording : public testing::Test {
 public:
  TemporaryFolder Folder;
  HelmObservers Observers;
  HandClock Clock;
  std::vector<std::string> Ends;
  int From = 0;
  InputRecorder Recorder{Observers, Clock, [this] { return From; },
                         [this](const std::string& why) { Ends.push_back(why); }, 200};

  void Receive(std::string_view line) {
    Observers.Tell([line](HelmObserver& told) { told.OnNmeaLine(line, LineFault::None, true); });
  }
  void Tick() {
    Observers.Tell([](HelmObserver& told) { told.OnTick(); });
  }
  std::string Held(const std::string& name) const { return ReadFile(Folder / name); }
};

TEST_F(Recording, WritesEachLineWithItsTime) {
  Receive("$BEFORE");
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  EXPECT_TRUE(Recorder.Running());
  Receive(kWind);
  Clock.Pass(1123);
  Receive("noise");
  EXPECT_EQ(Recorder.Stop(), "");
  EXPECT_FALSE(Recorder.Running());
  Receive("$AFTER");
  EXPECT_EQ(Held("log.nmea"),
            std::string("2026-03-31T09:00:00.000Z ") + kWind + "\n2026-03-31T09:00:01.123Z noise\n");
  EXPECT_THAT(Ends, IsEmpty());
}

TEST_F(Recording, SaysWhichOfSeveralEndpointsALineCameFrom) {
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  From = 2;
  Receive(kWind);
  From = 1;
  Receive("$ONE");
  EXPECT_EQ(Recorder.Stop(), "");
  EXPECT_EQ(Held("log.nmea"),
            std::string("2 2026-03-31T09:00:00.000Z ") + kWind + "\n1 2026-03-31T09:00:00.000Z $ONE\n");
  std::istringstream written(Held("log.nmea"));
  LogReader reader(written, LineEnds::Any);
  std::string line;
  ASSERT_TRUE(reader.Next(line));
  EXPECT_NE(TakeLineTime(line), std::nullopt);
  EXPECT_EQ(line, kWind);
}

TEST_F(Recording, ReachesTheDiskEachSecondAndWhenTheInputStops) {
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  Receive("$ONE");
  EXPECT_EQ(Held("log.nmea"), "");
  Tick();
  EXPECT_THAT(Held("log.nmea"), HasSubstr("$ONE\n"));
  Clock.Pass(500);
  Receive("$TWO");
  EXPECT_THAT(Held("log.nmea"), Not(HasSubstr("$TWO")));
  Clock.Pass(500);
  Receive("$THREE");
  EXPECT_THAT(Held("log.nmea"), HasSubstr("$THREE\n"));
  Receive("$FOUR");
  Observers.Tell([](HelmObserver& told) { told.OnInputState(InputState::Stopped); });
  EXPECT_THAT(Held("log.nmea"), HasSubstr("$FOUR\n"));
}

TEST_F(Recording, BeginsANewFileAtMidnightOfUtc) {
  Clock.Offset = 7200;
  Clock.Pass(15 * kHour - 1);
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  Receive("$LAST");
  Clock.Pass(1);
  Receive("$FIRST");
  Clock.Pass(48 * kHour);
  Receive("$LATER");
  EXPECT_EQ(Recorder.File(), Folder / "log-2026-04-03.nmea");
  Recorder.Stop();
  EXPECT_THAT(Folder.Names(), UnorderedElementsAre("log.nmea", "log-2026-04-01.nmea", "log-2026-04-03.nmea"));
  EXPECT_EQ(Held("log.nmea"), "2026-03-31T23:59:59.999Z $LAST\n");
  EXPECT_EQ(Held("log-2026-04-01.nmea"), "2026-04-01T00:00:00.000Z $FIRST\n");
  EXPECT_EQ(Held("log-2026-04-03.nmea"), "2026-04-03T00:00:00.000Z $LATER\n");
}

TEST_F(Recording, BeginsANewFileWhenOneHasBecomeLargeAndReplacesNone) {
  WriteFile(Folder / "log-2026-03-31.nmea", "of before");
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  // 25 characters of time, the line and its end: the fourth takes the file beyond 200.
  for (int i = 0; i < 9; ++i) {
    Receive(kWind);
  }
  Recorder.Stop();
  EXPECT_THAT(Folder.Names(), UnorderedElementsAre("log.nmea", "log-2026-03-31.nmea", "log-2026-03-31-2.nmea",
                                                   "log-2026-03-31-3.nmea"));
  EXPECT_EQ(Held("log.nmea").size(), 4 * 52U);
  EXPECT_EQ(Held("log-2026-03-31.nmea"), "of before");
  EXPECT_EQ(Held("log-2026-03-31-2.nmea").size(), 4 * 52U);
  EXPECT_EQ(Held("log-2026-03-31-3.nmea").size(), 52U);
}

TEST_F(Recording, AFullDiskEndsItWithATextAndNothingElse) {
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  Receive("$ONE");
  Tick();
  // What a full disk refuses is refused by a limit here, whose signal nobody handles.
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{30, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
  Receive("$TWO");
  Tick();
  Receive("$THREE");
  Tick();
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(Recorder.Running());
  ASSERT_EQ(Ends.size(), 1U) << "it is told once";
  EXPECT_THAT(Ends[0], HasSubstr((Folder / "log.nmea").string() + ": "));
  EXPECT_THAT(Ends[0], HasSubstr("File too large"));
  EXPECT_THAT(Held("log.nmea"), HasSubstr("$ONE\n"));
  EXPECT_EQ(Recorder.Stop(), "");
  EXPECT_EQ(Recorder.Start(Folder / "next.nmea"), "") << "it can begin again";
}

TEST_F(Recording, SaysWhyNothingCanBeRecorded) {
  EXPECT_THAT(Recorder.Start(Folder / "none" / "log.nmea"), HasSubstr("No such file or directory"));
  EXPECT_THAT(Recorder.Start(Folder.Path()), HasSubstr("it is no file"));
  EXPECT_THAT(Recorder.Start("/dev/full"), HasSubstr("it is no file"));
  EXPECT_FALSE(Recorder.Running());
  EXPECT_THAT(Ends, IsEmpty());
}

TEST_F(Recording, WhatItWritesIsReadWithItsTimes) {
  ASSERT_EQ(Recorder.Start(Folder / "log.nmea"), "");
  std::vector<std::int64_t> times;
  for (const std::int64_t pause : {0, 7, 993, 59000, 3600000}) {
    Clock.Pass(pause);
    times.push_back(Clock.Time.Wall);
    Receive(kWind);
  }
  Recorder.Stop();
  std::vector<std::int64_t> read;
  for (const char* name : {"log.nmea", "log-2026-03-31.nmea"}) {
    std::istringstream stream(Held(name));
    LogReader reader(stream, LineEnds::Any);
    for (std::string line; reader.Next(line);) {
      read.push_back(TakeLineTime(line).value_or(-1));
      EXPECT_EQ(line, kWind);
    }
  }
  EXPECT_EQ(read, times);
}

}  // namespace
}  // namespace veerwatch
