// One page of the assistant.
#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

#include "connect/ConnectDesk.h"

namespace veerwatch {

class ConnectPageQt : public QWidget {
 public:
  /// `desk` outlives the page.
  ConnectPageQt(const char* name, ConnectDesk& desk, QWidget* parent) : QWidget(parent), m_desk(desk) {
    setObjectName(QLatin1String(name));
  }

  virtual QString Title() const = 0;
  /// It comes to the front.
  virtual void Enter() { Refresh(); }
  /// Half a second has passed, in front.
  virtual void Refresh() {}
  /// It is left, by either button.
  virtual void Leave() {}
  /// What one should know before going on; "" for nothing.
  virtual QString Hint() const { return {}; }
  /// One cannot go on from here.
  virtual bool Blocks() const { return false; }

 protected:
  ConnectDesk& Desk() const { return m_desk; }

  /// A text of several lines that says what the page is for, or what came of something.
  QLabel* NewLines(const char* name, const QString& text = {}) {
    auto* label = new QLabel(text, this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
  }

 private:
  ConnectDesk& m_desk;
};

}  // namespace veerwatch
