// A live list of the options dialog: the newest lines from a wire in a fixed-width font, those that were used
// highlighted. The newest line is always scrolled to, unless the list pauses; a long line scrolls sideways.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <functional>
#include <string_view>
#include <utility>

#include "options/LiveLines.h"

namespace veerwatch {

/// The lines as a model; kHighlighted is true for the highlighted ones.
class LiveListModelQt final : public QAbstractListModel {
 public:
  static constexpr int kHighlighted = Qt::UserRole;

  using QAbstractListModel::QAbstractListModel;

  /// Whether the line stands in the list now.
  bool Add(std::string_view text, bool highlighted);
  void Clear();
  void Pause(bool paused);
  void Type(std::string_view type);
  const LiveLines& Lines() const { return m_lines; }

  /// Whom to tell of a type of sentence that came for the first time.
  void TypeFound(std::function<void()> handler) { m_typeFound = std::move(handler); }

  int rowCount(const QModelIndex& parent = {}) const override;
  /// Bytes are characters of ISO 8859-1, control characters are shown as pictures.
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  LiveLines m_lines;
  std::function<void()> m_typeFound;
};

class LiveListQt final : public QListView {
 public:
  LiveListQt(const char* name, const char* hint, QWidget* parent);

  /// Adds a line after all others. The list follows once per turn of the event loop.
  void Add(std::string_view text, bool highlighted);
  void Clear() { m_lines->Clear(); }

  /// Lets the list stand still; what comes meanwhile is added at the end of the pause.
  void Pause(bool paused);
  /// Lists a type of sentence only, "" for all.
  void Type(std::string_view type) { m_lines->Type(type); }
  LiveListModelQt& Model() { return *m_lines; }
  /// Puts every line that stands in the list on the clipboard, each with a line end.
  void CopyAll() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FixedFont();
  void FollowSoon();

  LiveListModelQt* m_lines;
  bool m_scrolling = false;  ///< will follow in this turn
  bool m_fitting = false;    ///< is choosing its font
};

}  // namespace veerwatch
