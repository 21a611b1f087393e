// What the pages of the options dialog are made of: entry boxes, captions, hints.
#pragma once

#include <QLabel>
#include <QScrollArea>
#include <string>
#include <vector>

#include "options/OptionsForm.h"
#include "platform/EntryLineQt.h"

namespace veerwatch {

/// Gives a control its name and its hint, in front of its tip and for who cannot see it.
void NameControl(QWidget& control, const char* name, const char* hint);

/// Shows the tip of a control that has its name and its hint, by OptionTips.
void ShowTip(QWidget& control);

/// A box for one number, wide enough for it in every font.
class OptionEntryQt final : public EntryLineQt {
 public:
  OptionEntryQt(const char* name, const char* hint, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
};

/// A box and the text of the form that stands in it.
struct BoundEntry {
  OptionEntryQt* Box;
  std::string OptionsForm::*Text;
};

/// Brings the texts of the form into their boxes, and back.
void ShowEntries(const std::vector<BoundEntry>& entries, const OptionsForm& form);
void ReadEntries(const std::vector<BoundEntry>& entries, OptionsForm& form);

/// A number that is only shown, as wide as the boxes.
class OptionResultQt final : public QLabel {
 public:
  OptionResultQt(const char* name, const char* hint, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
};

/// Room between two groups of controls in a row [px].
inline constexpr int kGroupGap = 28;

/// A caption whose mnemonic leads to `control`, which is named by it.
QLabel* NewCaption(const char* text, QWidget* control, QWidget* parent);

/// A plain text, such as the unit beside a box.
QLabel* NewText(const char* text, QWidget* parent);

/// A page that scrolls only where the screen has no room for all of it.
class OptionPageQt final : public QScrollArea {
 public:
  OptionPageQt(QWidget* content, QWidget* parent);

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace veerwatch
