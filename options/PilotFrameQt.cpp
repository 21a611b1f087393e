#include "options/PilotFrameQt.h"

#include <QFontDatabase>
#include <QVBoxLayout>
#include <QValidator>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "settings/TextRule.h"

namespace veerwatch {

namespace {

/// Refuses each character with which a text cannot become one of its rule; small letters become capitals.
class RuleValidatorQt final : public QValidator {
 public:
  RuleValidatorQt(const TextRule& rule, QObject* parent) : QValidator(parent), m_rule(rule) {}

  State validate(QString& input, int& /*position*/) const override {
    for (QChar& letter : input) {
      if (letter >= QLatin1Char('a') && letter <= QLatin1Char('z')) {
        letter = letter.toUpper();
      }
    }
    const std::string text = input.toStdString();
    return m_rule.Takes(text) ? Acceptable : (m_rule.Begins(text) ? Intermediate : Invalid);
  }

 private:
  const TextRule& m_rule;
};

QComboBox* NewChoice(const char* name, const char* hint, const QStringList& items, QWidget* parent) {
  auto* choice = new QComboBox(parent);
  NameControl(*choice, name, hint);
  choice->addItems(items);
  return choice;
}

QStringList Profiles() {
  QStringList names;
  for (const std::string_view name : kPilotProfiles) {
    names << TrQ(name);
  }
  return names;
}

struct SendsText {
  const char* Name;
  const char* Caption;
};
constexpr std::array<SendsText, kPilotOwnSwitches.size()> kSends{{{"chkPilotOwnAPB", "APB"},
                                                                  {"chkPilotOwnRMB", "RMB"},
                                                                  {"chkPilotOwnHSC", "HSC"},
                                                                  {"chkPilotOwnXTE", "XTE"},
                                                                  {"chkPilotOwnBWC", "BWC"}}};

/// A row of its pairs and what else is in it, with the room behind them.
void AddPair(QHBoxLayout& row, QLabel* caption, QWidget* control) {
  if (row.count() > 0) {
    row.addSpacing(kGroupGap / 2);
  }
  row.addWidget(caption);
  row.addWidget(control);
}

}  // namespace

PilotFrameQt::PilotFrameQt(QWidget* parent)
    : QGroupBox(TrQ("Autopilot"), parent),
      cmbPilotProfile(NewChoice("cmbPilotProfile", TrMark("What the pilot is sent"), Profiles(), this)),
      cmbPilotCadence(
          NewChoice("cmbPilotCadence",
                    TrMark("How often the bearing is sent: with each wind, or by the clock while it is good"),
                    {TrQ("Each wind"), TrQ("1 a second"), TrQ("2 a second"), TrQ("3 a second"),
                     TrQ("4 a second"), TrQ("5 a second")},
                    this)),
      txtPilotOwnTalker(
          new OptionEntryQt("txtPilotOwnTalker", TrMark("Own: the two letters in front"), this)),
      cmbPilotOwnBearing(NewChoice("cmbPilotOwnBearing",
                                   TrMark("Own: the bearings of APB are magnetic or true"),
                                   {QStringLiteral("M"), QStringLiteral("T")}, this)),
      cmbPilotOwnFields(NewChoice("cmbPilotOwnFields",
                                  TrMark("Own: fields of APB; the fifteenth is the mode A"),
                                  {QStringLiteral("14"), QStringLiteral("15")}, this)),
      cmbPilotOwnDecimals(NewChoice("cmbPilotOwnDecimals", TrMark("Own: decimals of the bearings"),
                                    {QStringLiteral("0"), QStringLiteral("1")}, this)),
      txtPilotOwnPoint(new OptionEntryQt(
          "txtPilotOwnPoint", TrMark("Own: name of the point, 6 letters and digits at most"), this)),
      chkPilotInvalidWhenLost(new QCheckBox(TrQ("Invalid when &lost, for"), this)),
      txtPilotInvalidSeconds(new OptionEntryQt(
          "txtPilotInvalidSeconds", TrMark("So long the status is V, then nothing is sent (sec)"), this)),
      cmdPilotTest(new QPushButton(TrQ("Test &Pilot..."), this)),
      lblPilotSentences(new QLabel(this)),
      lblPilotNote(new QLabel(this)) {
  NameControls();
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(ProfileRow());
  rows->addLayout(OwnRow());
  rows->addLayout(SendsRow());
  rows->addLayout(InvalidRow());
  rows->addWidget(lblPilotSentences);
  rows->addWidget(lblPilotNote);
  connect(cmbPilotProfile, &QComboBox::currentIndexChanged, this, [this] { Enable(); });
  connect(chkPilotInvalidWhenLost, &QCheckBox::toggled, this, [this] { Enable(); });
  Enable();
}

void PilotFrameQt::NameControls() {
  setObjectName(QStringLiteral("fraPilot"));
  txtPilotOwnTalker->setValidator(new RuleValidatorQt(kTalker, this));
  txtPilotOwnPoint->setValidator(new RuleValidatorQt(kPointName, this));
  for (std::size_t i = 0; i < Sends.size(); ++i) {
    Sends[i] = new QCheckBox(QLatin1String(kSends[i].Caption), this);
    NameControl(*Sends[i], kSends[i].Name, TrMark("Own: whether this sentence is sent"));
  }
  NameControl(*chkPilotInvalidWhenLost, "chkPilotInvalidWhenLost",
              TrMark("When no bearing is good the pilot is told so; otherwise nothing is sent at once"));
  NameControl(*cmdPilotTest, "cmdPilotTest",
              TrMark("Turns the boat by 10 degrees and back, and says how the pilot answers; in Manual"));
  cmdPilotTest->setAutoDefault(false);
  NameControl(*lblPilotSentences, "lblPilotSentences", TrMark("What would leave now"));
  NameControl(*lblPilotNote, "lblPilotNote", TrMark("What does not leave, or how full the line is"));
  for (QLabel* label : {lblPilotSentences, lblPilotNote}) {
    label->setAccessibleName(label->accessibleDescription());
    label->setTextFormat(Qt::PlainText);
  }
  // Of the size of the other texts.
  lblPilotSentences->setFont(QFont(QFontDatabase::systemFont(QFontDatabase::FixedFont).families()));
  lblPilotSentences->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblPilotNote->setWordWrap(true);
}

QLayout* PilotFrameQt::ProfileRow() {
  auto* row = new QHBoxLayout;
  AddPair(*row, NewCaption(TrMark("P&rofile:"), cmbPilotProfile, this), cmbPilotProfile);
  AddPair(*row, NewCaption(TrMark("Cadenc&e:"), cmbPilotCadence, this), cmbPilotCadence);
  row->addStretch();
  row->addWidget(cmdPilotTest);
  return row;
}

QLayout* PilotFrameQt::OwnRow() {
  auto* row = new QHBoxLayout;
  AddPair(*row, NewCaption(TrMark("Talker:"), txtPilotOwnTalker, this), txtPilotOwnTalker);
  AddPair(*row, NewCaption(TrMark("Bearings:"), cmbPilotOwnBearing, this), cmbPilotOwnBearing);
  AddPair(*row, NewCaption(TrMark("Fields:"), cmbPilotOwnFields, this), cmbPilotOwnFields);
  AddPair(*row, NewCaption(TrMark("Decimals:"), cmbPilotOwnDecimals, this), cmbPilotOwnDecimals);
  AddPair(*row, NewCaption(TrMark("Point:"), txtPilotOwnPoint, this), txtPilotOwnPoint);
  row->addStretch();
  return row;
}

QLayout* PilotFrameQt::SendsRow() {
  auto* row = new QHBoxLayout;
  row->addWidget(NewText(TrMark("Sends:"), this));
  for (QCheckBox* each : Sends) {
    row->addWidget(each);
  }
  row->addStretch();
  return row;
}

QLayout* PilotFrameQt::InvalidRow() {
  auto* row = new QHBoxLayout;
  row->addWidget(chkPilotInvalidWhenLost);
  row->addWidget(txtPilotInvalidSeconds);
  row->addWidget(NewText(TrMark("sec"), this));
  row->addStretch();
  return row;
}

std::vector<BoundEntry> PilotFrameQt::Entries() const {
  return {{txtPilotOwnTalker, &OptionsForm::PilotOwnTalker},
          {txtPilotOwnPoint, &OptionsForm::PilotOwnPoint},
          {txtPilotInvalidSeconds, &OptionsForm::PilotInvalidSeconds}};
}

std::vector<QComboBox*> PilotFrameQt::Combos() const {
  return {cmbPilotProfile, cmbPilotCadence, cmbPilotOwnBearing, cmbPilotOwnFields, cmbPilotOwnDecimals};
}

std::vector<QCheckBox*> PilotFrameQt::Checks() const {
  std::vector<QCheckBox*> all(Sends.begin(), Sends.end());
  all.push_back(chkPilotInvalidWhenLost);
  return all;
}

void PilotFrameQt::Show(const OptionsForm& form) {
  cmbPilotProfile->setCurrentIndex(form.PilotProfile);
  cmbPilotCadence->setCurrentIndex(form.PilotCadence);
  cmbPilotOwnBearing->setCurrentIndex(form.PilotOwnBearing);
  cmbPilotOwnFields->setCurrentIndex(form.PilotOwnFields);
  cmbPilotOwnDecimals->setCurrentIndex(form.PilotOwnDecimals);
  for (std::size_t i = 0; i < Sends.size(); ++i) {
    Sends[i]->setChecked(form.PilotOwnSends[i]);
  }
  chkPilotInvalidWhenLost->setChecked(form.PilotInvalidWhenLost);
  ShowEntries(Entries(), form);
}

void PilotFrameQt::Read(OptionsForm& form) const {
  form.PilotProfile = cmbPilotProfile->currentIndex();
  form.PilotCadence = cmbPilotCadence->currentIndex();
  form.PilotOwnBearing = cmbPilotOwnBearing->currentIndex();
  form.PilotOwnFields = cmbPilotOwnFields->currentIndex();
  form.PilotOwnDecimals = cmbPilotOwnDecimals->currentIndex();
  for (std::size_t i = 0; i < Sends.size(); ++i) {
    form.PilotOwnSends[i] = Sends[i]->isChecked();
  }
  form.PilotInvalidWhenLost = chkPilotInvalidWhenLost->isChecked();
  ReadEntries(Entries(), form);
}

void PilotFrameQt::Preview(const PilotPreview& preview) const {
  const QString sentences = QString::fromStdString(preview.Sentences);
  if (lblPilotSentences->text() != sentences) {
    lblPilotSentences->setText(sentences);
  }
  lblPilotSentences->setVisible(!sentences.isEmpty());
  const QString note = QString::fromStdString(preview.Note);
  QFont font = lblPilotNote->font();
  font.setBold(preview.Warns);
  lblPilotNote->setFont(font);
  if (lblPilotNote->text() != note) {
    lblPilotNote->setText(note);
  }
  lblPilotNote->setVisible(!note.isEmpty());
}

void PilotFrameQt::Changed(const std::function<void(QWidget*)>& handler) const {
  for (QComboBox* each : Combos()) {
    connect(each, &QComboBox::currentIndexChanged, each, [handler, each] { handler(each); });
  }
  for (QCheckBox* each : Checks()) {
    connect(each, &QCheckBox::toggled, each, [handler, each] { handler(each); });
  }
  for (const BoundEntry& entry : Entries()) {
    connect(entry.Box, &QLineEdit::textChanged, entry.Box, [handler, box = entry.Box] { handler(box); });
  }
}

void PilotFrameQt::Enable() const {
  const bool own = cmbPilotProfile->currentIndex() == static_cast<int>(PilotProfile::Own);
  for (QWidget* control : std::initializer_list<QWidget*>{
           txtPilotOwnTalker, cmbPilotOwnBearing, cmbPilotOwnFields, cmbPilotOwnDecimals, txtPilotOwnPoint}) {
    control->setEnabled(own);
  }
  for (QCheckBox* each : Sends) {
    each->setEnabled(own);
  }
  txtPilotInvalidSeconds->setEnabled(chkPilotInvalidWhenLost->isChecked());
}

}  // namespace veerwatch
