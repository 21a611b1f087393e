#include "tests/e2e/SessionManager.h"

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
#include <poll.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include "tests/e2e/Process.h"

namespace veerwatch {

struct SessionManager::Manager {
  std::string Address;
  int ListenCount = 0;
  IceListenObj* Listening = nullptr;
  IceConn Connection = nullptr;
  SmsConn Client = nullptr;
  int Saves = 0;  ///< answers to requests to save
  std::vector<std::string> Restart;

  static Manager& Of(SmPointer self) { return *static_cast<Manager*>(self); }

  static Status Register(SmsConn client, SmPointer, char* former) {
    char* id = former != nullptr ? former : SmsGenerateClientID(client);
    SmsRegisterClientReply(client, id);
    std::free(id);
    SmsSaveYourself(client, SmSaveLocal, False, SmInteractStyleNone, False);
    return 1;
  }

  static void Saved(SmsConn client, SmPointer self, Bool) {
    ++Of(self).Saves;
    SmsSaveComplete(client);
  }

  static void Left(SmsConn, SmPointer self, int count, char** reasons) {
    SmFreeReasons(count, reasons);
    Of(self).Part();
  }

  static void Forget(SmsConn, SmPointer, int count, char** names) {
    for (char** name = names; name != names + count; ++name) {
      std::free(*name);
    }
    std::free(names);
  }

  static void Properties(SmsConn, SmPointer self, int count, SmProp** properties) {
    for (SmProp** property = properties; property != properties + count; ++property) {
      if (std::string_view((*property)->name) == SmRestartCommand) {
        Of(self).Restart.clear();
        for (int i = 0; i < (*property)->num_vals; ++i) {
          const SmPropValue& word = (*property)->vals[i];
          Of(self).Restart.emplace_back(static_cast<const char*>(word.value),
                                        static_cast<std::size_t>(word.length));
        }
      }
      SmFreeProperty(*property);
    }
    std::free(properties);
  }

  static Status NewClient(SmsConn client, SmPointer self, unsigned long* wanted, SmsCallbacks* calls,
                          char**) {
    Of(self).Client = client;
    *wanted = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
              SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
              SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
              SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    calls->register_client = {Register, self};
    calls->interact_request = {[](SmsConn asking, SmPointer, int) { SmsInteract(asking); }, self};
    calls->interact_done = {[](SmsConn, SmPointer, Bool) {}, self};
    calls->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, self};
    calls->save_yourself_phase2_request = {[](SmsConn asking, SmPointer) { SmsSaveYourselfPhase2(asking); },
                                           self};
    calls->save_yourself_done = {Saved, self};
    calls->close_connection = {Left, self};
    calls->set_properties = {Properties, self};
    calls->delete_properties = {Forget, self};
    calls->get_properties = {[](SmsConn asking, SmPointer) { SmsReturnProperties(asking, 0, nullptr); },
                             self};
    return 1;
  }

  bool AwaitSaves(SessionManager& manager, int count) {
    return Await([&] {
      manager.Serve();
      return Saves >= count;
    });
  }

  /// Closes the connection, if there is one.
  void Part() {
    if (Client != nullptr) {
      SmsCleanUp(Client);
    }
    if (Connection != nullptr) {
      IceSetShutdownNegotiation(Connection, False);
      IceCloseConnection(Connection);
    }
    Client = nullptr;
    Connection = nullptr;
  }

  void Accept(IceListenObj from) {
    IceAcceptStatus status = IceAcceptFailure;
    IceConn connection = IceAcceptConnection(from, &status);
    if (status != IceAcceptSuccess) {
      return;
    }
    while (IceConnectionStatus(connection) == IceConnectPending) {
      IceProcessMessages(connection, nullptr, nullptr);
    }
    if (IceConnectionStatus(connection) == IceConnectAccepted) {
      Connection = connection;
    }
  }
};

SessionManager::SessionManager() : m_manager(std::make_unique<Manager>()) {
  std::array<char, 256> error{};
  // Whoever can reach it may come in; and a client that goes away takes nobody along.
  const auto anybody = [](char*) -> Bool { return True; };
  IceSetIOErrorHandler([](IceConn) {});
  if (SmsInitialize("Veerwatch", "1", Manager::NewClient, m_manager.get(), anybody, error.size(),
                    error.data()) == 0 ||
      IceListenForConnections(&m_manager->ListenCount, &m_manager->Listening, error.size(), error.data()) ==
          0) {
    throw std::runtime_error(error.data());
  }
  for (int i = 0; i < m_manager->ListenCount; ++i) {
    IceSetHostBasedAuthProc(m_manager->Listening[i], anybody);
  }
  char* address = IceComposeNetworkIdList(m_manager->ListenCount, m_manager->Listening);
  m_manager->Address = address;
  std::free(address);
}

SessionManager::~SessionManager() {
  m_manager->Part();
  IceFreeListenObjs(m_manager->ListenCount, m_manager->Listening);
}

const std::string& SessionManager::Address() const { return m_manager->Address; }

bool SessionManager::AwaitClient() { return m_manager->AwaitSaves(*this, 1); }

bool SessionManager::Save(bool logOut) {
  if (m_manager->Client == nullptr) {
    return false;
  }
  const int before = m_manager->Saves;
  SmsSaveYourself(m_manager->Client, SmSaveBoth, logOut ? True : False, SmInteractStyleAny, False);
  return m_manager->AwaitSaves(*this, before + 1);
}

void SessionManager::CallOff() {
  if (m_manager->Client != nullptr) {
    SmsShutdownCancelled(m_manager->Client);
  }
}

void SessionManager::End() {
  if (m_manager->Client != nullptr) {
    SmsDie(m_manager->Client);
  }
}

const std::vector<std::string>& SessionManager::RestartCommand() const { return m_manager->Restart; }

void SessionManager::Serve() {
  std::vector<pollfd> waiting;
  for (int i = 0; i < m_manager->ListenCount; ++i) {
    waiting.push_back({IceGetListenConnectionNumber(m_manager->Listening[i]), POLLIN, 0});
  }
  if (m_manager->Connection != nullptr) {
    waiting.push_back({IceConnectionNumber(m_manager->Connection), POLLIN, 0});
  }
  if (::poll(waiting.data(), waiting.size(), 0) <= 0) {
    return;
  }
  if (m_manager->Connection != nullptr && waiting.back().revents != 0) {
    if (IceProcessMessages(m_manager->Connection, nullptr, nullptr) == IceProcessMessagesIOError) {
      m_manager->Part();
    }
    return;
  }
  for (int i = 0; i < m_manager->ListenCount; ++i) {
    if (waiting[static_cast<std::size_t>(i)].revents != 0) {
      m_manager->Accept(m_manager->Listening[i]);
    }
  }
}

}  // namespace veerwatch
