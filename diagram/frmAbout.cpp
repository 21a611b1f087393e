#include "diagram/frmAbout.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QImage>
#include <QPushButton>
#include <string>

#include "diagram/AboutText.h"
#include "platform/ColoursQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kMargin = 28;
constexpr int kSpacing = 18;
constexpr int kIconSize = 96;
constexpr int kTitleHeight = 40;  // [px]
constexpr int kTextHeight = 17;
constexpr QSize kButtonSize(150, 48);

QLabel* Label(const char* name, std::string text, int pixels, QWidget* parent) {
  for (char& c : text) {
    c = c == '\r' ? '\n' : c;
  }
  auto* label = new QLabel(QString::fromStdString(text), parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QFont letters = label->font();
  letters.setPixelSize(pixels);
  label->setFont(letters);
  return label;
}

}  // namespace

frmAbout::frmAbout(std::string_view title, std::string_view version, const QIcon& icon) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QString::fromStdString(AboutCaption(title)));
  setWindowIcon(icon);
  setAttribute(Qt::WA_QuitOnClose, false);

  picIcon = new QLabel(this);
  picIcon->setObjectName(QStringLiteral("picIcon"));
  picIcon->setAccessibleName(TrQ("Icon of the program"));
  ShowIcon();
  auto* lblTitle = Label("lblTitle", std::string(title), kTitleHeight, this);
  auto* line = new QFrame(this);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  auto* cmdOk = new QPushButton(TrQ("OK"), this);
  cmdOk->setObjectName(QStringLiteral("cmdOk"));
  cmdOk->setDefault(true);
  cmdOk->setMinimumSize(kButtonSize);
  QFont letters = cmdOk->font();
  letters.setPixelSize(kTextHeight);
  cmdOk->setFont(letters);
  connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  grid->setVerticalSpacing(kSpacing);
  grid->addWidget(picIcon, 0, 0, 2, 1, Qt::AlignTop);
  grid->addWidget(lblTitle, 0, 1);
  grid->addWidget(Label("lblDescription", AboutDescription(version), kTextHeight, this), 1, 1);
  grid->addWidget(line, 2, 0, 1, 2);
  grid->addWidget(Label("lblDisclaimer", AboutDisclaimer(), kTextHeight, this), 3, 1);
  grid->addWidget(cmdOk, 4, 1, Qt::AlignRight);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  cmdOk->setFocus();
}

void frmAbout::ShowIcon() {
  QImage image = windowIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()).toImage();
  const QColor window = palette().color(QPalette::Window);
  for (int y = 0; y < image.height() && IsNight(window); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixelColor(x, y, NightShade(image.pixelColor(x, y)));
    }
  }
  picIcon->setPixmap(QPixmap::fromImage(image));
}

void frmAbout::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    ShowIcon();
  }
}

}  // namespace veerwatch
