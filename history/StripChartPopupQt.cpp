#include "history/StripChartPopupQt.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <iterator>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

QString SpanText(int seconds) {
  constexpr int kMinute = 60;
  constexpr int kHour = 3600;
  if (seconds < kHour) {
    return TrQ("%1 minutes").arg(seconds / kMinute);
  }
  return seconds == kHour ? TrQ("1 hour") : TrQ("%1 hours").arg(seconds / kHour);
}

QLabel* Heading(const char* text, QWidget* parent) {
  auto* label = new QLabel(TrQ(text), parent);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

QIcon Swatch(const QColor& colour, int size, qreal ratio) {
  QPixmap pixmap(QSize(size * 2, size) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(QRectF(0.0, 0.0, size * 2.0, size), 3.0, 3.0);
  return {pixmap};
}

}  // namespace

StripChartPopupQt::StripChartPopupQt(QWidget* chart, const std::vector<QString>& traces,
                                     const std::vector<ScaleRow>& scales, Commands commands)
    : QFrame(chart, Qt::Popup),
      m_commands(std::move(commands)),
      m_span(new QComboBox(this)),
      m_marks(new QCheckBox(this)) {
  setObjectName(QStringLiteral("frmConfigPopup"));
  setFrameShape(QFrame::StyledPanel);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Heading(TrMark("Traces"), this));
  auto* traceGrid = new QGridLayout;
  traceGrid->setVerticalSpacing(2);
  column->addLayout(traceGrid);
  MakeTraces(traces, traceGrid);

  auto* spanRow = new QHBoxLayout;
  column->addSpacing(6);
  column->addLayout(spanRow);
  auto* span = Heading(TrMark("&Visible Time"), this);
  span->setBuddy(m_span);
  spanRow->addWidget(span, 1);
  spanRow->addWidget(m_span);
  m_span->setObjectName(QStringLiteral("cmbSpan"));
  for (const int seconds : kSpans) {
    m_span->addItem(SpanText(seconds), seconds);
  }
  m_marks->setObjectName(QStringLiteral("chkMarks"));
  m_marks->setText(TrQ("Turns and held angles as &marks"));
  connect(m_marks, &QCheckBox::toggled, this, [this] { Take(); });
  column->addWidget(m_marks);
  connect(m_span, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { Take(); });

  column->addSpacing(6);
  column->addWidget(Heading(TrMark("Scales"), this));
  auto* scaleGrid = new QGridLayout;
  scaleGrid->setVerticalSpacing(2);
  column->addLayout(scaleGrid);
  MakeScales(scales, scaleGrid);

  column->addSpacing(6);
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  const auto button = [this, row](const char* name, const char* text, std::function<void()>& command) {
    auto* made = new QPushButton(TrQ(text), this);
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, [&command] { command(); });
    row->addWidget(made);
  };
  button("cmdSavePicture", TrMark("Save &picture..."), m_commands.SavePicture);
  button("cmdSaveData", TrMark("Save &data..."), m_commands.SaveData);
  button("cmdDefaults", TrMark("De&faults"), m_commands.Defaults);
}

void StripChartPopupQt::MakeTraces(const std::vector<QString>& traces, QGridLayout* grid) {
  constexpr int kRows = 5;
  for (std::size_t i = 0; i < traces.size(); ++i) {
    const int number = static_cast<int>(i);
    auto* shown = new QCheckBox(traces[i], this);
    shown->setObjectName(QStringLiteral("chkTrace(%1)").arg(number + 1));
    connect(shown, &QCheckBox::toggled, this, [this] { Take(); });
    auto* colour = new QToolButton(this);
    colour->setObjectName(QStringLiteral("cmdColour(%1)").arg(number + 1));
    colour->setAccessibleName(TrQ("Colour of %1").arg(traces[i]));
    colour->setToolTip(colour->accessibleName());
    connect(colour, &QToolButton::clicked, this, [this, number] { m_commands.PickColour(number); });
    const int columns = 2 * (number / kRows);
    grid->addWidget(colour, number % kRows, columns);
    grid->addWidget(shown, number % kRows, columns + 1);
    grid->setColumnStretch(columns + 1, 1);
    m_shown.push_back(shown);
    m_colours.push_back(colour);
  }
}

