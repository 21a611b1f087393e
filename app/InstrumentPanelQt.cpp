#include "app/InstrumentPanelQt.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "app/FigureLook.h"
#include "draw/DrawQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr QSize kDesignSize(1160, 640);
constexpr qreal kCardRadius = 12.0;
/// Height of an age beneath a figure, as a part of the captions'.
constexpr double kAgeShare = 1.25;
const QColor kAlarmColour(255, 128, 128);

// The widest usual texts.
constexpr const char* kBearingPattern = "000";
constexpr const char* kFineBearingPattern = "000.0";
constexpr const char* kAnglePattern = "-000";
constexpr const char* kFineAnglePattern = "-000.0";
constexpr const char* kSpeedPattern = "00.0";

QRect Rounded(const Box& box) { return ToQt(box).toAlignedRect(); }

QString Element(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

QFont Sized(const QFont& font, double pixels, QFont::Weight weight) {
  QFont sized(font);
  sized.setPixelSize(std::max(1, static_cast<int>(pixels)));
  sized.setWeight(weight);
  return sized;
}

void PlaceText(QWidget* control, const Box& box, const QFont& letters) {
  control->setGeometry(Rounded(box));
  if (control->font() != letters) {
    control->setFont(letters);
  }
}

}  // namespace

InstrumentPanelQt::InstrumentPanelQt(QWidget* parent) : QWidget(parent), m_theme(palette()) {
  setObjectName(QStringLiteral("InstrumentPanel"));
  Banner = new BannerQt(this);
  lblHeading = NewValue("lblHeading", kBearingPattern, TrMark("Heading (M)"));
  lblBoatSpeed = NewValue("lblBoatSpeed", kSpeedPattern, TrMark("Boat Speed (Kts)"));
  lblWaypointBearing = NewValue("lblWaypointBearing", kBearingPattern, TrMark("Waypoint Bearing (M)"));
  lblAppWindAngle = NewValue("lblAppWindAngle", kAnglePattern, TrMark("App Wind Angle (R)"));
  lblAppWindSpeed = NewValue("lblAppWindSpeed", kSpeedPattern, TrMark("App Wind Speed (Kts)"));
  lblTrueWindAngle = NewValue("lblTrueWindAngle", kAnglePattern, TrMark("True Wind Angle (R)"));
  lblTrueWindSpeed = NewValue("lblTrueWindSpeed", kSpeedPattern, TrMark("True Wind Speed (Kts)"));

  lblAutoPilot = NewCaption("lblAutoPilot", TrMark("AutoPilot Bearing"));
  txtAutoPilot = NewEntry("txtAutoPilot", kFineBearingPattern, TrMark("AutoPilot Bearing"));
  lblAutoPilot->setBuddy(txtAutoPilot);
  lblPilotHeading = NewCaption("lblPilotHeading", "");
  lblPilotSent = NewCaption("lblPilotSent", "");
  lblPilotFollows = NewCaption("lblPilotFollows", "");
  lblPilotFollows->setToolTip(
      TrQ("Whether the boat comes to the bearings that are sent, and what the pilot's compass shows "
          "more than ours [deg]"));
  optControl = {new SideOptionQt(Element("optControl", 1), TrQ("Track Apparent Wind Angle"), this),
                new SideOptionQt(Element("optControl", 2), TrQ("Track True Wind Angle"), this)};
  optControl[0]->setChecked(true);
  lblDesired = {NewCaption("lblDesired(1)", TrMark("Desired App Wind Angle (R)")),
                NewCaption("lblDesired(2)", TrMark("Desired True Wind Angle (R)"))};
  txtDesired = {NewEntry("txtDesired(1)", kAnglePattern, TrMark("Desired App Wind Angle (R)")),
                NewEntry("txtDesired(2)", kAnglePattern, TrMark("Desired True Wind Angle (R)"))};
  lblDelta = {NewValue("lblDelta(1)", kFineAnglePattern, TrMark("Delta (deg)")),
              NewValue("lblDelta(2)", kFineAnglePattern, TrMark("Delta (deg)"))};
  for (int index = 1; index <= 2; ++index) {
    const auto at = static_cast<std::size_t>(index - 1);
    cmdAutoPilot[at] = NewNudge("cmdAutoPilot", index);
    cmdDesiredApp[at] = NewNudge("cmdDesiredApp", index);
    cmdDesiredTrue[at] = NewNudge("cmdDesiredTrue", index);
    lblDesired[at]->setBuddy(txtDesired[at]);
  }
  OrderTabs();
  ApplyTheme();
}

