// What shows a turn: a button or a label in the colour of its side, its text readable on it in any palette.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "polar/CourseCaptions.h"

namespace veerwatch {

// Both have their colours in their palette: Button and ButtonText, Window and WindowText.

class TurnLabelQt final : public QLabel {
 public:
  TurnLabelQt(const QString& name, const QString& caption, QWidget* parent);

  void Show(const TurnFace& face);
  /// In half tone: the course is no more of now.
  void Fade(bool fade);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool m_faded = false;
};

class TurnButtonQt final : public QPushButton {
 public:
  TurnButtonQt(const QString& name, const QString& caption, QWidget* parent);

  void Show(const TurnFace& face);
  /// In half tone: the course is no more of now.
  void Fade(bool fade);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool m_faded = false;
};

}  // namespace veerwatch
