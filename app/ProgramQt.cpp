#include "app/ProgramQt.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "app/ProfileLocation.h"
#include "app/SessionQt.h"
#include "app/frmMain.h"
#include "platform/AtomicFile.h"
#include "platform/DialogsQt.h"
#include "platform/SerialPortQt.h"
#include "platform/SignalsQt.h"
#include "platform/TimerQt.h"

namespace veerwatch {

namespace {

std::filesystem::path PathOf(const QString& path) { return std::filesystem::path(path.toStdU16String()); }

/// Where polar files with relative names lie.
PolarFolders PolarFiles() {
  const std::filesystem::path program = PathOf(QCoreApplication::applicationDirPath());
  return {program, program / VEERWATCH_SHARED_FOLDER};
}

/// Where this copy of the program keeps its profile. It is an installed one when its data lie where they are
/// installed to, seen from the program.
std::string ProfileFile() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  std::error_code error;
  const bool installed = std::filesystem::is_directory(PathOf(folder) / VEERWATCH_SHARED_FOLDER, error);
  return ProfileLocation(PathOf(folder), installed, PathOf(config), QFileInfo(folder).isWritable()).string();
}

/// Reads the command line; answers --help, --version and mistakes itself and ends the program then. Gives the
/// path of the profile.
std::string ReadCommandLine(const QApplication& application) {
  QCommandLineParser line;
  line.setApplicationDescription(QStringLiteral("Steers a boat's autopilot by the wind."));
  line.addHelpOption();
  line.addVersionOption();
  const QCommandLineOption profile(QStringLiteral("profile"),
                                   QStringLiteral("Keep the settings in <file> instead of the usual place."),
                                   QStringLiteral("file"));
  line.addOption(profile);
  line.process(application);
  if (!line.positionalArguments().isEmpty()) {
    std::fprintf(stderr, "veerwatch: unexpected argument %s; --help shows the known ones\n",
                 qPrintable(line.positionalArguments().constFirst()));
    std::exit(2);
  }
  return line.isSet(profile) ? QFileInfo(line.value(profile)).absoluteFilePath().toStdString()
                             : ProfileFile();
}

/// Takes the profile for this process, so that no second program writes it or fights for its ports. False,
/// with the user told, when another one runs with it. Where no lock can be set nobody is kept out.
bool TakeProfile(QLockFile& lock, const std::string& profileFile, Dialogs& dialogs) {
  // One that was left behind by a killed program is told by its process.
  lock.setStaleLockTime(0);
  if (lock.tryLock() || lock.error() != QLockFile::LockFailedError) {
    return true;
  }
  const std::string text =
      "Veerwatch is running already with these settings:\r" + profileFile +
      "\rClose it first, or start this one with settings of its own: veerwatch --profile FILE";
  std::fprintf(stderr, "veerwatch: %s: another Veerwatch is running with this profile\n",
               profileFile.c_str());
  dialogs.Inform(kApplicationTitle, text);
  return false;
}

}  // namespace

int RunProgram(int argc, char* argv[], const std::function<void(QWidget&)>& started) {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(kApplicationTitle));
  QApplication::setApplicationVersion(QStringLiteral(VEERWATCH_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("veerwatch"));

  const std::string profileFile = ReadCommandLine(application);

  DialogsQt dialogs;
  QDir().mkpath(QFileInfo(QString::fromStdString(profileFile)).path());
  std::error_code nowhere;
  QLockFile lock(QString::fromStdString(LinkTarget(profileFile, nowhere).string() + ".lock"));
  if (!TakeProfile(lock, profileFile, dialogs)) {
    // Until the message is closed.
    QApplication::exec();
    constexpr int kRunsAlready = 3;
    return kRunsAlready;
  }

  Profile profile;
  SerialPortQt MSCommNmea(profile);
  SerialPortQt MSCommPilot(profile);
  TimerQt tmrNmea(QStringLiteral("tmrNmea"));
  TimerQt tmrUnload(QStringLiteral("tmrUnload"));
  TimerQt TimerTack(QStringLiteral("TimerTack"));
  SeededRandom random(std::random_device{}());

  frmMain window({MSCommNmea, MSCommPilot, tmrNmea, tmrUnload, TimerTack, random, dialogs, profile,
                  profileFile, PolarFiles()});
  dialogs.Window(&window);
  tmrNmea.Ticks([&window] { window.tmrNmea_Timer(); });
  tmrUnload.Ticks([&window] { window.tmrUnload_Timer(); });
  TimerTack.Ticks([&window] { window.TimerTack_Timer(); });
  OnTerminationRequest(&window, [&window] { window.CloseUnasked(); });
  const SessionQt session(application, window);

  window.Form_Load();
  window.show();
  // In front of the windows that the profile has opened again.
  window.raise();
  window.activateWindow();
  if (started) {
    started(window);
  }
  return QApplication::exec();
}

}  // namespace veerwatch
