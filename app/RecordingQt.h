// "File > Record Input...": asks for the file, records into it until the command is chosen again, and shows a
// mark in the status bar meanwhile.
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "app/MainWindowParts.h"
#include "app/frmMainCommands.h"
#include "helm/Helm.h"
#include "log/InputRecorder.h"

namespace veerwatch {

class RecordingQt final {
 public:
  /// Whom to give the text of a recording that has ended by itself; "" when there is nothing more to say.
  using Notice = std::function<void(const std::string& text)>;

  /// `asks` are the dialogs of the main window. All of them outlive this, `bar` owns the mark.
  RecordingQt(const MainWindowParts& parts, const frmMainMenu& menu, Helm& helm, WindowDialogs& asks,
              QStatusBar& bar, Notice notice);

  /// Height of the mark's text [px].
  void TextHeight(int pixels) const;

 private:
  void Triggered();
  void Start(const std::string& file);
  void ShowState() const;

  const MainWindowParts& m_parts;
  QAction* m_command;
  WindowDialogs& m_asks;
  Notice m_notice;
  QLabel* lblRecording;
  InputRecorder m_recorder;
};

}  // namespace veerwatch
