#include "tests/properties/Scene.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

#include "helm/Helm.h"
#include "nmea/Encode.h"
#include "platform/NumberText.h"
#include "tests/properties/Dice.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {

namespace {

using What = SceneStep::What;

Settings RandomSettings(Dice& dice) {
  Settings settings;
  settings.m_iPilotPort = 6;
  settings.m_iNmeaHeading = static_cast<std::int16_t>(dice.Within(0, 1));
  settings.m_iNmeaBoatSpeed = static_cast<std::int16_t>(dice.Within(0, 1));
  settings.m_iNmeaTrueWind = static_cast<std::int16_t>(dice.Within(0, 1));
  settings.m_fNmeaTrueWindAverage = dice.OneOf({0.0F, 1.0F, 2.0F, 3.5F, 20.0F});
  settings.m_fNmeaWindIndicatorAverage = dice.OneOf({0.0F, 2.0F, 60.0F});
  settings.m_fTrackBandwidth = dice.OneOf({8.0F, 20.0F, 60.0F});
  settings.m_fTrackDamping = dice.OneOf({0.5F, 1.0F, 4.0F});
  settings.m_fTrackAlarmLimit = dice.OneOf({2.03F, 5.03F});
  settings.m_bWatchAct = dice.Within(0, 1) == 1;
  settings.m_bWatchHeadingUp = dice.Within(0, 1) == 1;
  return settings;
}

/// Keeps what the labels show.
class Labels final : public HelmObserver {
 public:
  SceneAnswer Shown;

  void OnHeading(float heading) override { Direction(heading); }
  void OnBoatSpeed(float speed) override { Amount(speed); }
  void OnWaypoint(float range, float bearing) override {
    Amount(range);
    Direction(bearing);
  }
  void OnWindApparent(float angle, float speed) override {
    Relative(angle);
    Amount(speed);
  }
  void OnWindTrue(float angle, float speed) override {
    Relative(angle);
    Amount(speed);
  }
  void OnWindIndicator(float direction, float speed) override {
    Direction(direction);
    Amount(speed);
  }
  void OnDesired(float apparent, float trueWind) override {
    Relative(apparent);
    Relative(trueWind);
  }
  void OnDelta(float apparent, float trueWind) override {
    Shown.Delta[0] = apparent;
    Shown.Delta[1] = trueWind;
    Relative(apparent);
    Relative(trueWind);
  }
  void OnAutoPilot(float bearing) override { Direction(bearing); }
  void OnPilotDelta(float error) override { Relative(error); }
  void OnPilotHeading(float bearing) override { Direction(bearing); }
  void OnAlarm(TrackSide /*side*/, float error) override {
    ++Shown.Alarms;
    Relative(error);
  }

 private:
  void Direction(float degrees) { Shown.Directions.push_back(static_cast<double>(degrees)); }
  void Relative(float degrees) { Shown.Relatives.push_back(static_cast<double>(degrees)); }
  void Amount(float amount) { Shown.Amounts.push_back(static_cast<double>(amount)); }
};

/// The values of a step as a view sees them, in degrees.
class Seen {
 public:
  Seen(const SceneStep& step, const SceneView& view) : m_step(step), m_view(view) {}
  double Magnetic() const { return Turned(m_step.Direction) / 10.0; }
  double True() const { return Turned(m_step.Direction + m_step.Variation) / 10.0; }
  double Relative() const { return Mirrored(m_step.Relative) / 10.0; }
  double Variation() const { return Mirrored(m_step.Variation) / 10.0; }
  double Amount() const { return m_step.Amount / 10.0; }

 private:
  int Mirrored(int tenths) const { return m_view.Mirror ? -tenths : tenths; }
  int Turned(int tenths) const { return ((Mirrored(tenths) + m_view.Turn) % 3600 + 3600) % 3600; }

  const SceneStep& m_step;
  const SceneView& m_view;
};

/// A wind angle that walks [0.1 deg].
class Wind {
 public:
  Wind(Dice& dice, SceneWind winds)
      : m_dice(dice),
        m_winds(winds),
        m_side(dice.OneOf({-1, 1})),
        m_angle(winds == SceneWind::AllRound ? dice.Within(-1799, 1800) : dice.Within(300, 1500)) {}

  int Next() {
    m_angle += m_dice.Within(-100, 100);
    if (m_winds == SceneWind::AllRound) {
      m_angle = m_angle > 1800 ? m_angle - 3600 : m_angle <= -1800 ? m_angle + 3600 : m_angle;
    } else {
      m_angle = std::clamp(m_angle, 200, 1600);
    }
    return m_side * m_angle;
  }

