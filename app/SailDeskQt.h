// "Course > Sail the Course" of the polar window as the user has it: begins and ends the course, shows where
// it stands in both windows, and makes the turn that it prompts for with its button or with Enter.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>

#include "helm/Helm.h"
#include "platform/Dialogs.h"
#include "polar/frmPolar.h"
#include "tack/CourseRun.h"
#include "tack/TackSettings.h"

namespace veerwatch {

class SailDeskQt final : public QObject {
 public:
  /// What the desk works with; everything outlives it.
  struct Parts {
    Settings& Set;
    Helm& Boat;
    TurnRun& Run;
    WindowDialogs& Asks;                             ///< of the main window
    QWidget& Window;                                 ///< the main window
    std::function<void(const std::string&)> Say;     ///< one line for the status bar
    std::function<void(const std::string&)> Notice;  ///< what stands in the banner; "" for nothing
    std::function<void()> Sound;                     ///< something begins or ends by itself
    std::function<frmPolar&()> Polar;
    std::function<TackSettings()> Turns;         ///< what is set for the turns
    std::function<void(const TurnPlan&)> Begin;  ///< begins a turn
  };
  explicit SailDeskQt(Parts parts);

  /// The user has chosen to sail the course, or no more to.
  void Wanted(bool wanted);
  /// The turn that is prompted for begins, perhaps after a question.
  void Turn();

  bool Sails() const { return m_run.Running(); }
  /// The turn that is prompted for.
  std::optional<TurnPlan> Ahead() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::optional<CourseMark> Mark() const;
  /// The key belongs to the course: in one of the two windows, and nobody types.
  bool Listens() const;
  void Show();
  void Ended(CourseEnd why);
  /// Says why there is no course, in the polar window for as long as in the status bar.
  void SayWhy(const std::string& text);

  Parts m_parts;
  CourseRun m_run;
  QTimer m_said{this};  ///< ends what is said of a course that is over
};

}  // namespace veerwatch
