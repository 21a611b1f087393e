#include "options/WatchPageQt.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

struct SwitchText {
  const char* Name;
  const char* Caption;
  const char* Hint;
};

constexpr std::array<SwitchText, kWatchSwitches.size()> kTexts{{
    {"chkWatchAct", TrMark("A&ct: what is lost or wrong does not steer"),
     TrMark("Act on what is lost instead of only telling it")},
    {"chkWatchKeepSending", TrMark("&Keep Sending: the last bearing for 30 s when the wind is lost"),
     TrMark("With Act: the last bearing is sent on for 30 seconds")},
    {"chkWatchHeadingUp", TrMark("Heading &Up: 20 degrees up, once, when a wind from astern is lost"),
     TrMark("With Act: the boat is brought 20 degrees up, away from the gybe")},
    {"chkWatchLogFitted", TrMark("&Boat speed is on the wire"),
     TrMark("Untick it on a boat without a log: it is not missed then")},
    {"chkWatchCompassFitted", TrMark("&Heading is on the wire"),
     TrMark("Untick it on a boat without a compass on the wire: it is not missed then")},
    {"chkWatchBlankLost", TrMark("Blank &Lost: a lost figure becomes \"--\""),
     TrMark("A lost figure becomes two dashes; otherwise it stays, in half tone")},
    {"chkCarefulEntry", TrMark("Careful &Entry: an emptied box restores, a large change is asked about"),
     TrMark("A box that was emptied restores; a bearing or angle far from the present one is asked about")},
}};

constexpr const char* kStaleHint = TrMark("Older values are stale (sec)");

}  // namespace

WatchPageQt::WatchPageQt(QWidget* parent)
    : QWidget(parent),
      cmbWatchSound(new QComboBox(this)),
      cmdWatchTest(new QPushButton(TrQ("Test Tone"), this)),
      txtWatchCommand(new EntryLineQt(this)),
      txtWatchStaleWindApparent(new OptionEntryQt("txtWatchStaleWindApparent", kStaleHint, this)),
      txtWatchStaleWindTrue(new OptionEntryQt("txtWatchStaleWindTrue", kStaleHint, this)),
      txtWatchStaleBoatSpeed(new OptionEntryQt("txtWatchStaleBoatSpeed", kStaleHint, this)),
      txtWatchStaleHeading(new OptionEntryQt("txtWatchStaleHeading", kStaleHint, this)),
      txtWatchStaleWaypoint(new OptionEntryQt("txtWatchStaleWaypoint", kStaleHint, this)) {
  for (std::size_t i = 0; i < Switches.size(); ++i) {
    Switches[i] = new QCheckBox(TrQ(kTexts[i].Caption), this);
    NameControl(*Switches[i], kTexts[i].Name, kTexts[i].Hint);
  }
  NameControl(*cmbWatchSound, "cmbWatchSound",
              TrMark("The desktop's beep at each step, or tones by level until answered"));
  cmbWatchSound->addItems({TrQ("Beep"), TrQ("Tone")});
  NameControl(*cmdWatchTest, "cmdWatchTest", TrMark("Lets a red alarm be heard once, as chosen here"));
  cmdWatchTest->setAutoDefault(false);
  NameControl(
      *txtWatchCommand, "txtWatchCommand",
      TrMark("A program that is started with the alarm's text each time that one is heard; empty for none"));
  connect(cmdWatchTest, &QPushButton::clicked, this,
          [this] { m_tested(static_cast<AlarmSound>(cmbWatchSound->currentIndex())); });
  auto* page = new QVBoxLayout(this);
  page->addWidget(NewActing());
  page->addWidget(NewSounding());
  page->addWidget(NewShowing());
  page->addStretch(1);
}

QWidget* WatchPageQt::NewActing() {
  auto* frame = new QGroupBox(TrQ("What Follows"), this);
  auto* rows = new QVBoxLayout(frame);
  for (std::size_t i = 0; i < 3; ++i) {
    rows->addWidget(Switches[i]);
  }
  return frame;
}

