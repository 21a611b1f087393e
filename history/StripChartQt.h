// The strip-chart recorder as a widget: keeps the samples, draws them, and lets the user look back, read
// values and choose what shows. frmHistory sets it up and feeds it. Samples are recorded whether it is
// visible or not; it draws only while it is.
#pragma once

#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "history/StripChartOperations.h"
#include "history/StripChartPainterQt.h"
#include "history/StripChartPicture.h"
#include "history/StripChartPopupQt.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"

namespace veerwatch {

class StripChart final : public QWidget, public StripChartOperations {
 public:
  /// Both outlive the chart. `clock` tells the moment of every sample.
  StripChart(const Clock& clock, WindowDialogs& dialogs, QWidget* parent);
  ~StripChart() override;

  void TraceCountSet(std::int16_t count) override;
  void TraceDefine(std::int16_t number, const std::string& name, std::int16_t group,
                   const std::string& units) override;
  void SampleBufferSet(std::int16_t seconds, double count) override;
  void RedrawIntervalSet(std::int16_t seconds) override;
  void FollowNow(bool follow) override;
  void RedrawEnable(bool enable) override;
  void SpanSet(std::int16_t seconds) override;
  void BackColourSet(std::uint32_t colour) override;
  void GroupCountSet(std::int16_t count) override;
  void GroupTitleSet(std::int16_t number, const std::string& title) override;
  void GroupColourSet(std::int16_t number, std::uint32_t colour) override;
  void SampleAdd(std::string_view name, std::string_view text) override;
  void MarkAdd(std::string_view text) override;
  void ConfigPopupShow(std::int16_t x, std::int16_t y, std::int16_t a, std::int16_t b,
                       std::int16_t c) override;
  void TraceSettingsLoad(const std::string& name, const Profile& profile) override;
  void TraceSettingsSave(const std::string& name, Profile& profile) const override;

  /// Whether the newest value of a trace is no more of now, though its slot is: then it is in half tone in
  /// the legend. An unknown name is ignored.
  void TraceFade(std::string_view name, bool fade);

  const StripChartData& Data() const { return m_data; }
  const TraceSettings& Settings() const { return m_settings; }
  /// What is drawn now.
  const StripChartPicture& Picture();
  /// Goes on to the present time and draws what has been recorded, soon.
  void Refresh();
  /// Whether the newest value is at the right edge.
  bool FollowsNow() const { return !m_endSlot.has_value(); }
  /// How often everything was drawn again, and not just what a sample changes.
  int FullRedraws() const { return m_fullRedraws; }
  /// The chart as a picture of `scale` device pixels per pixel, with nothing under the mouse.
  QImage Image(double scale);

  QSize sizeHint() const override { return {800, 500}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  /// What the still part of the drawing depends on.
  struct StillKey {
    QSize Size;
    double Ratio = 0.0;
    int Revision = -1;
    std::int64_t EndSlot = 0;
    std::int64_t LiveSlot = 0;
    std::int32_t UtcOffset = 0;
    std::vector<double> Edges;  ///< of all scales

    bool operator==(const StillKey&) const = default;
  };
  struct Drag {
    double X;
    std::int64_t EndSlot;
  };

  ChartSubject Subject() const { return {m_data, m_titles, m_groups, m_settings}; }
  std::vector<QColor> TraceColours() const;
  void Regroup();
  void Changed();
  void Compose();
  void ComposeFor(const QSize& size);
  StillKey Key() const;
  void DrawStill(QPaintDevice& device);
  std::int64_t EndSlot() const;
  void LookAt(std::int64_t endSlot);
  void LookBack(double way) { LookAt(EndSlot() - std::llround(way)); }
  void ChangeSpan(int steps);
  void PlaceButtons();
  void Due(int milliseconds);

  void cmdNow_Click() { FollowNow(true); }
  void PopupAt(const QPoint& position);
  void MakePopup();
  void ShowPopup();
  void PickColour(int trace);
  void SavePicture();
  void WritePicture(const std::string& file);
  void SaveData();
  void WriteData(const std::string& file);
  void Defaults();
  std::string ProposedName(const char* ending) const;

  const Clock& m_clock;
  WindowDialogs& m_dialogs;
  StripChartData m_data;
  std::vector<std::string> m_titles;
  std::vector<QColor> m_groupColours;
  std::vector<TraceGroup> m_groups;
  TraceSettings m_settings;
  std::int16_t m_span = 1800;  ///< at set-up [s]
  StripChartColoursQt m_colours;
  TextMeasureQt m_measure;

  bool m_redraw = true;
  int m_redrawInterval = 10000;           ///< [ms]
  std::optional<std::int64_t> m_endSlot;  ///< the slot after the right edge; nothing: now
  double m_scrollRest = 0.0;              ///< notches of the wheel that did not make a slot yet
  double m_zoomRest = 0.0;                ///< notches of the wheel with Ctrl that did not make a step yet
  std::optional<Drag> m_drag;
  std::optional<QPointF> m_hover;
  bool m_focusShows = false;  ///< the keyboard came here by Tab

  StripChartPicture m_picture;
  bool m_composed = false;
  int m_revision = 0;  ///< of everything that the user or the set-up changes
  QPixmap m_still;
  StillKey m_stillKey;
  int m_fullRedraws = 0;
  std::set<int> m_faded;  ///< traces whose newest value is no more of now
  QTimer m_tmrRedraw;
  bool m_soon = false;  ///< a redraw for a sample is on its way
  QPushButton* m_cmdNow;
  QToolButton* m_cmdSettings;
  std::unique_ptr<StripChartPopupQt> m_popup;
  QPoint m_popupAt;  ///< on the screen
};

}  // namespace veerwatch
