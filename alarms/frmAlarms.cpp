#include "alarms/frmAlarms.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QScrollArea>
#include <utility>

#include "alarms/AlarmColoursQt.h"
#include "draw/DrawQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kTextHeight = 17;  // [px]
constexpr int kTitleHeight = 26;
constexpr int kSign = 40;
constexpr int kMargin = 18;
constexpr int kSpacing = 12;
constexpr QSize kUsualSize(760, 460);
constexpr int kButtonHeight = 46;

QLabel* Label(int height, QFont::Weight weight, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setFont(Letters(label->font(), height, weight));
  return label;
}

void ShowText(QLabel& label, const QString& text) {
  if (label.text() != text) {
    label.setText(text);
  }
}

}  // namespace

/// A sign with the text beside it and the lines under that.
class frmAlarms::BlockQt final : public QFrame {
 public:
  explicit BlockQt(QWidget* parent)
      : QFrame(parent),
        m_sign(new AlarmSignQt(kSign, this)),
        m_text(Label(kTitleHeight, QFont::Bold, this)),
        m_lines(Label(kTextHeight, QFont::Normal, this)) {
    m_text->setObjectName(QStringLiteral("lblAlarm"));
    m_lines->setObjectName(QStringLiteral("lblAlarmLines"));
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(m_text);
    words->addWidget(m_lines);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, kSpacing);
    row->setSpacing(kSpacing);
    row->addWidget(m_sign, 0, Qt::AlignTop);
    row->addLayout(words, 1);
  }

  void Show(const Block& block) {
    m_sign->Show(block.Rank);
    ShowText(*m_text, block.Text);
    ShowText(*m_lines, block.Lines);
  }

 private:
  AlarmSignQt* m_sign;
  QLabel* m_text;
  QLabel* m_lines;
};

frmAlarms::frmAlarms(Parts parts, QWidget* main) : QDialog(main), m_parts(std::move(parts)) {
  setObjectName(QStringLiteral("frmAlarms"));
  setWindowTitle(TrQ("Veerwatch - Alarms"));
  setModal(false);
  setAttribute(Qt::WA_QuitOnClose, false);
  auto* content = new QWidget(this);
  m_list = new QVBoxLayout(content);
  m_list->setContentsMargins(0, 0, 0, 0);
  lblNothing = Label(kTitleHeight, QFont::Normal, content);
  lblNothing->setText(TrQ("All is well"));
  m_list->addWidget(lblNothing);
  m_list->addStretch(1);
  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(content);
  lblWhy = Label(kTextHeight, QFont::Normal, this);
  lblWhy->setObjectName(QStringLiteral("lblWhy"));
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kSpacing);
  all->addWidget(scroll, 1);
  all->addWidget(lblWhy);
  MakeButtons(*all);
  resize(kUsualSize);
}

void frmAlarms::MakeButtons(QVBoxLayout& all) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpacing);
  const auto button = [this, row](const char* name, const char* text, const char* tip) {
    auto* made = new QPushButton(TrQ(text), this);
    made->setObjectName(QLatin1String(name));
    made->setToolTip(TrQ(tip));
    made->setMinimumHeight(kButtonHeight);
    made->setAutoDefault(false);
    made->setFont(Letters(made->font(), kTextHeight));
    made->setMinimumWidth(made->sizeHint().width() + kMargin);
    row->addWidget(made);
    return made;
  };
  cmdAcknowledge =
      button("cmdAcknowledge", TrMark("&Acknowledge"), TrMark("The sound stops, the lines stay (Space)"));
  cmdMute = button("cmdMute", TrMark("&Mute 10 min"), TrMark("Nothing is heard for ten minutes"));
  cmdMute->setCheckable(true);
  cmdNoticeHide = button("cmdNoticeHide", TrMark("&Hide Notice"),
                         TrMark("Hide the first notice until it says something new"));
  row->addStretch(1);
  cmdClose = button("cmdClose", TrMark("&Close"), TrMark("Close the list; what stands stays in the line"));
  connect(cmdAcknowledge, &QPushButton::clicked, this, [this] { m_parts.Acknowledge(); });
  connect(cmdMute, &QPushButton::clicked, this, [this](bool checked) { m_parts.Mute(checked); });
  connect(cmdNoticeHide, &QPushButton::clicked, this, [this] { m_parts.HideNotice(); });
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::hide);
  all.addLayout(row);
}

void frmAlarms::Show(const std::vector<Block>& blocks, const QString& why) {
  while (m_blocks.size() < blocks.size()) {
    m_blocks.push_back(new BlockQt(lblNothing->parentWidget()));
    // In front of the stretch, which is the last.
    m_list->insertWidget(m_list->count() - 1, m_blocks.back());
  }
  for (std::size_t i = 0; i < m_blocks.size(); ++i) {
    m_blocks[i]->setVisible(i < blocks.size());
    if (i < blocks.size()) {
      m_blocks[i]->Show(blocks[i]);
    }
  }
  lblNothing->setVisible(blocks.empty());
  ShowText(*lblWhy, why.isEmpty() ? why : TrQ("Why? %1").arg(why));
  lblWhy->setVisible(!why.isEmpty());
}

void frmAlarms::ShowButtons(bool toAcknowledge, bool muted, bool notices) {
  cmdAcknowledge->setEnabled(toAcknowledge);
  cmdMute->setChecked(muted);
  cmdNoticeHide->setVisible(notices);
}

}  // namespace veerwatch
