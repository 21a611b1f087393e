// A desktop's session manager with one client: what asks programs to save, and ends them when a user logs
// out.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace veerwatch {

class SessionManager {
 public:
  /// Listens for a client from now on. One at a time in a process.
  SessionManager();
  ~SessionManager();
  SessionManager(const SessionManager&) = delete;
  SessionManager& operator=(const SessionManager&) = delete;

  /// Where a client finds it: the value of SESSION_MANAGER.
  const std::string& Address() const;

  /// True once a client is there and has answered the request to save that every new one gets.
  bool AwaitClient();

  // Without a client these do nothing.

  /// Asks the client to save, with a log-out to follow or not; true once it says that it has.
  bool Save(bool logOut);

  /// Tells the client that the log-out it has saved for will not come.
  void CallOff();

  /// Ends the session: the client has to go.
  void End();

  /// The program and the arguments that start the client again in the next session.
  const std::vector<std::string>& RestartCommand() const;

  /// Serves whoever has something to say. To be called while the client is waited for.
  void Serve();

 private:
  struct Manager;
  std::unique_ptr<Manager> m_manager;
};

}  // namespace veerwatch
