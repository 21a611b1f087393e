#include "alarms/Notices.h"

#include "platform/VisibleText.h"

namespace veerwatch {

void Notices::Set(NoticeKind kind, const std::string& text) {
  const std::string visible = VisibleText(text);
  Notice& notice = m_notices[kind];
  if (notice.Text != visible) {
    notice = {visible, visible.empty()};
  }
}

void Notices::Dismiss() {
  for (auto& [kind, notice] : m_notices) {
    if (!notice.Read && !notice.Text.empty()) {
      notice.Read = true;
      return;
    }
  }
}

std::vector<std::string> Notices::Texts() const {
  std::vector<std::string> texts;
  for (const auto& [kind, notice] : m_notices) {
    if (!notice.Read && !notice.Text.empty()) {
      texts.push_back(notice.Text);
    }
  }
  return texts;
}

std::string Notices::Line() const {
  const std::vector<std::string> texts = Texts();
  if (texts.empty()) {
    return {};
  }
  return texts.size() == 1 ? texts.front()
                           : texts.front() + " (and " + std::to_string(texts.size() - 1) + " more)";
}

}  // namespace veerwatch
