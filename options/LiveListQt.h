// A live list of the options dialog: the newest lines from a wire in a fixed-width font, those that were used
// highlighted. The newest line is always scrolled to; a line that is too long ends in an ellipsis.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string_view>

#include "options/LiveLines.h"

namespace veerwatch {

/// The lines as a model; kHighlighted is true for the highlighted ones.
class LiveListModelQt final : public QAbstractListModel {
 public:
  static constexpr int kHighlighted = Qt::UserRole;

  using QAbstractListModel::QAbstractListModel;

  void Add(std::string_view text, bool highlighted);
  void Clear();

  int rowCount(const QModelIndex& parent = {}) const override;
  /// Bytes are characters of ISO 8859-1, control characters are shown as pictures.
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  LiveLines m_lines;
};

class LiveListQt final : public QListView {
 public:
  LiveListQt(const char* name, const char* hint, QWidget* parent);

  /// Adds a line behind all others. The list follows once per turn of the event loop.
  void Add(std::string_view text, bool highlighted);
  void Clear() { m_lines->Clear(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FixedFont();

  LiveListModelQt* m_lines;
  bool m_scrolling = false;  ///< will follow in this turn
  bool m_fitting = false;    ///< is choosing its font
};

}  // namespace veerwatch
