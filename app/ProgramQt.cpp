#include "app/ProgramQt.h"

#include <QApplication>
#include <QFileInfo>
#include <QSessionManager>
#include <QStandardPaths>
#include <filesystem>
#include <random>

#include "app/ProfileLocation.h"
#include "app/frmMain.h"
#include "platform/DialogsQt.h"
#include "platform/SerialPortQt.h"
#include "platform/SignalsQt.h"
#include "platform/TimerQt.h"

namespace veerwatch {

namespace {

std::filesystem::path PathOf(const QString& path) { return std::filesystem::path(path.toStdU16String()); }

/// Where this copy of the program keeps its profile.
std::string ProfileFile() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return ProfileLocation(PathOf(folder), VEERWATCH_INSTALL_FOLDER, PathOf(config),
                         QFileInfo(folder).isWritable())
      .string();
}

/// Where polar files with relative names lie.
PolarFolders PolarFiles() {
  const std::filesystem::path program = PathOf(QCoreApplication::applicationDirPath());
  return {program, program / VEERWATCH_SHARED_FOLDER};
}

}  // namespace

int RunProgram(int argc, char* argv[], const std::function<void(QWidget&)>& started) {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(kApplicationTitle));
  QGuiApplication::setDesktopFileName(QStringLiteral("veerwatch"));

  Profile profile;
  SerialPortQt MSCommNmea(profile);
  SerialPortQt MSCommPilot(profile);
  TimerQt tmrNmea(QStringLiteral("tmrNmea"));
  TimerQt tmrUnload(QStringLiteral("tmrUnload"));
  SeededRandom random(std::random_device{}());
  DialogsQt dialogs;

  frmMain window(
      {MSCommNmea, MSCommPilot, tmrNmea, tmrUnload, random, dialogs, profile, ProfileFile(), PolarFiles()});
  dialogs.Window(&window);
  tmrNmea.Ticks([&window] { window.tmrNmea_Timer(); });
  tmrUnload.Ticks([&window] { window.tmrUnload_Timer(); });
  OnTerminationRequest(&window, [&window] { window.CloseUnasked(); });
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &window,
      [&window](QSessionManager&) { window.CloseUnasked(); }, Qt::DirectConnection);

  window.Form_Load();
  window.show();
  if (started) {
    started(window);
  }
  return QApplication::exec();
}

}  // namespace veerwatch