void StripChartPopupQt::MakeScales(const std::vector<ScaleRow>& scales, QGridLayout* grid) {
  for (std::size_t i = 0; i < scales.size(); ++i) {
    const int row = static_cast<int>(i);
    const auto name = [row](const char* stem) {
      return QStringLiteral("%1(%2)").arg(QLatin1String(stem)).arg(row + 1);
    };
    const auto edge = [&](const char* stem, const QString& what) {
      auto* box = new QDoubleSpinBox(this);
      box->setObjectName(name(stem));
      box->setAccessibleName(what.arg(scales[i].Name));
      box->setKeyboardTracking(false);
      const bool linear = scales[i].Kind == ScaleKind::Linear;
      box->setDecimals(linear ? 1 : 0);
      box->setSingleStep(linear ? 1.0 : 10.0);
      if (linear) {
        box->setRange(static_cast<double>(kLeastEdge), static_cast<double>(kMostEdge));
      } else {
        box->setRange(-360.0, 360.0);
      }
      connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this] { Take(); });
      return box;
    };
    Scale scale{new QCheckBox(TrQ("Automatic"), this), edge("txtScaleLow", TrQ("%1 lower edge")),
                edge("txtScaleHigh", TrQ("%1 upper edge"))};
    scale.Automatic->setObjectName(name("chkAutomatic"));
    scale.Automatic->setAccessibleName(TrQ("%1 automatic scale").arg(scales[i].Name));
    connect(scale.Automatic, &QCheckBox::toggled, this, [this] { Take(); });
    grid->addWidget(new QLabel(scales[i].Name, this), row, 0);
    grid->addWidget(scale.Automatic, row, 1);
    grid->addWidget(scale.Low, row, 2);
    grid->addWidget(new QLabel(TrQ("to"), this), row, 3);
    grid->addWidget(scale.High, row, 4);
    grid->setColumnStretch(0, 1);
    m_scales.push_back(scale);
  }
}

void StripChartPopupQt::Show(const TraceSettings& settings, const std::vector<QColor>& colours) {
  m_showing = true;
  m_settings = settings;
  const int size = fontMetrics().ascent();
  for (std::size_t i = 0; i < m_shown.size(); ++i) {
    m_shown[i]->setChecked(settings.Traces[i].Shown);
    m_colours[i]->setIconSize(QSize(size * 2, size));
    m_colours[i]->setIcon(Swatch(colours[i], size, devicePixelRatioF()));
  }
  m_span->setCurrentIndex(m_span->findData(settings.Span));
  m_marks->setChecked(settings.Marks);
  for (std::size_t i = 0; i < m_scales.size(); ++i) {
    const ScaleChoice& choice = settings.Scales[i];
    const Scale& scale = m_scales[i];
    scale.Automatic->setChecked(choice.Automatic);
    scale.Low->setEnabled(!choice.Automatic);
    scale.High->setEnabled(!choice.Automatic);
    scale.Low->setValue(static_cast<double>(choice.Low));
    scale.High->setValue(static_cast<double>(choice.High));
  }
  m_showing = false;
}

void StripChartPopupQt::Take() {
  if (m_showing) {
    return;
  }
  for (std::size_t i = 0; i < m_shown.size(); ++i) {
    m_settings.Traces[i].Shown = m_shown[i]->isChecked();
  }
  m_settings.Span = m_span->currentData().toInt();
  m_settings.Marks = m_marks->isChecked();
  for (std::size_t i = 0; i < m_scales.size(); ++i) {
    ScaleChoice& choice = m_settings.Scales[i];
    const Scale& scale = m_scales[i];
    choice.Automatic = scale.Automatic->isChecked();
    scale.Low->setEnabled(!choice.Automatic);
    scale.High->setEnabled(!choice.Automatic);
    const auto low = static_cast<float>(scale.Low->value());
    const auto high = static_cast<float>(scale.High->value());
    // Edges that make no scale wait until the other one is typed.
    if (ScaleFits(low, high)) {
      choice.Low = low;
      choice.High = high;
    }
  }
  m_commands.Changed(m_settings);
}

}  // namespace veerwatch
