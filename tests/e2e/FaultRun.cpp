#include "tests/e2e/FaultRun.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <sstream>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {

namespace {

// How long each phase lasts [s]: in Setup, in Track with all well, and until everything is well again.
constexpr double kSails = 2.5;
constexpr double kTracks = 13.0;
constexpr double kMended = 14.0;
/// From here on the fault's own rule holds for the pilot [s].
constexpr double kSettled = 3.0;

constexpr double kMagneticVariation = 3.0;  // of the boat [deg]

double Between(double a, double b) { return std::remainder(a - b, 360.0); }

BoatSettings BoatOf(const Fault& fault) {
  BoatSettings settings = GustyBoat();
  settings.WindPeriod = 1.0 / fault.WindRate;
  settings.HeadingPeriod = 0.5;
  settings.TrueWindSensor = fault.TrueWindSensor;
  settings.Variation = kMagneticVariation;
  return settings;
}

/// The compass course on which the boat has the true wind at the fault's angle.
double HeadingOf(const Fault& fault) {
  return std::remainder(BoatSettings{}.WindFrom - fault.Angle - kMagneticVariation, 360.0);
}

}  // namespace

FaultRun::FaultRun(const Fault& fault)
    : m_fault(fault), m_boat(BoatOf(fault), HeadingOf(fault), 1), m_program(VEERWATCH_REMOTE, Profile()) {}

std::string FaultRun::Profile() const {
  const long bearing = std::lround(HeadingOf(m_fault) + 360.0) % 360;
  // Of a key that stands twice the first counts.
  std::map<std::string, std::string> sections = m_fault.Settings;
  sections["Nmea"] += "Port=1\nHeading=0\nBoat Speed=0\n";
  sections["Pilot"] += "Port=2\nBearing=" + std::to_string(bearing) + "\n";
  sections["Ports"] += "1=" + (m_links / "in").string() + "\n2=" + (m_links / "out").string() + "\n";
  sections["Track"] += "Alarm=False\nMethod=Direction\n";
  sections["Watch"] += "Act=True\n";
  std::string text;
  for (const auto& [section, lines] : sections) {
    text.append("[").append(section).append("]\n").append(lines);
  }
  return text;
}

void FaultRun::Link(const char* name, const Pty& pty) const {
  const fs::path next = m_links / (std::string(name) + ".next");
  fs::create_symlink(pty.Device(), next);
  fs::rename(next, m_links / name);
}

void FaultRun::Pull(const char* name, Pty& pty) const {
  fs::remove(m_links / name);
  pty.HangUp();
}

bool FaultRun::Starts() {
  Link("in", *m_in);
  if (m_fault.OutputFromStart) {
    Link("out", *m_out);
  }
  m_begin = std::chrono::steady_clock::now();
  return m_program.Start();
}

void FaultRun::PlugInput() {
  m_in = std::make_unique<Pty>();
  Link("in", *m_in);
}

void FaultRun::PlugOutput() {
  m_out = std::make_unique<Pty>();
  Link("out", *m_out);
}

void FaultRun::FillTheLine() const {
  const int line = ::open(m_out->Device().c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  for (std::string part(64, 'x'); !part.empty();) {
    const ssize_t written = ::write(line, part.data(), part.size());
    part.resize(written > 0 ? part.size() : part.size() / 2);
  }
  ::close(line);
}

void FaultRun::PilotReadsAgain() {
  m_pilotReads = true;
  m_out->Read();
}

void FaultRun::Sleep(double seconds) {
  ::kill(m_program.Id(), SIGSTOP);
  m_wakes = Seconds() + seconds;
}

double FaultRun::Seconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_begin).count();
}

void FaultRun::Next(Phase phase) {
  m_phase = phase;
  m_phaseAt = Seconds();
}

