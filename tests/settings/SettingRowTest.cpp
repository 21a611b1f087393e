#include "settings/SettingRow.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

using namespace setting;

enum class Method : std::int32_t { Sentence = 0, Clock = 1, Direction = 2 };

/// One member of every kind.
struct Sample {
  bool Act = true;
  std::int16_t Cadence = 2;
  Method Kind = Method::Clock;
  Method Number = Method::Sentence;
  float Limit = 5.0F;
  float Bearing = 40.0F;
  float Loose = 1.0F;
  std::uint32_t Colour = 255;
  std::array<float, 3> Angle{0.0F, 45.0F, 92.0F};
  std::string File = "a.pol";
  float Written = 60.0F;
  bool Hidden = false;

  bool operator==(const Sample&) const = default;
};

const SettingTable<Sample>& SampleTable() {
  static const SettingTable<Sample> kTable{
      {"Watch", "Act", Truth(&Sample::Act), "", "acts", ""},
      {"Pilot", "Cadence", Whole(&Sample::Cadence, 0, 5), "1/s", "how often", ""},
      {"Track", "Method", Named(&Sample::Kind, {"Sentence", "Clock", "Direction"}), "", "the law", ""},
      {"Track", "Number", Choice(&Sample::Number, Method::Direction), "", "the same as a number", ""},
      {"Track", "Limit", Number(&Sample::Limit, kAboveZero), "deg", "a limit", ""},
      {"Track", "Bearing", Number(&Sample::Bearing, kBearing), "deg", "a bearing", ""},
      {"Track", "Loose", Number(&Sample::Loose, kFromZero, kAnyNumber), "", "may be less in a profile", ""},
      {"View", "Colour", Number(&Sample::Colour, kColour24), "", "a colour", ""},
      {"Track", "Desired 2", Number(Element{&Sample::Angle, 2}, kRelative), "deg", "an element", ""},
      {"Data", "File", Text(&Sample::File, "a path"), "", "a file", ""},
      {"Data", "Written", Number(&Sample::Written, kAnyNumber), "", "", "", SettingUse::WrittenOnly},
      {"Data", "Hidden", Truth(&Sample::Hidden), "", "", "", SettingUse::ReadOnly},
  };
  return kTable;
}

Sample ReadFrom(const char* section, const char* key, const char* text) {
  Profile profile;
  profile.ProfileSet(section, key, text);
  Sample sample;
  SettingsRead(SampleTable(), profile, sample);
  return sample;
}

TEST(SettingTable, IsWrittenInItsOrderWithoutWhatIsOnlyRead) {
  Profile profile;
  SettingsWrite(SampleTable(), profile, Sample());
  EXPECT_EQ(profile.Content(),
            "[Watch]\nAct=True\n\n[Pilot]\nCadence=2\n\n"
            "[Track]\nMethod=Clock\nNumber=0\nLimit=5\nBearing=40\nLoose=1\nDesired 2=92\n\n"
            "[View]\nColour=255\n\n[Data]\nFile=a.pol\nWritten=60\n");
}

TEST(SettingTable, ComesBackAsItWasWrittenButForWhatIsNeverRead) {
  Sample sample;
  sample.Act = false;
  sample.Cadence = 5;
  sample.Kind = Method::Direction;
  sample.Number = Method::Clock;
  sample.Limit = 0.5F;
  sample.Bearing = 359.5F;
  sample.Loose = 0.0F;
  sample.Colour = 0xFFFFFFU;
  sample.Angle[2] = -101.5F;
  sample.File = "/boats/b.pol";
  Profile profile;
  SettingsWrite(SampleTable(), profile, sample);
  Sample again;
  SettingsRead(SampleTable(), profile, again);
  EXPECT_EQ(again, sample);
  sample.Written = 1.0F;
  SettingsWrite(SampleTable(), profile, sample);
  SettingsRead(SampleTable(), profile, again);
  EXPECT_EQ(again.Written, 60.0F);
}

TEST(SettingTable, LeavesWhatIsMissing) {
  Sample sample;
  sample.Cadence = 4;
  sample.Kind = Method::Direction;
  const Sample before = sample;
  SettingsRead(SampleTable(), Profile(), sample);
  EXPECT_EQ(sample, before);
}

TEST(SettingTable, LeavesWhatAValueCannotBe) {
  struct Damage {
    const char* Section;
    const char* Key;
    std::vector<const char*> Texts;
  };
  for (const Damage& damage :
       {Damage{"Watch", "Act", {"perhaps", "nan", ""}},
        Damage{"Pilot", "Cadence", {"6", "-1", "x", "32768", ""}},
        Damage{"Track", "Method", {"Clocks", "Cloc", "0", "", "nan"}},
        Damage{"Track", "Number", {"3", "-1", "Clock"}},
        Damage{"Track", "Limit", {"0", "-1", "nan", "1e39", "5x"}},
        Damage{"View", "Colour", {"-1", "16777216", "red"}}, Damage{"Track", "Desired 2", {"nan", "inf", ""}},
        Damage{"Data", "File", {""}}}) {
    for (const char* text : damage.Texts) {
      EXPECT_EQ(ReadFrom(damage.Section, damage.Key, text), Sample()) << damage.Key << "=" << text;
    }
  }
}

TEST(SettingTable, FindsANameWhateverTheCaseOfItsLetters) {
  for (const char* text : {"Direction", "direction", "DIRECTION"}) {
    EXPECT_EQ(ReadFrom("Track", "Method", text).Kind, Method::Direction) << text;
  }
  EXPECT_EQ(ReadFrom("Track", "Method", "Sentence").Kind, Method::Sentence);
}

TEST(SettingTable, FoldsAnAngle) {
  EXPECT_EQ(ReadFrom("Track", "Bearing", "-90").Bearing, 270.0F);
  EXPECT_EQ(ReadFrom("Track", "Desired 2", "190").Angle[2], -170.0F);
}

TEST(SettingTable, ReadsANumberByTheRuleOfTheProfile) {
  EXPECT_EQ(ReadFrom("Track", "Loose", "-3").Loose, -3.0F);
  EXPECT_EQ(RuleOf(SampleTable(), &Sample::Loose), kFromZero);
  EXPECT_EQ(RuleOf(SampleTable(), &Sample::Limit), kAboveZero);
}

TEST(SettingTable, ReadsWhatIsNeverWritten) { EXPECT_TRUE(ReadFrom("Data", "Hidden", "True").Hidden); }

TEST(SettingTable, SaysWhatAValueCanBe) {
  std::vector<std::string> ranges;
  for (const auto& row : SampleTable()) {
    ranges.push_back(row.Value.Range);
  }
  EXPECT_EQ(ranges, (std::vector<std::string>{"True, False", "0 to 5", "Sentence, Clock, Direction", "0 to 2",
                                              "above 0", "any, folded into [0, 360)", "0 and above",
                                              "0 to 16777215", "any, folded into (-180, 180]", "a path",
                                              "any number", "True, False"}));
}

}  // namespace
}  // namespace veerwatch
