#include "app/PanelLayout.h"

#include <algorithm>
#include <numeric>

namespace veerwatch {

namespace {

// The size [px] that the proportions are drawn for.
constexpr double kDesignWidth = 1160.0;
constexpr double kDesignHeight = 640.0;
constexpr double kTallDesignWidth = 600.0;
constexpr double kTallDesignHeight = 1240.0;

constexpr double kMargin = 12.0;
constexpr double kPadding = 14.0;
constexpr double kCaptionText = 17.0;
constexpr double kButtonText = 19.0;
constexpr double kLeastText = 6.0;
constexpr double kBanner = 44.0;
/// A banner in a small panel is not lower than this [px], where it takes no more than a tenth of the height.
constexpr double kLeastBanner = 20.0;
constexpr double kMostBannerShare = 0.1;
/// Height of the banner's text, and of a line under the bearing, as shares of theirs.
constexpr double kBannerTextShare = 0.55;
constexpr double kSentShare = 0.17;

// Shares of a card's height.
constexpr double kOptionShare = 40.0;
constexpr double kMeasuredShare = 150.0;
constexpr double kHeldShare = 104.0;
constexpr double kButtonShare = 54.0;
constexpr double kPilotValueShare = 132.0;

/// Share of the height that the cards of the winds take beside the row of instruments.
constexpr double kWindShare = 0.645;
constexpr double kTallWindShare = 0.60;

/// Divides the height of a box from top to bottom, with equal gaps.
class Rows {
 public:
  Rows(const Box& box, double gap, double shares, int rows)
      : m_box(box), m_gap(gap), m_unit((box.Height - gap * (rows - 1)) / shares), m_y(box.Y) {}

  Box Next(double share) {
    const Box row{m_box.X, m_y, m_box.Width, m_unit * share};
    m_y += row.Height + m_gap;
    return row;
  }

 private:
  Box m_box;
  double m_gap;
  double m_unit;
  double m_y;
};

Box Inset(const Box& box, double padding) {
  return {box.X + padding, box.Y + padding, box.Width - 2.0 * padding, box.Height - 2.0 * padding};
}

/// Column `index` of `count` equal ones.
Box Column(const Box& row, int index, int count, double gap) {
  const double width = (row.Width - gap * (count - 1)) / count;
  return {row.X + index * (width + gap), row.Y, width, row.Height};
}

PanelLayout::Readout ReadoutIn(const Box& box, double captionText) {
  const double caption = std::min(box.Height * 0.4, captionText * 1.5);
  return {{box.X, box.Y, box.Width, caption}, {box.X, box.Y + caption, box.Width, box.Height - caption}};
}

class Designer {
 public:
  Designer(double width, double height, bool tall)
      : m_scale(std::min(width / (tall ? kTallDesignWidth : kDesignWidth),
                         height / (tall ? kTallDesignHeight : kDesignHeight))) {}

  double Scaled(double length) const { return m_scale * length; }
  double Text(double height) const { return std::max(kLeastText, Scaled(height)); }

  PanelLayout::Wind Wind(const Box& card) const {
    Rows rows(Inset(card, Scaled(kPadding)), Scaled(kMargin),
              kOptionShare + kMeasuredShare + kHeldShare + kButtonShare, 4);
    PanelLayout::Wind wind;
    wind.Card = card;
    wind.Option = rows.Next(kOptionShare);
    const Box measured = rows.Next(kMeasuredShare);
    wind.Angle = ReadoutIn(Left(measured), Text(kCaptionText));
    wind.Speed = ReadoutIn(Right(measured), Text(kCaptionText));
    const Box held = rows.Next(kHeldShare);
    wind.Desired = ReadoutIn(Left(held), Text(kCaptionText));
    wind.Delta = ReadoutIn(Right(held), Text(kCaptionText));
    const Box buttons = rows.Next(kButtonShare);
    wind.Port = Left(buttons);
    wind.Starboard = Right(buttons);
    return wind;
  }

  PanelLayout::Instrument Instrument(const Box& card) const {
    return {card, ReadoutIn(Inset(card, Scaled(kPadding)), Text(kCaptionText))};
  }

