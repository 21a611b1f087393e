#include "tack/TurnPlan.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "control/TrackModes.h"
#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "tack/TurnGuard.h"

namespace veerwatch {

namespace {

constexpr double kHalfCircle = 180.0;
constexpr double kDead = 0.5;         // [deg]
constexpr double kAskedFrom = 149.5;  // [deg], which is said as 150
constexpr double kSwings = 20.0;      // [deg] between the wind now and its mean of ten seconds

constexpr std::size_t At(TrackSide side) { return static_cast<std::size_t>(side); }

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

std::string Hindrance(const HelmNow& now) {
  std::string why = TurnHindrance(now);
  if (why.empty() && (!now.Heading || now.Watch.Of(Watched::Heading).Gone())) {
    why = Tr("No turn: No Heading");
  } else if (why.empty() && !now.TakesBearing) {
    why = Tr("No turn: the pilot holds the wind by itself");
  } else if (why.empty() && !now.CanTrack) {
    why = Filled(Tr("No turn: %1"), {Tr(TrackRefusalText(TrackRefusal::NoGains))});
  } else if (why.empty() && !(now.WindMean[At(TrackSide::Apparent)] && now.WindMean[At(TrackSide::True)])) {
    why = Tr("No turn: No Wind");
  }
  return why;
}

/// What the turn starts from on a side: the held angle, or the mean of the wind.
double Present(const HelmNow& now, TrackSide side) {
  const bool held = now.Mode == TrackMode::Track && now.Side == side;
  return static_cast<double>(held ? now.Desired[At(side)] : now.WindMean[At(side)].value_or(0.0F));
}

/// Whether two angles are too far apart for a turn that is planned from one of them.
bool Apart(const std::optional<float>& a, double b) {
  return a && std::fabs(Fold(static_cast<double>(*a) - b)) > kSwings;
}

/// Track is still on its way to the held angle.
bool OnTheWay(const HelmNow& now) {
  const double held = Present(now, TrackSide::True);
  return now.Mode == TrackMode::Track && Apart(now.WindMean[At(TrackSide::True)], held) &&
         Apart(now.WindAngleTrue, held);
}

/// The true wind that the turn starts from.
double Start(const HelmNow& now) {
  const TrackSide side = TrackSide::True;
  return Fold(OnTheWay(now) ? static_cast<double>(now.WindMean[At(side)].value_or(0.0F))
                            : Present(now, side));
}

/// The mean says nothing of a boat that swings; in Track the held angle stands for it, once she is there.
bool Swings(const TurnAsk& ask, const HelmNow& now) {
  const auto& mean = now.WindMean[At(TrackSide::True)];
  return ask.Kind != ManoeuvreKind::Steer && (now.Mode != TrackMode::Track || OnTheWay(now)) && mean &&
         Apart(now.WindAngleTrue, static_cast<double>(*mean));
}

/// `size` on the other side than `present`.
double Across(double present, double size) { return present < 0.0 ? size : -size; }

void PlanAcross(const TurnAsk& ask, const HelmNow& now, TurnPlan& plan) {
  const double from = plan.Wind < 0.0 ? -1.0 : 1.0;
  const double size =
      ask.Aim ? static_cast<double>(ask.Aim->True) : std::fabs(Fold(Present(now, TrackSide::True)));
  const double around = ask.Kind == ManoeuvreKind::Jibe ? 2.0 * kHalfCircle : 0.0;
  plan.Change = from * (std::fabs(plan.Wind) + size - around);
  const double side = Present(now, now.Side);
  const double held = !ask.Aim                      ? std::fabs(side)
                      : now.Side == TrackSide::True ? static_cast<double>(ask.Aim->True)
                                                    : static_cast<double>(ask.Aim->Apparent);
  plan.Held = FoldRelative(Across(plan.Wind, held));
  const double past = std::isfinite(ask.Overshoot) ? static_cast<double>(ask.Overshoot) : 0.0;
  const double most = std::max(0.0, kHalfCircle - std::fabs(plan.Change));
  plan.Overshoot = std::copysign(1.0, plan.Change) * std::clamp(past, -std::fabs(plan.Change), most);
}

void PlanSteer(const TurnAsk& ask, const HelmNow& now, TurnPlan& plan) {
  plan.Change = Fold(static_cast<double>(ask.NewHeading) - static_cast<double>(now.Heading.value_or(0.0F)));
  plan.Held = FoldRelative(Present(now, now.Side) - plan.Change);
}

std::string RefusalOf(const TurnPlan& plan) {
  const double off = std::fabs(plan.Wind);
  if (plan.Kind == ManoeuvreKind::Tack && off < kDead) {
    return Tr("No turn: the wind is dead ahead");
  }
  if (plan.Kind == ManoeuvreKind::Jibe && off > kHalfCircle - kDead) {
    return Tr("No turn: the wind is dead astern");
  }
  if (!std::isfinite(plan.Change)) {
    return Tr("No turn: that is no heading");
  }
  return std::fabs(plan.Change) >= kHalfCircle ? Tr("No turn: it would be half a circle or more")
                                               : std::string();
}

}  // namespace

TurnPlan PlanTurn(const TurnAsk& ask, const HelmNow& now) {
  TurnPlan plan;
  plan.Kind = ask.Kind;
  plan.Refusal = Hindrance(now);
  if (plan.Refusal.empty() && Swings(ask, now)) {
    plan.Refusal = Tr("No turn: the boat swings, wait until she is steady");
  }
  if (!plan.Refusal.empty()) {
    return plan;
  }
  plan.Wind = Start(now);
  plan.Bearing = static_cast<double>(now.AutoPilot);
  const bool turns = std::isfinite(ask.Rate) && ask.Rate > 0.0F;
  plan.Rate = turns ? static_cast<double>(ask.Rate) : Manoeuvre::kUsualRate;
  plan.Note = ask.Kind != ManoeuvreKind::Steer && ask.Aim && ask.Aim->AtEdge ? Tr(", at the polar's edge")
                                                                             : std::string();
  if (ask.Kind == ManoeuvreKind::Steer) {
    PlanSteer(ask, now, plan);
  } else {
    PlanAcross(ask, now, plan);
  }
  plan.Refusal = RefusalOf(plan);
  plan.Crossing = CrossingOf(plan.Wind, plan.Change);
  return plan;
}

std::string PlanWords(const TurnPlan& plan) {
  const std::string way = TurnWay(plan.Change);
  switch (plan.Crossing) {
    case WindCrossing::Bow:
      return Filled(Tr("Tack, %1 through the wind"), {way}) + plan.Note;
    case WindCrossing::Stern:
      return Filled(Tr("GYBE, %1, by the stern"), {way}) + plan.Note;
    case WindCrossing::None:
      break;
  }
  return Filled(Tr("Steer, %1"), {way}) + plan.Note;
}

bool PlanAsksOnceMore(const TurnPlan& plan, WindCrossing said) {
  return std::fabs(plan.Change + plan.Overshoot) >= kAskedFrom ||
         (plan.Crossing != WindCrossing::None && plan.Crossing != said);
}

std::string PlanQuestion(const TurnPlan& plan, WindCrossing said) {
  if (!PlanAsksOnceMore(plan, said)) {
    return {};
  }
  const std::string kind = plan.Crossing == WindCrossing::Bow     ? Tr("Tack")
                           : plan.Crossing == WindCrossing::Stern ? Tr("GYBE")
                                                                  : Tr("Steer");
  return Filled(plan.Change < 0.0 ? Tr("%1 to port: OK once more?") : Tr("%1 to starboard: OK once more?"),
                {kind});
}

}  // namespace veerwatch
