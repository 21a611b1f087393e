// The port of a number: on the one endpoint, or the several, that section "Ports" of the profile names at the
// moment when it is opened. Lines of several endpoints are merged whole, and what is sent goes to each of
// them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Endpoint.h"
#include "platform/Profile.h"
#include "platform/SerialPort.h"

namespace veerwatch {

class NamedPort final : public SerialPort {
 public:
  /// Makes a closed port on an endpoint.
  using Maker = std::function<std::unique_ptr<SerialPort>(const Endpoint& endpoint)>;

  /// `profile` outlives the port. `exists` says whether a device of that name is there.
  NamedPort(const Profile& profile, Maker make, DeviceExists exists);
  ~NamedPort() override;

  void CommPort(int number) override;
  int CommPort() const override { return m_number; }
  bool PortOpen() const override { return m_open; }
  /// Opens all that the profile names; true when at least one of them is open. The others are tried again
  /// while it is open, every few calls of PollLineErrors, which come once a second.
  bool PortOpen(bool open) override;
  std::string OpenFailure() const override { return m_failure; }
  std::string Trouble() const override;
  /// The whole lines of one of several: of the one whose event is being told.
  void Input(std::string& text) override;
  int InputFrom() const override { return Single() ? 0 : m_from; }
  void Output(std::string_view bundle) override;
  std::uint64_t Sent() const override;
  /// That of the slowest.
  std::optional<int> BaudRate() const override;
  void Withdraw() override;
  void PollLineErrors() override;

 private:
  class Branch;
  using Branches = std::vector<std::unique_ptr<Branch>>;

  bool Single() const { return m_branches.size() == 1; }
  bool OpenAll();
  /// Makes the branches anew where the profile says something else than before; false when that is wrong.
  bool Make();
  void OnEvent(const Branch& from, int commEvent);
  void OnLost();
  void OnStandstill();

  const Profile& m_profile;
  Maker m_make;
  DeviceExists m_exists;
  int m_number = 1;
  bool m_open = false;
  std::string m_text;  ///< that the branches were made of
  std::string m_failure;
  Branches m_branches;
  Branches m_old;    ///< those of before, until nothing can be inside one of them
  int m_events = 0;  ///< events that are being told, one inside the other
  std::uint64_t m_sentBefore = 0;
  const Branch* m_telling = nullptr;  ///< whose event is being told
  int m_from = 0;                     ///< of the latest input
  std::string m_part;
};

}  // namespace veerwatch