 private:
  Dice& m_dice;
  SceneWind m_winds;
  int m_side;
  int m_angle;
};

/// The sentence of a step, or "" for one of the user's.
std::string SentenceOf(const SceneStep& step, const Seen& seen) {
  switch (step.Kind) {
    case What::Hdg:
      return EncodeHdg(seen.Magnetic(), seen.Variation());
    case What::Hvm:
      return EncodeHvm(seen.Variation());
    case What::MwvApparent:
      return EncodeMwv(seen.Relative(), 'R', seen.Amount());
    case What::MwvTrue:
      return EncodeMwv(seen.Relative(), 'T', seen.Amount());
    case What::Rmb:
      return EncodeRmb(EarthPlace{}, seen.Amount(), seen.True(), 5.0);
    case What::Rmc:
      return EncodeRmc(UtcMoment{}, EarthPlace{}, seen.Amount(), seen.True(), seen.Variation());
    case What::Vhw:
      return EncodeVhw(seen.True(), seen.Magnetic(), seen.Amount());
    case What::Vtg:
      return EncodeVtg(seen.True(), seen.Magnetic(), seen.Amount());
    default:
      return "";
  }
}

void Act(const SceneStep& step, const Seen& seen, Helm& helm) {
  switch (step.Kind) {
    case What::Setup:
      helm.Modes().TrackSetSetup();
      break;
    case What::Manual:
      helm.Modes().TrackSetManual();
      break;
    case What::Track:
      helm.Modes().TrackSetTrack();
      break;
    case What::HoldApparent:
      helm.Loop().Side(TrackSide::Apparent);
      break;
    case What::HoldTrue:
      helm.Loop().Side(TrackSide::True);
      break;
    case What::SteerTo:
      helm.TrackSteerTo(static_cast<float>(seen.Relative()));
      break;
    case What::AutoPilot:
      helm.Loop().SetAutoPilot(seen.Magnetic());
      break;
    case What::Desired:
      helm.Loop().SetDesired(helm.Loop().Side(), seen.Relative());
      break;
    default:
      break;
  }
}

/// The heading to steer of an autopilot sentence.
double BearingOf(const std::string& sentence) {
  const std::size_t end = sentence.rfind(",M*");
  const std::size_t start = sentence.rfind(',', end - 1) + 1;
  return static_cast<double>(
      StrictNumber(std::string_view(sentence).substr(start, end - start)).value_or(-1));
}

}  // namespace

Scene RandomScene(std::uint64_t seed, int steps, SceneWind winds) {
  Dice dice(seed);
  Scene scene;
  scene.Set = RandomSettings(dice);
  scene.AutoPilot = dice.Within(0, 3599);
  SceneStep now;
  now.Direction = dice.Within(0, 3599);
  now.Variation = dice.Within(-250, 250);
  Wind wind(dice, winds);
  scene.Steps.push_back({What::Setup});
  for (const What kind : {What::Vhw, What::Rmc}) {
    scene.Steps.push_back(now);
    scene.Steps.back().Kind = kind;
    scene.Steps.back().Amount = 60;
  }
  for (int i = 0; i < steps; ++i) {
    now.Direction += dice.Within(-150, 150);
    now.Relative = wind.Next();
    now.Amount = dice.Within(30, 300);
    // Half of the steps are winds, a few are the user's.
    constexpr What kInstruments[] = {What::Hdg, What::Hvm, What::Rmb, What::Rmc, What::Vhw, What::Vtg};
    constexpr What kUsers[] = {What::Setup,   What::Manual,       What::Track,
                               What::Track,   What::HoldApparent, What::HoldTrue,
                               What::SteerTo, What::AutoPilot,    What::Desired};
    const int choice = dice.Within(0, 9);
    now.Kind = choice < 4   ? What::MwvApparent
               : choice < 5 ? What::MwvTrue
               : choice < 8 ? dice.OneOf(kInstruments)
                            : dice.OneOf(kUsers);
    SceneStep step = now;
    if (step.Kind == What::SteerTo) {
      step.Relative = dice.Within(-150, 150);
    }
    if (step.Kind != What::MwvApparent && step.Kind != What::MwvTrue) {
      step.Amount = dice.Within(10, 90);
    }
    scene.Steps.push_back(step);
  }
  return scene;
}

std::vector<SceneAnswer> Play(const Scene& scene, const SceneView& view) {
  Settings settings = scene.Set;
  SceneStep start;
  start.Direction = scene.AutoPilot;
  settings.m_fAutoPilot = static_cast<float>(Seen(start, view).Magnetic());
  settings.DesiredAngle = {0.0F, 0.0F, 0.0F};
  ScriptedPort nmeaPort;
  ScriptedPort pilotPort;
  HandTimer timer;
  HandClock clock;
  FixedRandom random;
  Labels labels;
  Helm helm(settings, nmeaPort, pilotPort, timer, clock, random);
  const auto shows = helm.Observers().Join(labels);

  std::vector<SceneAnswer> answers;
  for (const SceneStep& step : scene.Steps) {
    const float before = settings.m_fAutoPilot;
    const Seen seen(step, view);
    const std::string sentence = SentenceOf(step, seen);
    if (sentence.empty()) {
      Act(step, seen, helm);
    } else {
      nmeaPort.Receive(sentence + "\r\n");
    }
    SceneAnswer answer = labels.Shown;
    labels.Shown.Relatives.clear();
    labels.Shown.Amounts.clear();
    labels.Shown.Directions.clear();
    answer.Record = helm.Data();
    answer.AutoPilot = settings.m_fAutoPilot;
    answer.Turned = std::remainder(static_cast<double>(settings.m_fAutoPilot - before), 360.0);
    answer.Desired[0] = settings.DesiredAngle[1];
    answer.Desired[1] = settings.DesiredAngle[2];
    answer.Integral = helm.Loop().TrackIntegral();
    for (const std::string& sent : pilotPort.Written) {
      answer.ApbBearings.push_back(BearingOf(sent));
    }
    pilotPort.Written.clear();
    answers.push_back(answer);
  }
  return answers;
}

}  // namespace veerwatch
