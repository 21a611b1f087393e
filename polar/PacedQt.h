// Work that many may wish for and that is done rarely.
#pragma once

#include <QTimer>
#include <functional>

namespace veerwatch {

class PacedQt {
 public:
  /// `work` is done when the event loop comes round after the first wish, and then not again before `rest`
  /// [ms] have passed, however many wishes come.
  PacedQt(int rest, std::function<void()> work);
  PacedQt(const PacedQt&) = delete;
  PacedQt& operator=(const PacedQt&) = delete;

  void Wish();
  /// Does the work at once if a wish waits.
  void Now();
  /// Drops a wish that waits.
  void Forget() { m_wished = false; }

 private:
  int m_rest;
  std::function<void()> m_work;
  QTimer m_timer;  ///< runs until the work is due, then through the rest
  bool m_wished = false;
};

}  // namespace veerwatch
