// How one part of the program tells others: whoever wants to be told joins the list of whoever tells, and
// leaves it when his membership ends.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace veerwatch {

template <class Observer>
class ObserverList {
  struct Members {
    std::vector<Observer*> List;
    bool Gaps = false;  ///< somebody has left while the list was walked through
  };

 public:
  /// The place of one observer in a list; its end is the end of being told. It may outlive the list.
  class Membership {
   public:
    Membership() = default;
    Membership(Membership&& other) noexcept
        : m_members(std::move(other.m_members)), m_observer(std::exchange(other.m_observer, nullptr)) {}
    Membership& operator=(Membership&& other) noexcept {
      std::swap(m_members, other.m_members);
      std::swap(m_observer, other.m_observer);
      return *this;
    }
    ~Membership() {
      const auto members = m_members.lock();
      if (members && m_observer != nullptr) {
        // Somebody may be walking through the list; and an observer may have joined again.
        if (const auto place = std::find(members->List.begin(), members->List.end(), m_observer);
            place != members->List.end()) {
          *place = nullptr;
          members->Gaps = true;
        }
      }
    }

   private:
    friend class ObserverList;
    Membership(const std::shared_ptr<Members>& members, Observer& observer)
        : m_members(members), m_observer(&observer) {}

    std::weak_ptr<Members> m_members;
    Observer* m_observer = nullptr;
  };

  ObserverList() = default;
  ObserverList(const ObserverList&) = delete;
  ObserverList& operator=(const ObserverList&) = delete;

  /// From now on `observer` is told, after those that joined before, as long as the membership lasts.
  [[nodiscard]] Membership Join(Observer& observer) {
    m_members->List.push_back(&observer);
    return Membership(m_members, observer);
  }

  /// Calls `call` with each observer. One that joins meanwhile is called, too; one that leaves is not called
  /// any more.
  template <class Call>
  void Tell(Call&& call) {
    ++m_telling;
    for (std::size_t i = 0; i < m_members->List.size(); ++i) {
      if (Observer* observer = m_members->List[i]) {
        call(*observer);
      }
    }
    if (--m_telling == 0 && std::exchange(m_members->Gaps, false)) {
      std::erase(m_members->List, nullptr);
    }
  }

 private:
  std::shared_ptr<Members> m_members = std::make_shared<Members>();
  int m_telling = 0;  ///< walks through the list, one inside the other
};

}  // namespace veerwatch
