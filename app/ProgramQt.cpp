#include "app/ProgramQt.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <cstdio>
#include <filesystem>
#include <random>

#include "app/CommandLine.h"
#include "app/DiagnosisQt.h"
#include "app/PortMakerQt.h"
#include "app/ProfileDesk.h"
#include "app/ProfileLocation.h"
#include "app/SessionQt.h"
#include "app/ThemeQt.h"
#include "app/frmMain.h"
#include "platform/ApplicationQt.h"
#include "platform/CommandRunnerQt.h"
#include "platform/DialogsQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/PortFinderQt.h"
#include "platform/PortNames.h"
#include "platform/Profile.h"
#include "platform/ProfileLock.h"
#include "platform/ProgramReaderQt.h"
#include "platform/SignalsQt.h"
#include "platform/SounderQt.h"
#include "platform/SystemClock.h"
#include "platform/TimerQt.h"
#include "platform/VisibleText.h"
#include "settings/Settings.h"
#include "settings/SettingsTable.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace veerwatch {

namespace {

constexpr int kSaveInterval = 1000;  // [ms]

std::filesystem::path PathOf(const QString& path) { return std::filesystem::path(path.toStdU16String()); }

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

// A QString holds no path that is no UTF-8, so these come from the system in their own bytes.

std::filesystem::path ProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? PathOf(QCoreApplication::applicationDirPath()) : program.parent_path();
}

std::filesystem::path ConfigFolder() {
  const std::filesystem::path set = qgetenv("XDG_CONFIG_HOME").toStdString();
  return set.is_absolute() ? set : std::filesystem::path(qgetenv("HOME").toStdString()) / ".config";
}

bool IsWritable(const std::filesystem::path& folder) { return ::access(folder.c_str(), W_OK) == 0; }

#else

std::filesystem::path ProgramFolder() { return PathOf(QCoreApplication::applicationDirPath()); }

