#include "app/frmManual.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/ColoursQt.h"
#include "platform/LanguageQt.h"

// Outside of namespaces, as Qt's macro needs it.
static void LoadPages() { Q_INIT_RESOURCE(manual); }

namespace veerwatch {

namespace {

constexpr QSize kUsualSize(860, 720);
constexpr QSize kSmallestSize(320, 240);
constexpr double kScreenShare = 0.9;

QUrl AddressOf(const std::string& page) {
  return QUrl(QStringLiteral("qrc:/docs/manual/") + QString::fromStdString(page));
}

bool IsThere(const QUrl& page) {
  return page.scheme() == QLatin1String("qrc") && QFile::exists(QLatin1Char(':') + page.path());
}

/// Whether most of a picture is light.
bool IsLight(const QImage& image) {
  constexpr int kFew = 32;
  const QImage small = image.scaled(kFew, kFew, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  double sum = 0.0;
  for (int y = 0; y < kFew; ++y) {
    for (int x = 0; x < kFew; ++x) {
      sum += static_cast<double>(small.pixelColor(x, y).lightnessF());
    }
  }
  return sum > 0.5 * kFew * kFew;
}

/// At night every picture is red, and a light one is turned over, as it would light up the cabin.
QImage Shaded(QImage image) {
  if (!image.isNull() && IsLight(image)) {
    image.invertPixels();
  }
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixelColor(x, y, NightShade(image.pixelColor(x, y)));
    }
  }
  return image;
}

}  // namespace

// ManualPagesQt

ManualPagesQt::ManualPagesQt(QWidget* parent) : QTextBrowser(parent) {
  setObjectName(QStringLiteral("txtManual"));
  setOpenLinks(false);
  // A bar that comes and goes would change the room for the pictures.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  document()->setDocumentMargin(fontMetrics().height());
}

void ManualPagesQt::Show(const QUrl& page, const QString& slug) {
  setSource(page, QTextDocument::MarkdownResource);
  // The page is laid out when the window has its size.
  QTimer::singleShot(0, this, [this, slug] { ScrollTo(slug); });
}

void ManualPagesQt::ScrollTo(const QString& slug) {
  for (QTextBlock block = document()->begin(); !slug.isEmpty() && block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0 &&
        HeadingSlug(block.text().toStdString()) == slug.toStdString()) {
      const QTextCursor cursor(block);
      setTextCursor(cursor);
      verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
      return;
    }
  }
}

QVariant ManualPagesQt::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) {
    return QTextBrowser::loadResource(type, name);
  }
  QImage image(QLatin1Char(':') + source().resolved(name).path());
  m_pictureWidth = PictureRoom();
  const int width = std::max(1, m_pictureWidth);
  if (image.width() > width) {
    const qreal ratio = devicePixelRatioF();
    image = image.scaledToWidth(std::min(image.width(), qRound(width * ratio)), Qt::SmoothTransformation);
    image.setDevicePixelRatio(static_cast<qreal>(image.width()) / width);
  }
  return IsNight(palette().color(QPalette::Window)) ? Shaded(image) : image;
}

int ManualPagesQt::PictureRoom() const {
  constexpr int kBeside = 8;  // [px]
  return viewport()->width() - 2 * static_cast<int>(document()->documentMargin()) - kBeside;
}

void ManualPagesQt::ShowAnew() {
  const int place = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(place);
}

void ManualPagesQt::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  const int width = PictureRoom();
  if (m_pictureWidth != 0 && width != m_pictureWidth) {
    m_pictureWidth = 0;
    QTimer::singleShot(0, this, [this] { ShowAnew(); });
  }
}

void ManualPagesQt::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && source().isValid()) {
    ShowAnew();
  }
}

// frmManual

frmManual::frmManual(const std::function<void()>& inBrowser)
    : cmdBack(new QPushButton(TrQ("&Back"), this)),
      cmdContents(new QPushButton(TrQ("&Contents"), this)),
      cmdBrowser(new QPushButton(TrQ("In the Br&owser"), this)),
      lblOutside(new QLabel(this)),
      txtManual(new ManualPagesQt(this)) {
  LoadPages();
  setObjectName(QStringLiteral("frmManual"));
  setWindowTitle(TrQ("Veerwatch - Manual"));
  setAttribute(Qt::WA_QuitOnClose, false);
  setMinimumSize(kSmallestSize);
  cmdBack->setObjectName(QStringLiteral("cmdBack"));
  cmdBack->setToolTip(TrQ("The page before (Alt+Left)"));
  cmdContents->setObjectName(QStringLiteral("cmdContents"));
  cmdContents->setToolTip(TrQ("The manual's first page"));
  cmdBrowser->setObjectName(QStringLiteral("cmdBrowser"));
  cmdBrowser->setToolTip(TrQ("The whole manual in the desktop's browser"));
  cmdBrowser->setVisible(inBrowser != nullptr);
  lblOutside->setObjectName(QStringLiteral("lblOutside"));
  lblOutside->setTextFormat(Qt::PlainText);
  lblOutside->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  lblOutside->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* row = new QHBoxLayout;
  row->addWidget(cmdBack);
  row->addWidget(cmdContents);
  row->addWidget(lblOutside, 1);
  row->addWidget(cmdBrowser);
  auto* all = new QVBoxLayout(this);
  all->addLayout(row);
  all->addWidget(txtManual, 1);
  cmdBack->setEnabled(false);
  connect(txtManual, &QTextBrowser::backwardAvailable, cmdBack, &QPushButton::setEnabled);
  connect(cmdBack, &QPushButton::clicked, txtManual, &QTextBrowser::backward);
  connect(cmdContents, &QPushButton::clicked, this,
          [this] { txtManual->Show(AddressOf("README.md"), QString()); });
  if (inBrowser) {
    connect(cmdBrowser, &QPushButton::clicked, this, inBrowser);
  }
  connect(txtManual, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { Follow(link); });
  const QSize room = screen() != nullptr ? screen()->availableSize() * kScreenShare : kUsualSize;
  resize(kUsualSize.boundedTo(room));
}

void frmManual::Open(const ManualPlace& place) {
  lblOutside->clear();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  txtManual->setFocus();
  txtManual->Show(AddressOf(place.Page), QString::fromStdString(HeadingSlug(place.Heading)));
}

void frmManual::Follow(const QUrl& link) const {
  QUrl page = txtManual->source().resolved(link);
  const QString slug = page.fragment();
  page.setFragment(QString());
  if (IsThere(page)) {
    lblOutside->clear();
    txtManual->Show(page, slug);
  } else {
    lblOutside->setText(TrQ("Not in the manual: %1").arg(link.toString()));
  }
}

}  // namespace veerwatch
