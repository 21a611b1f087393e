// The letters that are pressed with Alt: in a menu, and on a page of the options, each is there once, in
// every language.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <string>

#include "options/frmOptions.h"
#include "platform/LanguageQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

/// The letters of one place, and the texts that have them.
class Letters {
 public:
  explicit Letters(std::string place) : m_place(std::move(place)) {}

  void Add(const QString& text) {
    const QString key = QKeySequence::mnemonic(text).toString();
    EXPECT_TRUE(key.isEmpty() || !m_keys.contains(key))
        << m_place << ": \"" << text.toStdString() << "\" and \"" << m_keys.value(key).toStdString() << "\"";
    m_keys.insert(key, text);
  }
  int Count() const { return static_cast<int>(m_keys.size()); }

 private:
  std::string m_place;
  QMap<QString, QString> m_keys;
};

class Mnemonics : public MainWindowTester, public testing::WithParamInterface<const char*> {
 public:
  ~Mnemonics() override {
    Window.reset();
    InstallLanguage("en");
  }
};

TEST_P(Mnemonics, OfAMenuAreThereOnce) {
  InstallLanguage(GetParam());
  Start(std::string(kSimulated) + "[Polar Window]\nVisible=True\n[History Window]\nVisible=True\n");
  int menus = 0;
  for (const QWidget* each : QApplication::allWidgets()) {
    if (dynamic_cast<const QMenu*>(each) == nullptr && dynamic_cast<const QMenuBar*>(each) == nullptr) {
      continue;
    }
    Letters letters(each->objectName().toStdString());
    for (const QAction* action : each->actions()) {
      if (action->isVisible()) {
        letters.Add(action->text());
      }
    }
    menus += letters.Count() > 1 ? 1 : 0;
  }
  EXPECT_GE(menus, 6);
}

TEST_P(Mnemonics, OfAPageOfTheOptionsAreThereOnce) {
  InstallLanguage(GetParam());
  Start(kSimulated);
  Find<QAction>("mnuOptionsInput").trigger();
  const frmOptions* options = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    options = options == nullptr ? dynamic_cast<frmOptions*>(window) : options;
  }
  ASSERT_NE(options, nullptr);
  auto* tabs = options->findChild<QTabWidget*>();
  for (int page = 0; page < tabs->count(); ++page) {
    tabs->setCurrentIndex(page);
    Letters letters(tabs->tabText(page).toStdString());
    for (int tab = 0; tab < tabs->count(); ++tab) {
      letters.Add(tabs->tabText(tab));
    }
    for (const QWidget* each : options->findChildren<QWidget*>()) {
      const auto* button = dynamic_cast<const QAbstractButton*>(each);
      const auto* label = dynamic_cast<const QLabel*>(each);
      if (each->isVisible() && button != nullptr) {
        letters.Add(button->text());
      } else if (each->isVisible() && label != nullptr && label->buddy() != nullptr) {
        letters.Add(label->text());
      }
    }
    EXPECT_GT(letters.Count(), 2);
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, Mnemonics, testing::Values("en", "de"));

}  // namespace
}  // namespace veerwatch
