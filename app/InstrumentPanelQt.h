// The middle of the main window: every value, entry box, nudge and option, on cards that scale with the
// panel. Made and driven by frmMain; it knows no values of its own.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <initializer_list>
#include <utility>

#include "app/BannerQt.h"
#include "app/PanelControlsQt.h"
#include "app/PanelLayout.h"
#include "control/TrackModes.h"
#include "control/WatchNow.h"
#include "settings/TrackMode.h"

namespace veerwatch {

class InstrumentPanelQt final : public QWidget {
 public:
  /// The members of a control array stand at [index - 1].
  template <class Control>
  using ControlArray = std::array<Control*, 2>;

  explicit InstrumentPanelQt(QWidget* parent);

  BannerQt* Banner;
  ValueLabelQt* lblHeading;
  ValueLabelQt* lblBoatSpeed;
  ValueLabelQt* lblWaypointBearing;
  ValueLabelQt* lblAppWindAngle;
  ValueLabelQt* lblAppWindSpeed;
  ValueLabelQt* lblTrueWindAngle;
  ValueLabelQt* lblTrueWindSpeed;

  CaptionQt* lblAutoPilot;
  EntryBoxQt* txtAutoPilot;
  CaptionQt* lblPilotHeading;
  CaptionQt* lblPilotSent;
  CaptionQt* lblPilotFollows;
  ControlArray<NudgeButtonQt> cmdAutoPilot;

  ControlArray<SideOptionQt> optControl;
  ControlArray<CaptionQt> lblDesired;
  ControlArray<EntryBoxQt> txtDesired;
  ControlArray<ValueLabelQt> lblDelta;
  ControlArray<NudgeButtonQt> cmdDesiredApp;
  ControlArray<NudgeButtonQt> cmdDesiredTrue;

  /// Empties the seven value labels.
  void BlankValues();
  /// Enables what answers, and marks the card of the chosen side.
  void Enable(const TrackControls& controls, TrackMode mode, TrackSide side);
  /// Shows how old every figure is; with `blankLost` one that is lost becomes "--".
  void ShowAges(const WatchNow& watch, bool blankLost);
  /// Beside the bearing that is sent: the boat's heading, `stale` or not, and how long ago it was sent,
  /// `late` or not.
  void ShowSent(const QString& heading, bool stale, const QString& sent, bool late);
  /// What the boat makes of that bearing, and whether the sailor should look at it.
  void ShowFollows(const QString& text, bool wrong);
  /// Colours the delta of `side` for an alarm.
  void ShowAlarm(TrackSide side);
  void HideAlarm();

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  ValueLabelQt* NewValue(const char* name, const char* pattern, const char* caption);
  CaptionQt* NewCaption(const char* name, const char* text);
  EntryBoxQt* NewEntry(const char* name, const char* pattern, const char* description);
  NudgeButtonQt* NewNudge(const char* array, int index);
  void OrderTabs();
  using ValueGroup = std::initializer_list<std::pair<ValueLabelQt*, const PanelLayout::Readout*>>;

  void Place();
  QFont CaptionFont() const;
  QFont ButtonFont() const;
  /// Figures of a group stand in one size, of `most` pixels at most; returns it.
  int PlaceValues(const ValueGroup& group, int most);
  void PlaceEntry(EntryBoxQt* box, CaptionQt* caption, const PanelLayout::Readout& readout);
  /// Both buttons of a pair have letters of one size.
  void PlaceNudges(const ControlArray<NudgeButtonQt>& pair, const Box& port, const Box& starboard);
  void ApplyTheme();
  /// The colours of the boxes. A bearing that the loop steers by is as bright as one that can be typed.
  void ColourEntries();
  void ColourSent() const;
  /// The card that says where the boat goes; null while nothing is sent.
  const Box* SteeringCard() const;
  /// Draws the cards again.
  void Repaint();
  void PaintGround();

  ThemeQt m_theme;
  PanelLayout m_layout;
  QPixmap m_ground;  ///< the cards, drawn once; the values change over them
  TrackMode m_mode = TrackMode::Switching;
  TrackSide m_side = TrackSide::Apparent;
  bool m_late = false;   ///< nothing has left for the pilot for a while
  bool m_wrong = false;  ///< the boat does not come to the bearing as she should
};

}  // namespace veerwatch