void FaultRun::Turn() {
  Hear();
  if (m_phase == Phase::Starts || m_phase == Phase::Over) {
    return;
  }
  if (m_wakes && Seconds() > *m_wakes) {
    ::kill(m_program.Id(), SIGCONT);
    m_wakes.reset();
  }
  constexpr double kAsk = 0.2;  // [s]
  if (Seconds() > m_asked + kAsk) {
    Tell("text Banner");
    m_asked = Seconds();
  }
  Sail();
  if (!m_pilotReads) {
    // The kernel moves what it holds in steps, so that room shows up again.
    FillTheLine();
  }
  HearPilot();
  Look();
  const double passed = Seconds() - m_phaseAt;
  if (m_phase == Phase::Sails && passed > kSails) {
    Tell(m_fault.Apparent ? "click optControl(1)" : "click optControl(2)");
    Tell("click tbrTrack(7)");
    Next(Phase::Tracks);
  } else if (m_phase == Phase::Tracks && passed > kTracks) {
    m_held = HeldAngle();
    Next(Phase::Broken);
    if (m_fault.Begins) {
      m_fault.Begins(*this);
    }
  } else if (m_phase == Phase::Broken && passed > m_fault.Lasts) {
    if (m_fault.Ends) {
      m_fault.Ends(*this);
    }
    Next(Phase::Mended);
  } else if (m_phase == Phase::Mended && passed > kMended) {
    Tell("click tbrTrack(1)");
    Next(Phase::Over);
  }
}

void FaultRun::Sail() {
  const double now = Seconds();
  std::istringstream sent(m_boat.Step(now - m_sailed));
  m_sailed = now;
  const double broken = m_phase == Phase::Broken ? now - m_phaseAt : -1.0;
  for (std::string line; std::getline(sent, line);) {
    line.resize(line.find_last_not_of('\r') + 1);
    m_waiting += broken >= 0.0 && m_fault.OnWire ? m_fault.OnWire(line, broken) : line + "\r\n";
  }
  m_waiting.erase(0, m_in->Write(m_waiting));
}

void FaultRun::Hear() {
  const std::string& said = m_program.Said();
  constexpr std::string_view kShows = "text Banner=";
  for (std::size_t end = said.find('\n', m_heard); end != std::string::npos; end = said.find('\n', m_heard)) {
    const std::string line = said.substr(m_heard, end - m_heard);
    m_heard = end + 1;
    if (line == "ready") {
      m_sailed = Seconds();
      Next(Phase::Sails);
    } else if (line.starts_with(kShows) && m_shown != line.substr(kShows.size())) {
      m_shown = line.substr(kShows.size());
      if (m_phase == Phase::Tracks) {
        m_saidBefore += m_shown.empty() ? "" : m_shown + "; ";
      } else if (m_phase == Phase::Broken || m_phase == Phase::Mended) {
        m_texts += (m_shown.empty() ? "-" : m_shown) + "; ";
      }
    }
  }
  if (m_phase == Phase::Broken && !m_saidAt && m_shown.find(m_fault.Text) != std::string::npos) {
    m_saidAt = Seconds() - m_phaseAt;
  }
}

void FaultRun::HearPilot() {
  if (!m_pilotReads) {
    return;
  }
  const std::string sent = m_out->Read();
  m_boat.Steer(sent);
  m_line += sent;
  const double broken = m_phase == Phase::Broken ? Seconds() - m_phaseAt : -1.0;
  for (std::size_t end = m_line.find('\n'); end != std::string::npos; end = m_line.find('\n')) {
    const auto bearings = Bearings(m_line.substr(0, end + 1));
    m_line.erase(0, end + 1);
    if (broken < 0.0 || !bearings) {
      continue;
    }
    m_lastSentence = broken;
    if (broken > kSettled) {
      const double bearing = std::stod(bearings->back());
      m_bearing = m_bearing.value_or(bearing);
      m_moved = std::max(m_moved, std::abs(Between(bearing, *m_bearing)));
      ++m_sentences;
    }
  }
}

double FaultRun::HeldAngle() const {
  return m_fault.Apparent ? m_boat.State().ApparentAngle : m_boat.State().TrueAngle;
}

void FaultRun::Look() {
  if (m_phase == Phase::Broken || m_phase == Phase::Mended) {
    m_off = std::max(m_off, std::abs(Between(HeldAngle(), m_held)));
  }
}

}  // namespace veerwatch
