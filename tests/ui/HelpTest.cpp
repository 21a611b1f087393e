// F1: the manual inside the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDirIterator>
#include <QImage>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>

#include "app/frmManual.h"
#include "platform/ColoursQt.h"
#include "platform/DialogsQt.h"
#include "tests/support/PictureQt.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class Help : public MainWindowTester {
 public:
  ~Help() override { WearNightColours(false); }

  static QWidget* Other(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QLatin1String(name)) {
        return window;
      }
    }
    return nullptr;
  }
  static frmManual& Book() { return *dynamic_cast<frmManual*>(Other("frmManual")); }
  static std::string Page() { return Book().txtManual->source().fileName().toStdString(); }
  /// The heading that stands at the top of what is seen.
  static std::string AtTop() {
    const QTextBrowser& pages = *Book().txtManual;
    return pages.cursorForPosition(QPoint(30, 2)).block().text().toStdString();
  }
  static bool Await(const std::string& page, const std::string& heading) {
    return WaitFor([&] { return Page() == page && (heading.empty() || AtTop() == heading); });
  }
};

TEST_F(Help, OpensThePageOfTheWindowThatTheKeyIsPressedIn) {
  Start(std::string(kSimulated) + "[Polar Window]\nVisible=True\n");
  QTest::keyClick(Window.get(), Qt::Key_F1);
  ASSERT_NE(Other("frmManual"), nullptr);
  EXPECT_TRUE(Book().isVisible());
  EXPECT_TRUE(Await("main-window.md", "")) << Page();
  QTest::keyClick(Other("frmPolar"), Qt::Key_F1);
  EXPECT_TRUE(Await("polar.md", "")) << Page();
}

TEST_F(Help, OpensTheHeadingOfTheOptionsTab) {
  Start(kSimulated);
  Find<QAction>("mnuOptionsTrack").trigger();
  auto* options = dynamic_cast<frmOptions*>(Other("frmOptions"));
  ASSERT_NE(options, nullptr);
  QTest::keyClick(options, Qt::Key_F1);
  EXPECT_TRUE(Await("settings.md", "Tracking")) << Page() << ": " << AtTop();
  options->TabSelect(frmOptions::Data);
  QTest::keyClick(options, Qt::Key_F1);
  EXPECT_TRUE(Await("settings.md", "Data")) << Page() << ": " << AtTop();
}

TEST_F(Help, OpensFromADialogThatTheMainWindowWaitsFor) {
  Start(kSimulated);
  Find<QAction>("mnuWindLimits").trigger();
  QWidget* limits = Window->findChild<QWidget*>(QStringLiteral("dlgWindLimits"));
  ASSERT_NE(limits, nullptr);
  QTest::keyClick(limits->findChild<QWidget*>(QStringLiteral("txtShiftLimit")), Qt::Key_F1);
  ASSERT_NE(Other("frmManual"), nullptr);
  EXPECT_TRUE(Await("wind-functions.md", "")) << Page();
}

TEST_F(Help, IsACommandOfTheMenuToo) {
  Start(kSimulated);
  auto& command = Find<QAction>("mnuHelpHere");
  EXPECT_EQ(command.shortcut(), QKeySequence(Qt::Key_F1));
  command.trigger();
  ASSERT_NE(Other("frmManual"), nullptr);
  EXPECT_TRUE(Await("main-window.md", "")) << Page();
}

TEST_F(Help, FollowsLinksBetweenThePagesAndGoesBack) {
  Start(kSimulated);
  QTest::keyClick(Window.get(), Qt::Key_F1);
  ASSERT_TRUE(Await("main-window.md", ""));
  EXPECT_FALSE(Book().cmdBack->isEnabled());
  emit Book().txtManual->anchorClicked(QUrl(QStringLiteral("connecting.md#ports")));
  EXPECT_TRUE(Await("connecting.md", "Ports")) << Page() << ": " << AtTop();
  EXPECT_TRUE(Book().cmdBack->isEnabled());
  QTest::mouseClick(Book().cmdBack, Qt::LeftButton);
  EXPECT_TRUE(Await("main-window.md", "")) << Page();
  QTest::mouseClick(Book().cmdContents, Qt::LeftButton);
  EXPECT_TRUE(Await("README.md", "")) << Page();
}

