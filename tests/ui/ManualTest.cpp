// Help > Manual.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <fstream>
#include <memory>
#include <string>

#include "app/frmManual.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Manual : public MainWindowTester {
 protected:
  /// The window, told that the manual begins at `page`.
  void Open(const std::string& page) {
    MainWindowParts parts{NmeaPort, PilotPort, tmrNmea, tmrUnload, TimerTack,
                          Time,     Random,    Dialogs, Store,     ProfileFile()};
    parts.ManualPage = page;
    Window = std::make_unique<frmMain>(parts);
    Window->Form_Load();
    Window->show();
  }
  /// A page that there is.
  std::string Page() {
    const std::string page = ProfileFile() + ".html";
    std::ofstream(page) << "<p>";
    return page;
  }
  /// The manual's window, opened by the command.
  static frmManual* Book() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* book = dynamic_cast<frmManual*>(window)) {
        return book;
      }
    }
    return nullptr;
  }
  void Press() {
    Window->findChild<QAction*>(QStringLiteral("mnuHelpManual"))->trigger();
    ASSERT_NE(Book(), nullptr);
    QTest::mouseClick(Book()->cmdBrowser, Qt::LeftButton);
  }
};

TEST_F(Manual, OpensItsFirstPageInTheProgram) {
  Open("/nowhere/README.html");
  Window->findChild<QAction*>(QStringLiteral("mnuHelpManual"))->trigger();
  ASSERT_NE(Book(), nullptr);
  EXPECT_TRUE(Book()->isVisible());
  EXPECT_TRUE(WaitFor([] { return Book()->txtManual->source().fileName() == QLatin1String("README.md"); }));
  EXPECT_THAT(Book()->txtManual->toPlainText().toStdString(), HasSubstr("Veerwatch"));
  EXPECT_THAT(Dialogs.Pages, IsEmpty());
  EXPECT_THAT(Dialogs.Messages, IsEmpty());
}

TEST_F(Manual, OpensItsFirstPageInTheBrowserWhenAsked) {
  const std::string page = Page();
  Open(page);
  Press();
  EXPECT_THAT(Dialogs.Pages, ElementsAre(page));
  EXPECT_THAT(Dialogs.Messages, IsEmpty());
}

TEST_F(Manual, SaysWhereItShouldLieWhenItDoesNot) {
  Open("/nowhere/README.html");
  Press();
  EXPECT_THAT(Dialogs.Pages, IsEmpty());
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("/nowhere/README.html"));
}

TEST_F(Manual, SaysWhereItLiesWhenThereIsNoBrowser) {
  const std::string page = Page();
  Dialogs.ShowsPages = false;
  Open(page);
  Press();
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr(page));
}

}  // namespace
}  // namespace veerwatch
