#include "app/RecordingQt.h"

#include <utility>

#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr const char* kProposed = "input.nmea";
constexpr int kMargin = 10;  // [px]

std::string EndedText(const std::string& why) { return Filled(Tr("The recording has ended: %1"), {why}); }

}  // namespace

RecordingQt::RecordingQt(const MainWindowParts& parts, const frmMainMenu& menu, Helm& helm,
                         WindowDialogs& asks, QStatusBar& bar, Notice notice)
    : m_parts(parts),
      m_command(menu.mnuFileRecord),
      m_asks(asks),
      m_notice(std::move(notice)),
      lblRecording(new QLabel(TrQ("\u25CF Recording"), &bar)),
      m_recorder(
          helm.Observers(), parts.Time, [&helm] { return helm.Receiver().LineFrom(); },
          [this](const std::string& why) {
            ShowState();
            m_notice(EndedText(why));
          }) {
  lblRecording->setObjectName(QStringLiteral("lblRecording"));
  lblRecording->setContentsMargins(kMargin, 0, kMargin, 0);
  bar.addPermanentWidget(lblRecording);
  QObject::connect(m_command, &QAction::triggered, lblRecording, [this] { Triggered(); });
  ShowState();
}

void RecordingQt::TextHeight(int pixels) const {
  QFont letters = lblRecording->font();
  letters.setPixelSize(pixels);
  lblRecording->setFont(letters);
}

void RecordingQt::Triggered() {
  if (m_recorder.Running()) {
    const std::string why = m_recorder.Stop();
    ShowState();
    m_notice(why.empty() ? "" : EndedText(why));
    return;
  }
  // The click has turned the tick of the command over.
  ShowState();
  const std::string proposed = InputRecorder::NameOn(kProposed, m_parts.Time.Now().Wall, 1).string();
  m_asks.ExportFile(Tr("Record Input"), Tr("Recorded input (*.nmea)"), proposed,
                    [this](const std::optional<std::string>& file) {
                      if (file) {
                        Start(*file);
                      }
                    });
}

void RecordingQt::Start(const std::string& file) {
  const std::string why =
      m_recorder.Start(std::filesystem::path(QString::fromStdString(file).toStdU16String()));
  ShowState();
  m_notice("");
  if (!why.empty()) {
    m_asks.Inform(kApplicationTitle, Filled(Tr("Nothing is recorded:\r%1"), {why}));
  }
}

void RecordingQt::ShowState() const {
  m_command->setChecked(m_recorder.Running());
  lblRecording->setVisible(m_recorder.Running());
  lblRecording->setToolTip(QString::fromStdString(
      Filled(Tr("Every received line is written to %1"), {VisibleText(m_recorder.File().string())})));
}

}  // namespace veerwatch
