// The system's requests to end (SIGTERM, SIGINT, SIGHUP) as a call from the event loop.
#pragma once

#include <functional>

class QObject;

namespace veerwatch {

/// From now on each request calls `handler` from the event loop, as long as `context` lives. SIGHUP and
/// SIGINT stay ignored where whoever started the process wants it (nohup, a script's background). One call
/// per process. Without effect where the system has no such signals.
void OnTerminationRequest(QObject* context, std::function<void()> handler);

}  // namespace veerwatch