std::filesystem::path ConfigFolder() {
  return PathOf(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

bool IsWritable(const std::filesystem::path& folder) { return QFileInfo(folder).isWritable(); }

#endif

/// Where polar files with relative names lie.
PolarFolders PolarFiles() { return {ProgramFolder(), ProgramFolder() / VEERWATCH_SHARED_FOLDER}; }

/// The first page of the manual: with the documents of an installed program, else beside the built one.
std::string ManualPage() {
  const std::filesystem::path program = ProgramFolder();
  const std::filesystem::path page = std::filesystem::path("html") / "manual" / "README.html";
  std::error_code error;
  const std::filesystem::path installed = program / VEERWATCH_DOCUMENTS_FOLDER / page;
  return (std::filesystem::exists(installed, error) ? installed : program / page).lexically_normal().string();
}

/// Where this copy of the program keeps its profile. It is an installed one when its data lie where they are
/// installed to, seen from the program.
std::filesystem::path ProfileFile() {
  const std::filesystem::path folder = ProgramFolder();
  std::error_code error;
  const bool installed = std::filesystem::is_directory(folder / VEERWATCH_SHARED_FOLDER, error);
  return ProfileLocation(folder, installed, ConfigFolder(), IsWritable(folder));
}

/// Answers --help and --version; false when nobody asked.
bool Answered(const CommandLine& line) {
  if (line.Help) {
    std::fputs(CommandLineHelp().c_str(), stdout);
  } else if (line.Version) {
    std::fprintf(stdout, "%s %s\n", kApplicationTitle, VEERWATCH_VERSION);
  }
  return line.Help || line.Version;
}

/// True when this process may use the profile; false, with the user told, when another one runs with it.
bool Taken(const ProfileLock& lock, const std::filesystem::path& profile, Dialogs& dialogs) {
  const std::string name = VisibleText(profile.string());
  if (!lock.HeldByAnother()) {
    if (!lock.Trouble().empty()) {
      std::fprintf(stderr, "veerwatch: %s: no lock can be set there\n", lock.Trouble().c_str());
    }
    return true;
  }
  const std::string file = VisibleText(lock.HeldFile().string());
  std::fprintf(stderr,
               "veerwatch: %s: another Veerwatch is running with this profile (it holds the lock on %s)\n",
               name.c_str(), file.c_str());
  dialogs.Inform(
      kApplicationTitle,
      Filled(Tr("Veerwatch is running already with these settings:\r%1"
                "\rClose it first, or start this one with settings of its own: veerwatch --profile FILE"
                "\rThe other one holds the lock on %2"),
             {name, file}));
  return false;
}

/// The language that the profile chooses. The windows are made before they read it.
const char* LanguageOf(const std::filesystem::path& profileFile) {
  Profile profile;
  profile.Load(profileFile);
  Settings settings;
  SettingsRead(SettingsTable(), profile, settings);
  return WindowLanguageName(settings.m_eLanguage);
}

/// Tells the user, who has closed the window, that the settings are lost; without a user nothing waits. The
/// exit status of the program.
int TellUnsaved(const frmMain& window, DialogsQt& dialogs) {
  constexpr int kNotSaved = 1;
  if (!window.ClosedUnasked()) {
    // The window is hidden, and would hide the message with it.
    dialogs.Window(nullptr);
    dialogs.Inform(kApplicationTitle,
                   Filled(Tr("The settings could not be saved:\r%1"), {window.SaveFailure()}));
    // Until the message is closed.
    QApplication::exec();
  }
  return kNotSaved;
}

/// What the program is, from one profile to the next.
struct Program {
  ApplicationQt& Application;
  ProfileDesk& Profiles;
  const std::function<void(QWidget&)>& Started;
  frmMain* Window = nullptr;  ///< while there is one
  bool Changed = false;       ///< the profile was chosen by the user
};

/// Somebody wants the program to end.
void End(const Program& program) {
  if (program.Window == nullptr) {
    return;
  }
  program.Window->CloseUnasked();
  // Only the message about the settings may be left.
  if (program.Window->isHidden()) {
    QApplication::quit();
  }
}

/// The program with its ports, timers and windows on the profile in use, until the last window is closed; its
/// exit status.
int Sail(Program& program) {
  if (program.Changed) {
    InstallLanguage(LanguageOf(program.Profiles.File()));
    WearNightColours(false);
  }
  DialogsQt dialogs;
  Profile profile;
  const SystemClock clock;
  NamedPort MSCommNmea(profile, PortMaker(clock), DeviceIsThere);
  NamedPort MSCommPilot(profile, PortMaker(clock), DeviceIsThere);
  TimerQt tmrNmea(QStringLiteral("tmrNmea"));
  TimerQt tmrUnload(QStringLiteral("tmrUnload"));
  TimerQt TimerTack(QStringLiteral("TimerTack"));
  TimerQt tmrPilot(QStringLiteral("tmrPilot"), Qt::PreciseTimer);
  SeededRandom random(std::random_device{}());
  SounderQt tone;
  CommandRunnerQt buzzer;
  ProgramReaderQt reader;
  const PortFinderQt finder;

  frmMain window({MSCommNmea, MSCommPilot, tmrNmea, tmrUnload, TimerTack, clock, random, dialogs, profile,
                  program.Profiles.File().string(), PolarFiles(), ManualPage(), &tone, &buzzer, &finder,
                  &tmrPilot, &program.Profiles, PortMaker(clock), &reader});
  dialogs.Window(&window);
  tmrNmea.Ticks([&window] { window.tmrNmea_Timer(); });
  tmrUnload.Ticks([&window] { window.tmrUnload_Timer(); });
  TimerTack.Ticks([&window] { window.TimerTack_Timer(); });
  tmrPilot.Ticks([&window] { window.tmrPilot_Timer(); });
  TimerQt tmrSave(QStringLiteral("tmrSave"));
  tmrSave.Interval(kSaveInterval);
  tmrSave.Ticks([&window] { window.tmrSave_Timer(); });
  const SessionQt session(program.Application, window, program.Profiles);

  program.Window = &window;
  window.Form_Load(program.Changed);
  window.ShowInFront();
  if (program.Started) {
    program.Started(window);
  }
  tmrSave.Enabled(true);
  const int status = QApplication::exec();
  const int ended = window.SaveFailure().empty() ? status : TellUnsaved(window, dialogs);
  program.Window = nullptr;
  return ended;
}

/// Prints the report of the profile; the exit status of the program.
int Diagnose(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const CommandLine line = ReadCommandLine(argc, argv);
  std::error_code error;
  const DiagnosisQt diagnosis(line.Profile ? std::filesystem::absolute(*line.Profile, error)
                                           : ProfileInUse(ProfileFile()));
  QCoreApplication::exec();
  const std::string text = diagnosis.Text();
  return std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0 ? 0 : 1;
}

/// Sails with the profile in use, and on with each that the user chooses.
int SailOn(Program program) {
  OnTerminationRequest(&program.Application, [&program] { End(program); });
  int status = Sail(program);
  while (program.Profiles.Change()) {
    // The end of the last window is not that of the program.
    QCoreApplication::removePostedEvents(&program.Application, QEvent::Quit);
    program.Changed = true;
    status = Sail(program);
  }
  return status;
}

}  // namespace

int RunProgram(int argc, char* argv[], const std::function<void(QWidget&)>& started) {
  if (Answered(ReadCommandLine(argc, argv))) {
    return 0;
  }
  if (const CommandLine asked = ReadCommandLine(argc, argv); asked.Diagnose && asked.Trouble.empty()) {
    return Diagnose(argc, argv);
  }
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  // It takes its own options away.
  ApplicationQt application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(kApplicationTitle));
  QApplication::setApplicationVersion(QStringLiteral(VEERWATCH_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("veerwatch"));

  const CommandLine line = ReadCommandLine(argc, argv);
  if (!line.Trouble.empty()) {
    std::fprintf(stderr, "veerwatch: %s\n", line.Trouble.c_str());
    return 2;
  }
  std::error_code error;
  const std::filesystem::path profileFile =
      line.Profile ? std::filesystem::absolute(*line.Profile, error) : ProfileFile();

  std::filesystem::create_directories(profileFile.parent_path(), error);
  ProfileDesk profiles(profileFile);
  if (!line.Profile) {
    profiles.Resume();
  }
  InstallLanguage(LanguageOf(profiles.File()));
  if (DialogsQt dialogs; !Taken(profiles.Lock(), profiles.File(), dialogs)) {
    // Until the message is closed.
    QApplication::exec();
    constexpr int kRunsAlready = 3;
    return kRunsAlready;
  }

  return SailOn({application, profiles, started});
}

}  // namespace veerwatch
