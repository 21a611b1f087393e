#include "options/RecommendedListQt.h"

#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include "options/OptionControlsQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

RecommendedListQt::RecommendedListQt(QWidget* parent) : QScrollArea(parent) {
  setObjectName(QStringLiteral("lstRecommended"));
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);
  auto* page = new QWidget(this);
  auto* rows = new QVBoxLayout(page);
  const int indent =
      style()->pixelMetric(QStyle::PM_IndicatorWidth) + style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
  for (std::size_t i = 0; i < kRecommendationCount; ++i) {
    const Recommendation& each = Recommendations()[i];
    m_ticks.at(i) = new QCheckBox(page);
    NameControl(*m_ticks.at(i), ("chkRecommended" + std::to_string(i + 1)).c_str(), each.Reason);
    QFont bold = m_ticks.at(i)->font();
    bold.setBold(true);
    m_ticks.at(i)->setFont(bold);
    m_reasons.at(i) = new QLabel(TrQ(each.Reason), page);
    m_reasons.at(i)->setTextFormat(Qt::PlainText);
    m_reasons.at(i)->setWordWrap(true);
    m_reasons.at(i)->setIndent(indent);
    rows->addWidget(m_ticks.at(i));
    rows->addWidget(m_reasons.at(i));
  }
  rows->addStretch(1);
  setWidget(page);
}

void RecommendedListQt::Show(const RecommendedSeen& seen, bool tickAll) {
  for (std::size_t i = 0; i < kRecommendationCount; ++i) {
    const Recommendation& each = Recommendations()[i];
    const bool holds = each.Holds(seen);
    const std::string now = each.Now(seen);
    const std::string text = holds ? Filled(Tr("%1: %2  (set already)"), {Tr(each.What), now})
                                   : Filled(Tr("%1: %2  (now %3)"), {Tr(each.What), Tr(each.Better), now});
    m_ticks.at(i)->setText(QString::fromStdString(text));
    m_ticks.at(i)->setChecked(holds || tickAll);
    m_ticks.at(i)->setEnabled(!holds);
  }
}

void RecommendedListQt::TickAll() {
  for (QCheckBox* tick : m_ticks) {
    tick->setChecked(true);
  }
}

RecommendedTicks RecommendedListQt::Ticks() const {
  RecommendedTicks ticks{};
  for (std::size_t i = 0; i < kRecommendationCount; ++i) {
    ticks.at(i) = m_ticks.at(i)->isChecked();
  }
  return ticks;
}

void RecommendedListQt::Changed(const std::function<void()>& handler) const {
  for (const QCheckBox* tick : m_ticks) {
    connect(tick, &QCheckBox::toggled, this, [handler] { handler(); });
  }
}

QSize RecommendedListQt::sizeHint() const {
  constexpr int kCharacters = 72;
  const int width = fontMetrics().averageCharWidth() * kCharacters + verticalScrollBar()->sizeHint().width();
  return {width, widget()->heightForWidth(width)};
}

}  // namespace veerwatch
