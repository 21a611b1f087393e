// What the main window works with: real parts from the program, scripted ones from the tests.
#pragma once

#include <string>

#include "app/ProfileDesk.h"
#include "platform/Clock.h"
#include "platform/CommandRunner.h"
#include "platform/Dialogs.h"
#include "platform/NamedPort.h"
#include "platform/PortFinder.h"
#include "platform/Profile.h"
#include "platform/ProgramReader.h"
#include "platform/Random.h"
#include "platform/SerialPort.h"
#include "platform/Sounder.h"
#include "platform/Timer.h"
#include "polar/PolarModel.h"

namespace veerwatch {

/// Everything outlives the window.
struct MainWindowParts {
  SerialPort& MSCommNmea;   ///< the instrument port
  SerialPort& MSCommPilot;  ///< the pilot port
  Timer& tmrNmea;           ///< ticks into frmMain::tmrNmea_Timer()
  Timer& tmrUnload;         ///< ticks into frmMain::tmrUnload_Timer()
  Timer& TimerTack;         ///< ticks into TimerTack_Timer()
  const Clock& Time;
  RandomSource& Random;
  Dialogs& Asks;
  Profile& Store;
  std::string ProfileFile;             ///< path of the profile
  PolarFolders Polars{};               ///< where polar files lie
  std::string ManualPage{};            ///< the first page of the manual, for a browser
  Sounder* Tone = nullptr;             ///< plays the tones of alarms; without it the beep sounds
  CommandRunner* Buzzer = nullptr;     ///< runs the command of an alarm
  const PortFinder* Finder = nullptr;  ///< knows the serial ports that are plugged in
  Timer* tmrPilot = nullptr;           ///< ticks into frmMain::tmrPilot_Timer()
  ProfileDesk* Profiles = nullptr;     ///< the profiles that can be chosen
  NamedPort::Maker Ports{};            ///< makes what the assistant listens to; without it there is none
  ProgramReader* Reader = nullptr;     ///< reads what announces itself
};

}  // namespace veerwatch