ValueLabelQt* InstrumentPanelQt::NewValue(const char* name, const char* pattern, const char* caption) {
  auto* label = new ValueLabelQt(QLatin1String(name), QLatin1String(pattern), this);
  label->setAccessibleName(TrQ(caption));
  NewCaption("", caption)->setObjectName(label->objectName() + QStringLiteral(".Caption"));
  return label;
}

CaptionQt* InstrumentPanelQt::NewCaption(const char* name, const char* text) {
  return new CaptionQt(QLatin1String(name), TrQ(text), this);
}

EntryBoxQt* InstrumentPanelQt::NewEntry(const char* name, const char* pattern, const char* description) {
  auto* box = new EntryBoxQt(QLatin1String(name), QLatin1String(pattern), this);
  box->setAccessibleName(TrQ(description));
  return box;
}

NudgeButtonQt* InstrumentPanelQt::NewNudge(const char* array, int index) {
  auto* button = new NudgeButtonQt(Element(array, index), index == 2, this);
  button->setToolTip(index == 2 ? TrQ("One degree to starboard (Alt+Right); ten with Shift")
                                : TrQ("One degree to port (Alt+Left); ten with Shift"));
  return button;
}

void InstrumentPanelQt::OrderTabs() {
  QWidget* before = nullptr;
  for (QWidget* control : std::initializer_list<QWidget*>{
           optControl[0], txtDesired[0], cmdDesiredApp[0], cmdDesiredApp[1], optControl[1], txtDesired[1],
           cmdDesiredTrue[0], cmdDesiredTrue[1], txtAutoPilot, cmdAutoPilot[0], cmdAutoPilot[1]}) {
    if (before != nullptr) {
      setTabOrder(before, control);
    }
    before = control;
  }
}

void InstrumentPanelQt::BlankValues() {
  for (ValueLabelQt* label : {lblHeading, lblBoatSpeed, lblWaypointBearing, lblAppWindAngle, lblAppWindSpeed,
                              lblTrueWindAngle, lblTrueWindSpeed}) {
    label->clear();
  }
}

void InstrumentPanelQt::Enable(const TrackControls& controls, TrackMode mode, TrackSide side) {
  txtAutoPilot->setEnabled(controls.AutoPilot);
  const std::array<bool, 2> desired{controls.DesiredApparent, controls.DesiredTrue};
  for (std::size_t i = 0; i < desired.size(); ++i) {
    cmdAutoPilot[i]->setEnabled(controls.AutoPilot);
    optControl[i]->setEnabled(controls.Side);
    txtDesired[i]->setEnabled(desired[i]);
    lblDesired[i]->setEnabled(desired[i]);
    lblDelta[i]->setEnabled(desired[i]);
    cmdDesiredApp[i]->setEnabled(controls.NudgeApparent);
    cmdDesiredTrue[i]->setEnabled(controls.NudgeTrue);
  }
  lblAppWindAngle->setEnabled(controls.DesiredApparent);
  lblTrueWindAngle->setEnabled(controls.DesiredTrue);
  if (m_mode != mode || m_side != side) {
    m_mode = mode;
    m_side = side;
    ColourEntries();
    Repaint();
  }
}

void InstrumentPanelQt::ShowAges(const WatchNow& watch, bool blankLost) {
  struct Figure {
    ValueLabelQt* Label;
    Watched What;
    bool Aged;  ///< says how old it is; the difference to it does not
  };
  for (const Figure& figure : std::initializer_list<Figure>{{lblHeading, Watched::Heading, true},
                                                            {lblBoatSpeed, Watched::BoatSpeed, true},
                                                            {lblWaypointBearing, Watched::Waypoint, true},
                                                            {lblAppWindAngle, Watched::WindApparent, true},
                                                            {lblAppWindSpeed, Watched::WindApparent, true},
                                                            {lblDelta[0], Watched::WindApparent, false},
                                                            {lblTrueWindAngle, Watched::WindTrue, true},
                                                            {lblTrueWindSpeed, Watched::WindTrue, true},
                                                            {lblDelta[1], Watched::WindTrue, false}}) {
    const FigureLook look = LookOf(watch.Of(figure.What), watch.Mode, blankLost);
    figure.Label->Fade(look.Half, figure.Aged ? ToQt(look.Age) : QString());
    if (look.Blank && !figure.Label->text().isEmpty()) {
      figure.Label->setText(QStringLiteral("--"));
    }
  }
}

void InstrumentPanelQt::ShowSent(const QString& heading, bool stale, const QString& sent, bool late) {
  lblPilotHeading->setText(heading);
  lblPilotHeading->setEnabled(!stale);
  lblPilotSent->setText(sent);
  if (m_late != late) {
    m_late = late;
    ColourSent();
  }
}

