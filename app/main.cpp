// Veerwatch: wires the main window to the real ports, timers, dialogs and profile, and runs it.

#include <QApplication>
#include <QFileInfo>
#include <QSessionManager>
#include <QStandardPaths>
#include <filesystem>
#include <random>

#include "app/ProfileLocation.h"
#include "app/frmMain.h"
#include "platform/DialogsQt.h"
#include "platform/SignalsQt.h"
#include "platform/TimerQt.h"

namespace {

class NoPort final : public veerwatch::SerialPort {
 public:
  void Connect(Events*) override {}
  void CommPort(int number) override { m_number = number; }
  int CommPort() const override { return m_number; }
  bool PortOpen() const override { return false; }
  bool PortOpen(bool open) override { return !open; }
  void Input(std::string& text) override { text.clear(); }
  void Output(std::string_view) override {}
  void PollLineErrors() override {}

 private:
  int m_number = 0;
};

std::filesystem::path PathOf(const QString& path) { return std::filesystem::path(path.toStdU16String()); }

/// Where this copy of the program keeps its profile.
std::string ProfileFile() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return veerwatch::ProfileLocation(PathOf(folder), VEERWATCH_INSTALL_FOLDER, PathOf(config),
                                    QFileInfo(folder).isWritable())
      .string();
}

}  // namespace

int main(int argc, char* argv[]) {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(veerwatch::kApplicationTitle));
  QGuiApplication::setDesktopFileName(QStringLiteral("veerwatch"));

  veerwatch::Profile profile;
  NoPort MSCommNmea;
  NoPort MSCommPilot;
  veerwatch::TimerQt tmrNmea(QStringLiteral("tmrNmea"));
  veerwatch::TimerQt tmrUnload(QStringLiteral("tmrUnload"));
  veerwatch::SeededRandom random(std::random_device{}());
  veerwatch::DialogsQt dialogs;

  veerwatch::frmMain window(
      {MSCommNmea, MSCommPilot, tmrNmea, tmrUnload, random, dialogs, profile, ProfileFile()});
  dialogs.Window(&window);
  tmrNmea.Ticks([&window] { window.tmrNmea_Timer(); });
  tmrUnload.Ticks([&window] { window.tmrUnload_Timer(); });
  veerwatch::OnTerminationRequest(&window, [&window] { window.CloseUnasked(); });
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &window,
      [&window](QSessionManager&) { window.CloseUnasked(); }, Qt::DirectConnection);

  window.Form_Load();
  window.show();
  return QApplication::exec();
}
