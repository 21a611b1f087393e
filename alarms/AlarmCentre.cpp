#include "alarms/AlarmCentre.h"

#include "platform/VisibleText.h"

namespace veerwatch {

void AlarmCentre::Set(AlarmKind kind, const std::string& text) {
  const std::string visible = VisibleText(text);
  Notice& notice = m_notices[kind];
  if (notice.Text != visible) {
    notice = {visible, visible.empty()};
  }
}

void AlarmCentre::Dismiss() {
  for (auto& [kind, notice] : m_notices) {
    if (!notice.Read && !notice.Text.empty()) {
      notice.Read = true;
      return;
    }
  }
}

std::vector<std::string> AlarmCentre::Texts() const {
  std::vector<std::string> texts;
  for (const auto& [kind, notice] : m_notices) {
    if (!notice.Read && !notice.Text.empty()) {
      texts.push_back(notice.Text);
    }
  }
  return texts;
}

std::string AlarmCentre::Line() const {
  const std::vector<std::string> texts = Texts();
  if (texts.empty()) {
    return {};
  }
  return texts.size() == 1 ? texts.front()
                           : texts.front() + " (and " + std::to_string(texts.size() - 1) + " more)";
}

}  // namespace veerwatch
