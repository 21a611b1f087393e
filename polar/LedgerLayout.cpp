#include "polar/LedgerLayout.h"

#include <algorithm>

#include "platform/Language.h"

namespace veerwatch {

namespace {

// In heights of the text.
constexpr double kLine = 1.5;
constexpr double kRowLine = 1.7;
constexpr double kTitle = 2.0;
constexpr double kButton = 2.5;
constexpr double kMargin = 0.8;
constexpr double kGap = 0.6;
constexpr double kColumnGap = 1.4;
constexpr double kSample = 1.1;

constexpr std::size_t kRows = 6;

/// Line and column of each figure: the boat and its legs at the left, the target at the right, the waypoint
/// below them.
struct Cell {
  int Line;
  int Column;
};
constexpr std::array<Cell, 9> kCells{
    {{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}, {3, 0}, {3, 1}, {4, 0}, {4, 1}}};
constexpr std::size_t kTime = 8;

/// The widest of some texts, each 0 of which stands for any digit.
class Widest {
 public:
  Widest(const TextMeasure& measure, double height) : m_measure(measure), m_height(height) {
    for (char digit = '1'; digit <= '9'; ++digit) {
      if (Width(std::string(1, digit)) > Width(std::string(1, m_digit))) {
        m_digit = digit;
      }
    }
  }
  double Width(const std::string& text) const { return m_measure.Width(text, m_height); }
  double Of(const std::vector<std::string>& patterns) const {
    double widest = 0.0;
    for (std::string text : patterns) {
      std::replace(text.begin(), text.end(), '0', m_digit);
      widest = std::max(widest, Width(text));
    }
    return widest;
  }

