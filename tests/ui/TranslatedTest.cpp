// Every text that a window shows goes through the translation: under one that puts each text into brackets
// nothing is left outside of them. What is painted is made by classes with tests of their own.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenu>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <set>

#include "platform/Language.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

constexpr const char* kOpen = "\u27e6";
constexpr const char* kClose = "\u27e7";

/// Words that are the same in every language: names, sentences, units, and what Qt's own translation brings.
const QSet<QString>& SameEverywhere() {
  static const QSet<QString> kWords{"Veerwatch", "English", "Deutsch", "APB",  "RMB", "HSC", "XTE",
                                    "BWC",       "OK",      "Cancel",  "nmea", "min", "deg", "kn"};
  return kWords;
}

/// What of a text stands outside of all brackets and is a word.
QString Bare(const QString& text) {
  QString outside;
  int depth = 0;
  for (const QChar c : text) {
    if (c == QString::fromUtf8(kOpen).front()) {
      ++depth;
    } else if (c == QString::fromUtf8(kClose).front()) {
      --depth;
      outside += QLatin1Char(' ');
    } else if (depth == 0 && c != QLatin1Char('&')) {
      outside += c;
    }
  }
  // Where a port leads.
  outside.remove(QRegularExpression(QStringLiteral("/\\S+")));
  static const QRegularExpression kWord(QStringLiteral("\\p{L}{2,}"));
  for (auto words = kWord.globalMatch(outside); words.hasNext();) {
    const QString word = words.next().captured();
    if (!SameEverywhere().contains(word)) {
      return word;
    }
  }
  return {};
}

class Translated : public MainWindowTester {
 public:
  Translated() {
    SetTranslation([](const char* source) { return kOpen + std::string(source) + kClose; });
  }
  ~Translated() override {
    Window.reset();
    SetTranslation(nullptr);
  }

  void Look(const QString& where, const QString& what, const QString& text) {
    if (const QString bare = Bare(text); !bare.isEmpty()) {
      m_bare.insert((where + QLatin1Char(' ') + what + QStringLiteral(": ") + text).toStdString());
    }
    m_looked += text.isEmpty() ? 0 : 1;
  }

  void LookAt(const QWidget& widget) {
    const QString where = widget.window()->objectName() + QLatin1Char('/') + widget.objectName() +
                          QLatin1Char('(') + QLatin1String(widget.metaObject()->className()) +
                          QLatin1Char(')');
    Look(where, QStringLiteral("tip"), widget.toolTip());
    Look(where, QStringLiteral("name"), widget.accessibleName());
    Look(where, QStringLiteral("description"), widget.accessibleDescription());
    if (widget.isWindow()) {
      Look(where, QStringLiteral("title"), widget.windowTitle());
    }
    for (const char* property : {"text", "title", "prefix", "suffix", "format", "placeholderText"}) {
      // What is typed, and what leaves or comes, is no text of the window.
      const bool typed = qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                         widget.objectName() == QLatin1String("lblPilotSentences") ||
                         widget.objectName() == QLatin1String("lblNmeaDevice") ||
                         widget.objectName() == QLatin1String("lblPilotDevice");
      if (!typed && widget.metaObject()->indexOfProperty(property) >= 0) {
        Look(where, QLatin1String(property), widget.property(property).toString());
      }
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
      for (int i = 0; i < combo->count(); ++i) {
        Look(where, QStringLiteral("item"), combo->itemText(i));
        Look(where, QStringLiteral("item's tip"), combo->itemData(i, Qt::ToolTipRole).toString());
      }
    }
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        Look(where, QStringLiteral("tab"), tabs->tabText(i));
      }
    }
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget);
        list != nullptr && list->model() != nullptr && list->objectName() != QLatin1String("lstNmeaData") &&
        list->objectName() != QLatin1String("lstPilotData")) {
      for (int i = 0; i < list->model()->rowCount(); ++i) {
        Look(where, QStringLiteral("row"), list->model()->index(i, 0).data().toString());
      }
    }
    for (const QAction* action : widget.actions()) {
      Look(where, action->objectName() + QStringLiteral(" command"), action->text());
      Look(where, action->objectName() + QStringLiteral(" tip"), action->toolTip());
    }
  }

  /// Looks at every window that is open, with all that is in it.
  void LookAtAll() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QLatin1String("frmManual")) {
        continue;
      }
      LookAt(*window);
      for (const QWidget* part : window->findChildren<QWidget*>()) {
        // Qt's own parts.
        if (!part->objectName().startsWith(QLatin1String("qt_")) &&
            !part->objectName().startsWith(QLatin1String("Scroll"))) {
          LookAt(*part);
        }
      }
    }
  }

  std::string Found() const {
    std::string lines;
    for (const std::string& line : m_bare) {
      lines += line + "\n";
    }
    return lines;
  }
  int Looked() const { return m_looked; }

 private:
  std::set<std::string> m_bare;
  int m_looked = 0;
};

TEST_F(Translated, IsEveryTextOfTheMainWindowInEveryMode) {
  Start(kSimulated);
  for (int i = 0; i < 5; ++i) {
    tmrNmea.Tick();
  }
  for (const int mode : {4, 5, 6, 7}) {
    if (Window->findChild<QAction*>(QStringLiteral("tbrTrack(%1)").arg(mode)) != nullptr) {
      Mode(mode);
      tmrNmea.Tick();
      LookAtAll();
    }
  }
  EXPECT_EQ(Found(), "");
  EXPECT_GT(Looked(), 300);
}

TEST_F(Translated, IsEveryTextOfTheOptions) {
  Start(kSimulated);
  Find<QAction>("mnuOptionsInput").trigger();
  LookAtAll();
  EXPECT_EQ(Found(), "");
  EXPECT_GT(Looked(), 400);
}

TEST_F(Translated, IsEveryTextOfPolarHistoryAndDiagram) {
  Start(std::string(kSimulated) +
        "[Polar Window]\nVisible=True\n[Polar Data]\nCourse Waypoint=True\nCourse Waypoint Index=2\n"
        "[History Window]\nVisible=True\n");
  for (int i = 0; i < 5; ++i) {
    tmrNmea.Tick();
  }
  Find<QAction>("mnuViewDiagram").trigger();
  Find<QAction>("mnuHelpAbout").trigger();
  LookAtAll();
  EXPECT_EQ(Found(), "");
  EXPECT_GT(Looked(), 300);
}

TEST_F(Translated, IsEveryTextOfTheDialogs) {
  Start(kOnPorts);
  Find<QAction>("mnuViewAlarms").trigger();
  Find<QAction>("mnuWindLimits").trigger();
  Find<QAction>("mnuOptionsRecommended").trigger();
  LookAtAll();
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  LookAtAll();
  EXPECT_EQ(Found(), "");
  EXPECT_GT(Looked(), 200);
}

TEST_F(Translated, IsWhatIsSaidOfALostPort) {
  NmeaPort.OpensOtherwise = false;
  Start(kOnPorts);
  for (int i = 0; i < 10; ++i) {
    tmrNmea.Tick();
    Time.Pass(1000);
  }
  LookAtAll();
  EXPECT_EQ(Found(), "");
}

}  // namespace
}  // namespace veerwatch
