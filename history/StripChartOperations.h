// What a strip chart offers to the window that owns it. The widget StripChart is the real one; tests have one
// that writes down what it is told. Numbers are 16-bit, as in the profile of a window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Profile.h"

namespace veerwatch {

class StripChartOperations {
 public:
  virtual ~StripChartOperations() = default;

  // Set-up, in this order.

  /// Makes `count` traces without a name and forgets everything.
  virtual void TraceCountSet(std::int16_t count) = 0;
  /// Names trace `number` [1, count]; `group` is 0 for a speed and 1 for an angle.
  virtual void TraceDefine(std::int16_t number, const std::string& name, std::int16_t group,
                           const std::string& units) = 0;
  /// A ring of `count` slots of `seconds` [s] for each trace.
  virtual void SampleBufferSet(std::int16_t seconds, double count) = 0;
  /// Time between two redraws while no sample arrives [s].
  virtual void RedrawIntervalSet(std::int16_t seconds) = 0;
  /// Whether the chart moves on with the time, the newest value at its right edge.
  virtual void FollowNow(bool follow) = 0;
  /// Whether it draws at all; off while it is set up.
  virtual void RedrawEnable(bool enable) = 0;
  /// The visible time [s].
  virtual void SpanSet(std::int16_t seconds) = 0;
  /// The colour behind everything, 0xRRGGBB. Whatever is written on it follows.
  virtual void BackColourSet(std::uint32_t colour) = 0;
  /// The number of value groups, each drawn in a panel of its own.
  virtual void GroupCountSet(std::int16_t count) = 0;
  /// Titles group `number` [1, count]; a trace belongs to the group whose title is most like its name.
  virtual void GroupTitleSet(std::int16_t number, const std::string& title) = 0;
  /// The colour behind the traces of a group, 0xRRGGBB.
  virtual void GroupColourSet(std::int16_t number, std::uint32_t colour) = 0;

  // At work.

  /// Takes a value: `text` is a number, a blank and the units. An unknown name is ignored; a text without a
  /// finite number leaves a gap.
  virtual void SampleAdd(std::string_view name, std::string_view text) = 0;
  /// Takes a mark for this moment: what happened, in a word or two.
  virtual void MarkAdd(std::string_view text) = 0;
  /// Opens the configuration pop-up with its upper left corner at a point of the chart [px], or where it
  /// still fits on the screen. The other three arguments have one value each.
  virtual void ConfigPopupShow(std::int16_t x, std::int16_t y, std::int16_t a, std::int16_t b,
                               std::int16_t c) = 0;
  /// Takes the user's choices from section `name` of the profile.
  virtual void TraceSettingsLoad(const std::string& name, const Profile& profile) = 0;
  /// Puts the user's choices into section `name` of the profile.
  virtual void TraceSettingsSave(const std::string& name, Profile& profile) const = 0;
};

}  // namespace veerwatch