TEST_F(Help, FollowsNoLinkThatLeadsOut) {
  Start(kSimulated);
  QTest::keyClick(Window.get(), Qt::Key_F1);
  ASSERT_TRUE(Await("main-window.md", ""));
  for (const char* link :
       {"https://example.org/", "file:///etc/passwd", "../../../etc/passwd", "nowhere.md"}) {
    Book().lblOutside->clear();
    emit Book().txtManual->anchorClicked(QUrl(QLatin1String(link)));
    EXPECT_EQ(Page(), "main-window.md") << link;
    EXPECT_THAT(Book().lblOutside->text().toStdString(), testing::HasSubstr(link));
  }
}

TEST_F(Help, EveryLinkAndPictureOfTheManualIsThere) {
  const frmManual book;
  int links = 0;
  int pictures = 0;
  QDirIterator pages(QStringLiteral(":/docs/manual"), {QStringLiteral("*.md")});
  while (pages.hasNext()) {
    const QUrl address(QStringLiteral("qrc") + pages.next());
    book.txtManual->setSource(address, QTextDocument::MarkdownResource);
    for (QTextBlock block = book.txtManual->document()->begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        const QString name = format.isImageFormat() ? format.toImageFormat().name() : format.anchorHref();
        if (!name.isEmpty()) {
          const QUrl there = address.resolved(QUrl(name));
          EXPECT_TRUE(QFile::exists(QLatin1Char(':') + there.path()))
              << address.fileName().toStdString() << ": " << name.toStdString();
          ++(format.isImageFormat() ? pictures : links);
        }
      }
    }
  }
  EXPECT_GT(links, 30);
  EXPECT_GT(pictures, 10);
}

TEST_F(Help, EveryPlaceOfAWindowIsInTheManual) {
  for (const char* window :
       {"frmMain", "frmPolar", "frmHistory", "frmConfigPopup", "frmDiagram", "frmAlarms", "frmTack",
        "frmTurn", "dlgDevice", "dlgWindLimits", "dlgRecommended", "PilotTest", "frmOptions", "other"}) {
    for (int tab = 0; tab < 7; ++tab) {
      const ManualPlace place = ManualPlaceOf(window, tab);
      const frmManual book;
      const QUrl address(QStringLiteral("qrc:/docs/manual/") + QString::fromStdString(place.Page));
      book.txtManual->setSource(address, QTextDocument::MarkdownResource);
      bool found = place.Heading.empty();
      for (QTextBlock block = book.txtManual->document()->begin(); block.isValid(); block = block.next()) {
        found =
            found || (block.blockFormat().headingLevel() > 0 && block.text().toStdString() == place.Heading);
      }
      EXPECT_TRUE(found) << window << " " << place.Page << ": " << place.Heading;
    }
  }
}

TEST_F(Help, ItsPicturesFitAndAreRedAtNight) {
  Start(kSimulated);
  Find<QAction>("mnuViewNight").trigger();
  Find<QAction>("mnuViewHistory").trigger();
  QTest::keyClick(Window.get(), Qt::Key_F1);
  ASSERT_TRUE(Await("main-window.md", ""));
  frmManual& book = Book();
  book.resize(640, 440);
  ASSERT_TRUE(WaitFor([&] { return book.txtManual->horizontalScrollBar()->maximum() == 0; }))
      << book.txtManual->document()->size().width() << " of " << book.txtManual->viewport()->width();
  QTest::qWait(50);
  const QImage image = book.grab().toImage();
  KeepPicture(image, QStringLiteral("manual-night"));
  int hurting = 0;
  int bright = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      hurting += qBlue(pixel) > 130 || qBlue(pixel) > qRed(pixel) || 10 * qGreen(pixel) > 7 * qRed(pixel) + 60
                     ? 1
                     : 0;
      bright += qRed(pixel) > 150 ? 1 : 0;
    }
  }
  EXPECT_EQ(hurting, 0);
  EXPECT_LT(bright, image.width() * image.height() / 5) << "a light picture is turned over";
}

}  // namespace
}  // namespace veerwatch