 private:
  const TextMeasure& m_measure;
  double m_height;
  char m_digit = '0';
};

struct Column {
  double X;
  double Width;
};

}  // namespace

LedgerTexts MeasureLedger(const LedgerContent& content, double height, bool rows,
                          const TextMeasure& measure) {
  const Widest widest(measure, height);
  LedgerTexts texts;
  texts.Height = height;
  texts.LegValue = widest.Of({"000 (000%)", "000 (00:00)"});
  texts.Value = widest.Of({"000", "000.0", "00:00"});
  texts.Number = widest.Of({"+000", "-000", "00.0"});
  texts.Figures = content.Figures.size();
  texts.Rows = rows;
  for (std::size_t i = 0; i < content.Figures.size(); ++i) {
    const LedgerFigure& figure = content.Figures[i];
    const bool leg =
        figure.Subject == LedgerSubject::StarboardTack || figure.Subject == LedgerSubject::PortTack;
    const bool longTime = i == kTime && figure.Value.find(' ') != std::string::npos;
    if (longTime) {
      texts.LongValue = widest.Of({Filled(Tr("%1 (motor %2)"), {"00:00", "00:00"})});
    }
    double& room = longTime ? texts.LongValue : leg ? texts.LegValue : texts.Value;
    room = std::max(room, widest.Width(figure.Value));
    texts.Caption = std::max(texts.Caption, widest.Width(figure.Heading));
  }
  for (const LedgerRow& row : content.Rows) {
    texts.Label = std::max(texts.Label, widest.Width(row.Label));
    texts.Number = std::max({texts.Number, widest.Width(row.Angle), widest.Width(row.Speed)});
  }
  return texts;
}

LedgerLayout LayLedger(const LedgerTexts& texts) {
  const double unit = texts.Height;
  const double left = texts.Caption + kGap * unit + texts.LegValue;
  const double right = texts.Caption + kGap * unit + texts.Value;
  const double rows = (kSample + kGap) * unit + texts.Label + 2.0 * (kGap * unit + texts.Number);
  const double figures = left + kColumnGap * unit + right;
  const bool longTime = texts.LongValue > 0.0 && texts.Figures > kTime;
  const double time = longTime ? texts.Caption + kGap * unit + texts.LongValue : 0.0;
  const double margin = kMargin * unit;
  const double inner = std::max({figures, texts.Rows ? rows : 0.0, time});

  LedgerLayout layout;
  layout.Text = unit;
  layout.Width = inner + 2.0 * margin;
  layout.Title = {0.0, 0.0, layout.Width, kTitle * unit};
  double y = layout.Title.Height + kGap * unit;

  // What is left over widens the two columns alike.
  const double spare = (inner - figures) / 2.0;
  const std::array<Column, 2> columns{
      {{margin, left + spare}, {margin + left + spare + kColumnGap * unit, right + spare}}};
  int last = 0;
  for (std::size_t i = 0; i < std::min(texts.Figures, kCells.size()); ++i) {
    const bool whole = longTime && i == kTime;
    const Cell cell = whole ? Cell{kCells[i].Line + 1, 0} : kCells[i];
    Column column = columns[static_cast<std::size_t>(cell.Column)];
    column.Width = whole ? inner : column.Width;
    last = std::max(last, cell.Line);
    const double top = y + cell.Line * kLine * unit;
    const double value = column.Width - texts.Caption - kGap * unit;
    layout.Figures.push_back({{column.X, top, texts.Caption, kLine * unit},
                              {column.X + column.Width - value, top, value, kLine * unit}});
  }
  y += (last + 1) * kLine * unit + kGap * unit;

  for (std::size_t row = 0; texts.Rows && row < kRows; ++row) {
    const double height = kRowLine * unit;
    const double speedX = layout.Width - margin - texts.Number;
    const double angleX = speedX - kGap * unit - texts.Number;
    const double labelX = margin + (kSample + kGap) * unit;
    layout.Separators.push_back({{margin, y}, {layout.Width - margin, y}});
    layout.Rows.push_back({{margin, y, kSample * unit, height},
                           {labelX, y, angleX - kGap * unit - labelX, height},
                           {angleX, y, texts.Number, height},
                           {speedX, y, texts.Number, height}});
    y += height;
  }
  y += texts.Rows ? kGap * unit : 0.0;

  const double button = (inner - kGap * unit) / 2.0;
  layout.Steer = {margin, y, button, kButton * unit};
  layout.Tack = {margin + button + kGap * unit, y, button, kButton * unit};
  layout.Height = y + kButton * unit + margin;
  return layout;
}

double LedgerTextHeight(double width, double height) {
  constexpr double kShare = 0.0165;
  constexpr double kLeast = 8.5;
  constexpr double kMost = 18.0;
  return std::clamp(std::min(width, height) * kShare, kLeast, kMost);
}

bool LedgerFits(const LedgerLayout& layout, double width, double height) {
  constexpr double kMostWidth = 0.75;
  constexpr double kMostHeight = 0.6;
  return layout.Width <= kMostWidth * width && layout.Height <= kMostHeight * height;
}

Point LedgerHome(const Box& panel, double width, double height, bool legendInCorners) {
  constexpr double kEdge = 8.0;
  const double x = legendInCorners ? (width - panel.Width) / 2.0 : width - kEdge - panel.Width;
  return KeepInside({x, height - kEdge - panel.Height, panel.Width, panel.Height}, width, height);
}

Box SteerPlace(const PolarGeometry& geometry, const std::vector<PlotLabel>& labels, double width,
               double height) {
  // Shares of the outer radius, the best first.
  constexpr std::array<double, 7> kAhead{0.66, 0.62, 0.7, 0.58, 0.74, 0.54, 0.78};
  const auto at = [&](double ahead) {
    return Box{geometry.CentreX - width / 2.0, geometry.CentreY * (1.0 - ahead) - height / 2.0, width,
               height};
  };
  for (const double ahead : kAhead) {
    const Box box = at(ahead);
    const auto covers = [&box](const PlotLabel& label) { return box.Overlaps(label.Place); };
    if (std::none_of(labels.begin(), labels.end(), covers)) {
      return box;
    }
  }
  return at(kAhead.front());
}

Point KeepInside(const Box& panel, double width, double height) {
  return {std::max(0.0, std::min(panel.X, width - panel.Width)),
          std::max(0.0, std::min(panel.Y, height - panel.Height))};
}

}  // namespace veerwatch