void InstrumentPanelQt::ShowFollows(const QString& text, bool wrong) {
  lblPilotFollows->setText(text);
  if (m_wrong != wrong) {
    m_wrong = wrong;
    ColourSent();
  }
}

void InstrumentPanelQt::ShowAlarm(TrackSide side) {
  lblDelta[static_cast<std::size_t>(side) - 1]->BackColour(
      ShadeFor(palette().color(QPalette::Window), kAlarmColour));
}

void InstrumentPanelQt::HideAlarm() {
  for (ValueLabelQt* label : lblDelta) {
    label->BackColour(QColor());
  }
}

QSize InstrumentPanelQt::sizeHint() const { return kDesignSize; }

void InstrumentPanelQt::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Place();
}

void InstrumentPanelQt::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    ApplyTheme();
  } else if (event->type() == QEvent::FontChange) {
    Place();
  }
}

void InstrumentPanelQt::Place() {
  m_layout = LayPanel(std::max(1, width()), std::max(1, height()));
  const PanelLayout::Wind& app = m_layout.Winds[0];
  const PanelLayout::Wind& trueWind = m_layout.Winds[1];
  const int most = std::max(1, height());
  const int winds = PlaceValues({{lblAppWindAngle, &app.Angle},
                                 {lblAppWindSpeed, &app.Speed},
                                 {lblTrueWindAngle, &trueWind.Angle},
                                 {lblTrueWindSpeed, &trueWind.Speed}},
                                most);
  PlaceValues({{lblHeading, &m_layout.Heading.Value},
               {lblBoatSpeed, &m_layout.BoatSpeed.Value},
               {lblWaypointBearing, &m_layout.Waypoint.Value}},
              winds + winds / 5);
  PlaceValues({{lblDelta[0], &app.Delta}, {lblDelta[1], &trueWind.Delta}}, most);
  PlaceEntry(txtDesired[0], lblDesired[0], app.Desired);
  PlaceEntry(txtDesired[1], lblDesired[1], trueWind.Desired);
  PlaceEntry(txtAutoPilot, lblAutoPilot, m_layout.AutoPilot.Bearing);
  PlaceText(lblPilotHeading, m_layout.AutoPilot.Heading, CaptionFont());
  PlaceText(lblPilotSent, m_layout.AutoPilot.Sent, CaptionFont());
  PlaceText(lblPilotFollows, m_layout.AutoPilot.Follows, CaptionFont());
  for (std::size_t i = 0; i < m_layout.Winds.size(); ++i) {
    PlaceText(optControl[i], m_layout.Winds[i].Option, ButtonFont());
  }
  PlaceText(Banner, m_layout.Banner, Sized(font(), m_layout.BannerText, QFont::Bold));
  PlaceNudges(cmdDesiredApp, app.Port, app.Starboard);
  PlaceNudges(cmdDesiredTrue, trueWind.Port, trueWind.Starboard);
  PlaceNudges(cmdAutoPilot, m_layout.AutoPilot.Port, m_layout.AutoPilot.Starboard);
  Repaint();
}

QFont InstrumentPanelQt::CaptionFont() const { return Sized(font(), m_layout.CaptionText, QFont::Normal); }

QFont InstrumentPanelQt::ButtonFont() const { return Sized(font(), m_layout.ButtonText, QFont::Bold); }

int InstrumentPanelQt::PlaceValues(const ValueGroup& group, int most) {
  const QFont figures = Sized(font(), 1.0, QFont::Normal);
  const QFont captions = CaptionFont();
  int height = most;
  for (const auto& [label, readout] : group) {
    height = std::min(height, FittingTextHeight(figures, label->Pattern(), Rounded(readout->Value).size()));
  }
  for (const auto& [label, readout] : group) {
    label->setGeometry(Rounded(readout->Value));
    label->TextHeight(height);
    label->AgeHeight(std::max(1, static_cast<int>(m_layout.CaptionText * kAgeShare)));
    auto* caption = findChild<QLabel*>(label->objectName() + QStringLiteral(".Caption"));
    PlaceText(caption, readout->Caption, captions);
  }
  return height;
}

void InstrumentPanelQt::PlaceEntry(EntryBoxQt* box, CaptionQt* caption, const PanelLayout::Readout& readout) {
  PlaceText(caption, readout.Caption, CaptionFont());
  const QRect area = Rounded(readout.Value);
  // Room for the frame and the cursor.
  const QSize inside(area.width() - 16, area.height() - 6);
  const QFont figures = Sized(font(), 1.0, QFont::Normal);
  const int height = FittingTextHeight(figures, box->Pattern(), inside * 0.92);
  PlaceText(box, readout.Value, Sized(font(), height, QFont::Normal));
}