QWidget* WatchPageQt::NewSounding() {
  auto* frame = new QGroupBox(TrQ("Sound"), this);
  auto* rows = new QGridLayout(frame);
  rows->addWidget(NewCaption(TrMark("Sou&nd:"), cmbWatchSound, this), 0, 0);
  rows->addWidget(cmbWatchSound, 0, 1);
  rows->addWidget(cmdWatchTest, 0, 2);
  rows->addWidget(NewCaption(TrMark("Alarm Co&mmand:"), txtWatchCommand, this), 1, 0);
  rows->addWidget(txtWatchCommand, 1, 1, 1, 3);
  rows->setColumnStretch(3, 1);
  return frame;
}

QWidget* WatchPageQt::NewShowing() {
  auto* frame = new QGroupBox(TrQ("Values and Entry"), this);
  auto* stale = new QGridLayout;
  const std::array<std::pair<const char*, OptionEntryQt*>, 5> boxes{
      {{TrMark("A&pparent Wind:"), txtWatchStaleWindApparent},
       {TrMark("T&rue Wind:"), txtWatchStaleWindTrue},
       {TrMark("Boat Speed:"), txtWatchStaleBoatSpeed},
       {TrMark("Heading:"), txtWatchStaleHeading},
       {TrMark("Wa&ypoint:"), txtWatchStaleWaypoint}}};
  stale->addWidget(NewText(TrMark("Stale after (sec):"), this), 0, 0);
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const int row = static_cast<int>(i) / 2;
    const int column = 1 + 2 * (static_cast<int>(i) % 2);
    stale->addWidget(NewCaption(boxes[i].first, boxes[i].second, this), row, column, Qt::AlignRight);
    stale->addWidget(boxes[i].second, row, column + 1);
  }
  stale->setColumnStretch(5, 1);
  auto* rows = new QVBoxLayout(frame);
  rows->addLayout(stale);
  for (std::size_t i = 3; i < Switches.size(); ++i) {
    rows->addWidget(Switches[i]);
  }
  return frame;
}

std::vector<BoundEntry> WatchPageQt::Entries() const {
  return {
      {txtWatchStaleWindApparent, &OptionsForm::WatchStaleWindApparent},
      {txtWatchStaleWindTrue, &OptionsForm::WatchStaleWindTrue},
      {txtWatchStaleBoatSpeed, &OptionsForm::WatchStaleBoatSpeed},
      {txtWatchStaleHeading, &OptionsForm::WatchStaleHeading},
      {txtWatchStaleWaypoint, &OptionsForm::WatchStaleWaypoint},
  };
}

void WatchPageQt::Show(const OptionsForm& form) const {
  for (std::size_t i = 0; i < Switches.size(); ++i) {
    Switches[i]->setChecked(form.*kWatchSwitches[i].Checked);
  }
  cmbWatchSound->setCurrentIndex(form.WatchSound);
  txtWatchCommand->Show(QString::fromStdString(form.WatchCommand));
  ShowEntries(Entries(), form);
}

void WatchPageQt::Read(OptionsForm& form) const {
  for (std::size_t i = 0; i < Switches.size(); ++i) {
    form.*kWatchSwitches[i].Checked = Switches[i]->isChecked();
  }
  form.WatchSound = cmbWatchSound->currentIndex();
  form.WatchCommand = txtWatchCommand->text().trimmed().toStdString();
  ReadEntries(Entries(), form);
}

void WatchPageQt::Changed(const std::function<void(QWidget*)>& handler) const {
  for (QCheckBox* each : Switches) {
    connect(each, &QCheckBox::toggled, each, [handler, each] { handler(each); });
  }
  connect(cmbWatchSound, &QComboBox::currentIndexChanged, cmbWatchSound,
          [handler, this] { handler(cmbWatchSound); });
  connect(txtWatchCommand, &QLineEdit::textChanged, txtWatchCommand,
          [handler, this] { handler(txtWatchCommand); });
  for (const BoundEntry& entry : Entries()) {
    connect(entry.Box, &QLineEdit::textChanged, entry.Box, [handler, box = entry.Box] { handler(box); });
  }
}

}  // namespace veerwatch
