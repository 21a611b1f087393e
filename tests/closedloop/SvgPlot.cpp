#include "tests/closedloop/SvgPlot.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::string Number(double value) { return FormatNumber(static_cast<float>(value), "0.0"); }

/// An SVG text as it grows.
class Sheet {
 public:
  void Box(double x, double y, double width, double height, std::string_view colour) {
    m_body.append("<rect x='").append(Number(x)).append("' y='").append(Number(y));
    m_body.append("' width='").append(Number(width)).append("' height='").append(Number(height));
    m_body.append("' fill='").append(colour).append("'/>\n");
  }
  /// `anchor`: start, middle or end.
  void Text(double x, double y, std::string_view anchor, std::string_view text, std::string_view style = {}) {
    m_body.append("<text x='").append(Number(x)).append("' y='").append(Number(y));
    m_body.append("' text-anchor='").append(anchor).append("' ").append(style).append(">");
    m_body.append(text).append("</text>\n");
  }
  void Line(const std::string& points, std::string_view colour, double width) {
    m_body.append("<polyline fill='none' points='").append(points).append("' stroke='").append(colour);
    m_body.append("' stroke-width='").append(Number(width)).append("'/>\n");
  }
  std::string Whole(double width, double height) const {
    std::string text("<svg xmlns='http://www.w3.org/2000/svg' width='");
    text.append(Number(width)).append("' height='").append(Number(height)).append("' viewBox='0 0 ");
    text.append(Number(width)).append(" ").append(Number(height));
    text.append("' font-family='sans-serif' font-size='11' fill='#222222'>\n");
    text.append("<rect width='100%' height='100%' fill='#ffffff'/>\n");
    return text.append(m_body).append("</svg>\n");
  }

 private:
  std::string m_body;
};

std::string Point(double x, double y) { return Number(x).append(",").append(Number(y)).append(" "); }

constexpr std::string_view kBold = "font-weight='bold' font-size='12'";

}  // namespace

std::string SvgOf(const MapPlot& plot) {
  constexpr double kCellWidth = 34.0;
  constexpr double kCellHeight = 20.0;
  constexpr double kLeft = 46.0;
  constexpr double kTop = 42.0;
  constexpr double kGap = 22.0;
  constexpr double kKeyWidth = 190.0;
  const double wide = static_cast<double>(plot.Along.size()) * kCellWidth;
  const double high = static_cast<double>(plot.Down.size()) * kCellHeight;
  Sheet sheet;
  sheet.Text(4.0, kTop - 8.0, "start", plot.DownName);
  for (std::size_t row = 0; row < plot.Down.size(); ++row) {
    sheet.Text(kLeft - 6.0, kTop + (static_cast<double>(row) + 0.7) * kCellHeight, "end", plot.Down[row]);
  }
  double x = kLeft;
  for (const MapPanel& panel : plot.Panels) {
    sheet.Text(x + wide / 2.0, 18.0, "middle", panel.Title, kBold);
    for (std::size_t column = 0; column < plot.Along.size(); ++column) {
      const double left = x + static_cast<double>(column) * kCellWidth;
      const double middle = left + kCellWidth / 2.0;
      sheet.Text(middle, kTop + high + 15.0, "middle", plot.Along[column]);
      for (std::size_t row = 0; row < plot.Down.size(); ++row) {
        const MapCell& cell = panel.Cells[row][column];
        const double top = kTop + static_cast<double>(row) * kCellHeight;
        sheet.Box(left, top, kCellWidth - 1.0, kCellHeight - 1.0, cell.Colour);
        sheet.Text(middle, top + 0.7 * kCellHeight, "middle", cell.Text);
      }
    }
    sheet.Text(x + wide / 2.0, kTop + high + 32.0, "middle", plot.AlongName);
    x += wide + kGap;
  }
  const double keyTop = kTop + high + 46.0;
  double key = kLeft;
  for (const MapCell& cell : plot.Key) {
    sheet.Box(key, keyTop, 14.0, 12.0, cell.Colour);
    sheet.Text(key + 20.0, keyTop + 10.0, "start", cell.Text);
    key += kKeyWidth;
  }
  return sheet.Whole(std::max(x, key), keyTop + 22.0);
}

std::string SvgOf(const std::vector<CurvePlot>& plots) {
  constexpr double kWidth = 640.0;
  constexpr double kHeight = 180.0;
  constexpr double kLeft = 46.0;
  constexpr double kTop = 30.0;
  constexpr double kBelow = 44.0;
  constexpr double kKeyWidth = 90.0;
  constexpr std::size_t kSecondsPerMark = 60;
  Sheet sheet;
  double top = kTop;
  for (const CurvePlot& plot : plots) {
    const std::size_t seconds = plot.Curves.front().Values.size();
    const auto across = [&](std::size_t second) {
      return kLeft + kWidth * static_cast<double>(second) / static_cast<double>(seconds - 1);
    };
    const auto down = [&](double value) {
      const double inside = std::clamp(value, plot.Least, plot.Most);
      return top + kHeight * (plot.Most - inside) / (plot.Most - plot.Least);
    };
    sheet.Text(kLeft, top - 10.0, "start", plot.Title, kBold);
    const auto steps = static_cast<int>(std::lround((plot.Most - plot.Least) / plot.Step));
    for (int step = 0; step <= steps; ++step) {
      const double value = plot.Least + plot.Step * step;
      sheet.Line(Point(kLeft, down(value)) + Point(kLeft + kWidth, down(value)),
                 value == 0.0 ? "#888888" : "#dddddd", 1.0);
      sheet.Text(kLeft - 6.0, down(value) + 4.0, "end", FormatNumber(static_cast<float>(value), "0"));
    }
    for (std::size_t second = 0; second < seconds; second += kSecondsPerMark) {
      sheet.Line(Point(across(second), top) + Point(across(second), top + kHeight), "#dddddd", 1.0);
      sheet.Text(across(second), top + kHeight + 15.0, "middle", std::to_string(second) + " s");
    }
    double key = kLeft + kWidth - kKeyWidth * static_cast<double>(plot.Curves.size());
    for (const Curve& curve : plot.Curves) {
      std::string points;
      for (std::size_t second = 0; second < seconds; ++second) {
        points += Point(across(second), down(curve.Values[second]));
      }
      sheet.Line(points, curve.Colour, 1.6);
      sheet.Box(key, top - 20.0, 14.0, 12.0, curve.Colour);
      sheet.Text(key + 20.0, top - 10.0, "start", curve.Name);
      key += kKeyWidth;
    }
    top += kHeight + kTop + kBelow;
  }
  return sheet.Whole(kLeft + kWidth + 20.0, top - kTop);
}

}  // namespace veerwatch