void InstrumentPanelQt::PlaceNudges(const ControlArray<NudgeButtonQt>& pair, const Box& port,
                                    const Box& starboard) {
  const QFont buttons = ButtonFont();
  const int height = std::min(pair[0]->FittingTextHeight(buttons, port.Width),
                              pair[1]->FittingTextHeight(buttons, starboard.Width));
  const QFont letters = Sized(font(), height, QFont::Bold);
  PlaceText(pair[0], port, letters);
  PlaceText(pair[1], starboard, letters);
}

void InstrumentPanelQt::ApplyTheme() {
  m_theme = ThemeQt(palette());
  for (QObject* child : children()) {
    if (auto* value = dynamic_cast<ValueLabelQt*>(child)) {
      value->Colours(m_theme.Text, m_theme.Dimmed);
    } else if (auto* caption = dynamic_cast<CaptionQt*>(child)) {
      caption->Colours(m_theme.Caption, m_theme.Dimmed);
    } else if (auto* nudge = dynamic_cast<NudgeButtonQt*>(child)) {
      nudge->Theme(m_theme);
    } else if (auto* option = dynamic_cast<SideOptionQt*>(child)) {
      option->Theme(m_theme);
    }
  }
  ColourEntries();
  ColourSent();
  Repaint();
}

void InstrumentPanelQt::ColourEntries() {
  for (EntryBoxQt* box : {txtAutoPilot, txtDesired[0], txtDesired[1]}) {
    const bool steers = box == txtAutoPilot && m_mode == TrackMode::Track;
    QPalette colours = palette();
    colours.setColor(QPalette::Base, m_theme.Field);
    colours.setColor(QPalette::Text, m_theme.Text);
    colours.setColor(QPalette::Disabled, QPalette::Base, m_theme.Card);
    colours.setColor(QPalette::Disabled, QPalette::Text, steers ? m_theme.Text : m_theme.Dimmed);
    box->setPalette(colours);
  }
}

void InstrumentPanelQt::ColourSent() const {
  lblPilotHeading->Colours(m_theme.Text, m_theme.Dimmed);
  lblPilotSent->Colours(m_late ? AmberText(m_theme.Window) : m_theme.Text, m_theme.Dimmed);
  lblPilotFollows->Colours(m_wrong ? AmberText(m_theme.Window) : m_theme.Text, m_theme.Dimmed);
}

const Box* InstrumentPanelQt::SteeringCard() const {
  if (m_mode == TrackMode::Manual) {
    return &m_layout.AutoPilot.Card;
  }
  return m_mode == TrackMode::Track ? &m_layout.Winds[m_side == TrackSide::Apparent ? 0 : 1].Card : nullptr;
}

void InstrumentPanelQt::Repaint() {
  m_ground = QPixmap();
  update();
}

void InstrumentPanelQt::paintEvent(QPaintEvent* event) {
  const qreal scale = devicePixelRatioF();
  if (m_ground.isNull() || m_ground.devicePixelRatio() != scale) {
    m_ground = QPixmap(size() * scale);
    m_ground.setDevicePixelRatio(scale);
    PaintGround();
  }
  QPainter painter(this);
  const QRectF area(event->rect());
  painter.drawPixmap(area, m_ground, QRectF(area.topLeft() * scale, area.size() * scale));
}

void InstrumentPanelQt::PaintGround() {
  QPainter painter(&m_ground);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), m_theme.Window);
  const Box* steers = SteeringCard();
  const qreal frame = std::max(2.5, m_layout.Margin / 3.0);
  for (const Box* box : {&m_layout.Winds[0].Card, &m_layout.Winds[1].Card, &m_layout.Heading.Card,
                         &m_layout.BoatSpeed.Card, &m_layout.Waypoint.Card, &m_layout.AutoPilot.Card}) {
    const QColor edge = m_mode == TrackMode::Track ? m_theme.Mode(m_mode).Fill : m_theme.Accent;
    const qreal line = box == steers ? frame : 1.0;
    const qreal inside = std::max(1.0, line / 2.0);
    painter.setPen(QPen(box == steers ? edge : m_theme.Edge, line));
    painter.setBrush(m_theme.Card);
    painter.drawRoundedRect(ToQt(*box).adjusted(inside, inside, -inside, -inside), kCardRadius, kCardRadius);
  }
}

}  // namespace veerwatch
