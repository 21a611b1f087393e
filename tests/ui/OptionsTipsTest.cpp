// What the tool tips of the options dialog say: of every control in which something is set the hint, what may
// be typed, and when to change it.

#include <QAbstractButton>
#include <QComboBox>
#include <QScrollBar>
#include <QTreeWidget>
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "options/OptionTips.h"
#include "options/SentenceListQt.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

using testing::AnyOf;
using testing::StartsWith;

class OptionsTips : public OptionsTester {
 public:
  /// Every control of the pages in which something is set, chosen or pressed.
  std::vector<QWidget*> Inputs() const {
    const auto& tabs = Find<QTabWidget>("SSTab");
    std::vector<QWidget*> inputs{&Find<QWidget>("lstNmeaSentence")};
    for (int page = 0; page < tabs.count(); ++page) {
      for (QWidget* control : tabs.widget(page)->findChildren<QWidget*>()) {
        const bool sets = qobject_cast<QLineEdit*>(control) != nullptr ||
                          qobject_cast<QAbstractButton*>(control) != nullptr ||
                          qobject_cast<QComboBox*>(control) != nullptr ||
                          qobject_cast<QTreeWidget*>(control) != nullptr ||
                          control->objectName().startsWith(QLatin1String("vsc"));
        if (sets) {
          inputs.push_back(control);
        }
      }
    }
    return inputs;
  }
};

/// A tip on one line.
std::string OneLine(QString tip) { return tip.replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString(); }

TEST_F(OptionsTips, OfEveryInputBeginWithItsHintAndEndWithWhenToChangeIt) {
  Make();
  const std::vector<QWidget*> inputs = Inputs();
  EXPECT_GT(inputs.size(), 90U);
  for (const QWidget* input : inputs) {
    const std::string name = input->objectName().toStdString();
    const std::string tip = OneLine(input->toolTip());
    const std::string hint = input->accessibleDescription().toStdString();
    ASSERT_FALSE(name.empty()) << input->metaObject()->className();
    EXPECT_NE(hint, "") << name;
    ASSERT_THAT(tip, StartsWith(hint)) << name;
    std::string rest = tip.substr(hint.size());
    if (qobject_cast<const QLineEdit*>(input) != nullptr) {
      EXPECT_THAT(rest, AnyOf(StartsWith(" Range: "), StartsWith(" Takes: "))) << name;
      rest.erase(0, std::min(rest.find(". "), rest.size()));
    }
    EXPECT_GT(rest.size(), 15U) << name << " has no sentence on when to change it";
    EXPECT_TRUE(rest.ends_with('.')) << name;
  }
}

TEST_F(OptionsTips, AreNoneForAControlThatIsNotThere) {
  Make();
  std::set<std::string> names;
  for (const QWidget* input : Inputs()) {
    names.insert(input->objectName().toStdString());
  }
  for (const OptionTip& tip : OptionTips()) {
    EXPECT_EQ(names.count(std::string(tip.Control)), 1U) << tip.Control;
  }
}

TEST_F(OptionsTips, OfTheDampingComesBackWithAMethodThatUsesIt) {
  Make();
  const QString tip = Find<QWidget>("txtTrackDamping").toolTip();
  auto& method = Find<QComboBox>("cmbTrackMethod");
  method.setCurrentIndex(static_cast<int>(TrackMethod::Direction));
  EXPECT_EQ(Find<QWidget>("txtTrackDamping").toolTip(), "The method Direction has no damping");
  method.setCurrentIndex(static_cast<int>(TrackMethod::Clock));
  EXPECT_EQ(Find<QWidget>("txtTrackDamping").toolTip(), tip);
  EXPECT_THAT(OneLine(tip), StartsWith("Tracking Damping Factor (default=1) Range: 0 and above. "));
}

}  // namespace
}  // namespace veerwatch
