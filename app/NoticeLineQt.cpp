#include "app/NoticeLineQt.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace veerwatch {

namespace {

constexpr int kMargin = 12;  // [px], as the cards have

}  // namespace

NoticeLineQt::NoticeLineQt(QWidget* parent)
    : QFrame(parent),
      m_lblNotice(new CaptionQt(QStringLiteral("lblNotice"), QString(), this)),
      m_cmdNoticeHide(new QToolButton(this)) {
  setObjectName(QStringLiteral("NoticeLine"));
  setAutoFillBackground(true);
  m_lblNotice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  m_lblNotice->setContentsMargins(0, 3, 0, 3);
  m_cmdNoticeHide->setObjectName(QStringLiteral("cmdNoticeHide"));
  m_cmdNoticeHide->setText(QStringLiteral("Hide"));
  m_cmdNoticeHide->setToolTip(QStringLiteral("Hide this line until there is something new to say"));
  m_cmdNoticeHide->setAutoRaise(true);
  m_cmdNoticeHide->setFocusPolicy(Qt::TabFocus);
  connect(m_cmdNoticeHide, &QToolButton::clicked, this, [this] {
    m_notices.Dismiss();
    ShowLine();
  });
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, 0, kMargin, 0);
  row->addWidget(m_lblNotice, 1);
  row->addWidget(m_cmdNoticeHide);
  hide();
}

void NoticeLineQt::Set(AlarmKind kind, const std::string& text) {
  m_notices.Set(kind, text);
  ShowLine();
}

void NoticeLineQt::Theme(const ThemeQt& theme) { m_lblNotice->Colours(theme.Text, theme.Dimmed); }

void NoticeLineQt::TextHeight(int pixels) {
  QFont letters = font();
  letters.setPixelSize(pixels);
  m_lblNotice->setFont(letters);
  m_cmdNoticeHide->setFont(letters);
}

void NoticeLineQt::ShowLine() {
  const QString line = QString::fromStdString(m_notices.Line());
  if (line == m_lblNotice->text()) {
    return;
  }
  QStringList all;
  for (const std::string& text : m_notices.Texts()) {
    all.append(QString::fromStdString(text));
  }
  m_lblNotice->setText(line);
  m_lblNotice->setToolTip(all.join(QLatin1Char('\n')));
  setVisible(!line.isEmpty());
}

}  // namespace veerwatch
