// Options > Recommended... in the real main window.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>

#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;
using testing::Not;

/// A tick of the options dialog, which is a window of its own.
const QCheckBox* OfTheOptions(const char* name) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (const auto* tick = window->findChild<QCheckBox*>(QLatin1String(name))) {
      return tick;
    }
  }
  return nullptr;
}

class RecommendedDialog : public MainWindowTester {
 public:
  QDialog& Open() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Find<QAction>("mnuOptionsRecommended").trigger();
    return Find<QDialog>("dlgRecommended");
  }
  void Click(const char* button) const { Find<QAbstractButton>(button).click(); }
  /// The text of the line that begins with `what`.
  std::string Line(const char* what) {
    for (const QCheckBox* tick : Find<QDialog>("dlgRecommended").findChildren<QCheckBox*>()) {
      if (tick->text().startsWith(QLatin1String(what))) {
        return tick->text().toStdString() + (tick->isChecked() ? " [x]" : " [ ]") +
               (tick->isEnabled() ? "" : " grey");
      }
    }
    return "no such line";
  }
};

TEST_F(RecommendedDialog, ShowsWhatIsSetNowBesideWhatIsBetter) {
  Start("[Watch]\nAct=True\n");
  Open();
  EXPECT_EQ(Line("Tracking method"), "Tracking method: Direction  (now Sentence) [ ]");
  EXPECT_EQ(Line("The watch acts"), "The watch acts: on  (set already) [x] grey");
  EXPECT_EQ(Line("Sentences to the pilot"), "Sentences to the pilot: 1 a second  (now with each wind) [ ]");
}

TEST_F(RecommendedDialog, SetsWhatIsTickedAndStoresIt) {
  Start();
  Open();
  Click("chkRecommended1");
  Click("cmdRecommendedOk");
  EXPECT_EQ(Window->m_eTrackMethod, TrackMethod::Direction);
  EXPECT_FALSE(Window->m_bWatchAct);
  Window->close();
  EXPECT_THAT(ReadProfile(), HasSubstr("Method=Direction"));
  EXPECT_THAT(ReadProfile(), HasSubstr("Bandwidth=60"));
  EXPECT_THAT(ReadProfile(), HasSubstr("Act=False"));
}

TEST_F(RecommendedDialog, TickAllSetsEveryLineThePolarsToo) {
  Start();
  Open();
  Click("cmdRecommendedAll");
  Click("cmdRecommendedOk");
  Open();
  for (const QCheckBox* tick : Find<QDialog>("dlgRecommended").findChildren<QCheckBox*>()) {
    EXPECT_THAT(tick->text().toStdString(), HasSubstr("(set already)"));
  }
  Click("cmdRecommendedCancel");
  Window->close();
  EXPECT_THAT(ReadProfile(), HasSubstr("Smooth Between Winds=True"));
  EXPECT_THAT(ReadProfile(), HasSubstr("Blank Lost=True"));
}

TEST_F(RecommendedDialog, CancelSetsNothing) {
  Start();
  Open();
  Click("cmdRecommendedAll");
  Click("cmdRecommendedCancel");
  EXPECT_EQ(Window->m_eTrackMethod, TrackMethod::Sentence);
  Window->close();
  EXPECT_THAT(ReadProfile(), Not(HasSubstr("Smooth Between Winds=True")));
}

TEST_F(RecommendedDialog, TheOpenedOptionsShowWhatWasSet) {
  Start();
  Find<QAction>("mnuOptionsWatch").trigger();
  const auto* careful = OfTheOptions("chkCarefulEntry");
  ASSERT_NE(careful, nullptr);
  EXPECT_FALSE(careful->isChecked());
  Open();
  Click("cmdRecommendedAll");
  Click("cmdRecommendedOk");
  EXPECT_TRUE(careful->isChecked());
}

}  // namespace
}  // namespace veerwatch
