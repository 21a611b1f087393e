#include "platform/SignalsQt.h"

#include <QSocketNotifier>
#include <utility>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#endif

namespace veerwatch {

#ifdef Q_OS_WIN

void OnTerminationRequest(QObject*, std::function<void()>) {}

#else

namespace {

/// Read end and write end. A signal handler can reach nothing but a global.
std::array<int, 2> g_pipe{-1, -1};

extern "C" void TerminationSignal(int) {
  const int error = errno;
  const char mark = 1;
  // A full pipe already holds a request.
  if (write(g_pipe[1], &mark, 1) < 0) {
    errno = error;
  }
  errno = error;
}

}  // namespace

void OnTerminationRequest(QObject* context, std::function<void()> handler) {
  if (pipe(g_pipe.data()) != 0) {
    return;
  }
  for (const int end : g_pipe) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  auto* notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, context);
  QObject::connect(notifier, &QSocketNotifier::activated, context, [handler = std::move(handler)] {
    std::array<char, 16> marks{};
    while (read(g_pipe[0], marks.data(), marks.size()) > 0) {
    }
    handler();
  });
  struct sigaction action {};
  action.sa_handler = TerminationSignal;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    struct sigaction before {};
    const bool ignored = sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_IGN;
    if (number == SIGTERM || !ignored) {
      sigaction(number, &action, nullptr);
    }
  }
}

#endif

}  // namespace veerwatch