  PanelLayout::Pilot Pilot(const Box& card) const {
    Rows rows(Inset(card, Scaled(kPadding)), Scaled(kMargin), kPilotValueShare + kButtonShare, 2);
    PanelLayout::Pilot pilot;
    pilot.Card = card;
    Box upper = rows.Next(kPilotValueShare);
    const double line = upper.Height * kSentShare;
    upper.Height -= 2.0 * line;
    pilot.Bearing = ReadoutIn(upper, Text(kCaptionText));
    const Box sent{upper.X, upper.Y + upper.Height, upper.Width, line};
    pilot.Heading = Left(sent);
    pilot.Sent = Right(sent);
    pilot.Follows = {sent.X, sent.Y + line, sent.Width, line};
    const Box buttons = rows.Next(kButtonShare);
    pilot.Port = Left(buttons);
    pilot.Starboard = Right(buttons);
    return pilot;
  }

  Box Left(const Box& row) const { return Column(row, 0, 2, Scaled(kMargin)); }
  Box Right(const Box& row) const { return Column(row, 1, 2, Scaled(kMargin)); }

 private:
  double m_scale;
};

}  // namespace

PanelLayout LayPanel(double width, double height) {
  const bool tall = height > width;
  const Designer design(width, height, tall);
  const double gap = design.Scaled(kMargin);
  const double banner = std::max(design.Scaled(kBanner), std::min(kLeastBanner, height * kMostBannerShare));

  PanelLayout layout;
  layout.Margin = gap;
  layout.Banner = {gap, gap / 2.0, width - 2.0 * gap, banner};
  layout.BannerText = std::max(kLeastText, banner * kBannerTextShare);
  const double top = layout.Banner.Y + banner + gap / 2.0;
  const Box whole{gap, top, width - 2.0 * gap, height - top - gap};
  layout.CaptionText = design.Text(kCaptionText);
  layout.ButtonText = design.Text(kButtonText);

  const double windShare = tall ? kTallWindShare : kWindShare;
  Rows parts(whole, gap, 1.0, 2);
  const Box winds = parts.Next(windShare);
  const Box band = parts.Next(1.0 - windShare);
  if (tall) {
    Rows stacked(winds, gap, 2.0, 2);
    layout.Winds[0] = design.Wind(stacked.Next(1.0));
    layout.Winds[1] = design.Wind(stacked.Next(1.0));
    Rows rows(band, gap, 2.0, 2);
    const Box upper = rows.Next(1.0);
    const Box lower = rows.Next(1.0);
    layout.Heading = design.Instrument(design.Left(upper));
    layout.BoatSpeed = design.Instrument(design.Right(upper));
    layout.Waypoint = design.Instrument(design.Left(lower));
    layout.AutoPilot = design.Pilot(design.Right(lower));
  } else {
    layout.Winds[0] = design.Wind(design.Left(winds));
    layout.Winds[1] = design.Wind(design.Right(winds));
    layout.Heading = design.Instrument(Column(band, 0, 4, gap));
    layout.BoatSpeed = design.Instrument(Column(band, 1, 4, gap));
    layout.Waypoint = design.Instrument(Column(band, 2, 4, gap));
    layout.AutoPilot = design.Pilot(Column(band, 3, 4, gap));
  }
  return layout;
}

namespace {

/// The width that leaves `room` filled when none of `needed`, which want more than that together, is wider.
double CommonLimit(double room, std::vector<double> needed) {
  std::sort(needed.begin(), needed.end());
  double left = room;
  for (std::size_t i = 0; i < needed.size(); ++i) {
    const double equal = left / static_cast<double>(needed.size() - i);
    if (needed[i] > equal) {
      return equal;
    }
    left -= needed[i];
  }
  return room;
}

}  // namespace

std::vector<double> ShareRoom(double room, const std::vector<double>& shares,
                              const std::vector<double>& needed) {
  std::vector<double> widths;
  if (std::accumulate(needed.begin(), needed.end(), 0.0) > room) {
    const double limit = CommonLimit(room, needed);
    for (const double width : needed) {
      widths.push_back(std::min(width, limit));
    }
    return widths;
  }
  const double all = std::accumulate(shares.begin(), shares.end(), 0.0);
  double lacking = 0.0;
  double spare = 0.0;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    widths.push_back(room * shares[i] / all);
    lacking += std::max(0.0, needed[i] - widths[i]);
    spare += std::max(0.0, widths[i] - needed[i]);
  }
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const double over = widths[i] - needed[i];
    widths[i] = over < 0.0 ? needed[i] : widths[i] - (spare > 0.0 ? over * lacking / spare : 0.0);
  }
  return widths;
}

}  // namespace veerwatch
