// What a line costs on its way through a port, and through the recorder of the input.

#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/PortMakerQt.h"
#include "bench/Allocations.h"
#include "helm/HelmObserver.h"
#include "log/InputRecorder.h"
#include "platform/Endpoint.h"
#include "platform/SerialPort.h"
#include "platform/SystemClock.h"

namespace veerwatch {
namespace {

constexpr std::string_view kLine = "$IIMWV,045.0,R,14.5,N,A*2F\r\n";
constexpr int kBatch = 500;  // lines

/// Whoever uses a port, and counts what comes.
class Counter final : public SerialPort::Events {
 public:
  explicit Counter(SerialPort& port) : m_port(port), m_connection(port.Connect(*this)) {}

  void OnComm(int /*commEvent*/) override {
    m_port.Input(m_text);
    for (const char c : m_text) {
      Lines += c == '\r' ? 1 : 0;
    }
  }
  void OnPortLost() override {}

  int Lines = 0;

 private:
  SerialPort& m_port;
  std::string m_text;
  SerialPort::Connection m_connection;
};

/// A port on one endpoint, and its owner.
struct Opened {
  explicit Opened(const std::string& text)
      : Port(PortMaker(Time)(
            std::get<std::vector<Endpoint>>(ParseEndpoints(text, [](const std::string& /*path*/) {
              return false;
            })).front())) {
    Port->CommPort(1);
    Good = Port->PortOpen(true);
  }

  SystemClock Time;
  std::unique_ptr<SerialPort> Port;
  bool Good = false;
  Counter Owner{*Port};
};

sockaddr_in Here(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

/// A socket with a number of the system's choice.
class Socket {
 public:
  explicit Socket(int type) : m_handle(::socket(AF_INET, type | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = Here(0);
    socklen_t size = sizeof address;
    static_cast<void>(::bind(m_handle, reinterpret_cast<sockaddr*>(&address), size));
    ::getsockname(m_handle, reinterpret_cast<sockaddr*>(&address), &size);
    Number = ntohs(address.sin_port);
  }
  ~Socket() { ::close(m_handle); }
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;

  int Handle() const { return m_handle; }

  std::uint16_t Number = 0;

 private:
  int m_handle;
};

/// Sends `batch` and turns the event loop until all of its lines have come.
template <class Send>
void Measure(benchmark::State& state, Opened& opened, const Send& sendBatch) {
  const auto pass = [&] {
    opened.Owner.Lines = 0;
    sendBatch();
    while (opened.Owner.Lines < kBatch) {
      QCoreApplication::processEvents();
    }
  };
  // Buffers grow to their size first.
  for (int i = 0; i < 10; ++i) {
    pass();
  }
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    pass();
  }
  const auto lines = static_cast<double>(state.iterations()) * kBatch;
  state.counters["allocations/line"] = static_cast<double>(AllocationCount() - before) / lines;
  state.SetItemsProcessed(state.iterations() * kBatch);
}

std::string Batch() {
  std::string batch;
  for (int i = 0; i < kBatch; ++i) {
    batch += kLine;
  }
  return batch;
}

void LinesFromTcp(benchmark::State& state) {
  const Socket listens(SOCK_STREAM);
  ::listen(listens.Handle(), 1);
  Opened opened("tcp://127.0.0.1:" + std::to_string(listens.Number));
  const int far = ::accept(listens.Handle(), nullptr, nullptr);
  const std::string batch = Batch();
  Measure(state, opened, [&] { ::send(far, batch.data(), batch.size(), 0); });
  opened.Port->PortOpen(false);
  ::close(far);
}
BENCHMARK(LinesFromTcp)->Unit(benchmark::kMicrosecond);

void LinesFromATcpClient(benchmark::State& state) {
  const std::uint16_t number = Socket(SOCK_STREAM).Number;
  Opened opened("tcp-listen://:" + std::to_string(number));
  const Socket far(SOCK_STREAM);
  const sockaddr_in address = Here(number);
  static_cast<void>(::connect(far.Handle(), reinterpret_cast<const sockaddr*>(&address), sizeof address));
  const std::string batch = Batch();
  Measure(state, opened, [&] { ::send(far.Handle(), batch.data(), batch.size(), 0); });
  opened.Port->PortOpen(false);
}
BENCHMARK(LinesFromATcpClient)->Unit(benchmark::kMicrosecond);

/// Each line is a datagram.
void LinesFromUdp(benchmark::State& state) {
  const std::uint16_t number = Socket(SOCK_DGRAM).Number;
  Opened opened("udp://:" + std::to_string(number));
  const Socket far(SOCK_DGRAM);
  const sockaddr_in address = Here(number);
  Measure(state, opened, [&] {
    // No more at a time than the system keeps.
    constexpr int kAtATime = 50;
    for (int sent = 0; sent < kBatch; sent += kAtATime) {
      for (int i = 0; i < kAtATime; ++i) {
        ::sendto(far.Handle(), kLine.data(), kLine.size(), 0, reinterpret_cast<const sockaddr*>(&address),
                 sizeof address);
      }
      while (opened.Owner.Lines < sent + kAtATime) {
        QCoreApplication::processEvents();
      }
    }
  });
  opened.Port->PortOpen(false);
}
BENCHMARK(LinesFromUdp)->Unit(benchmark::kMicrosecond);

void LinesFromAFile(benchmark::State& state) {
  const QTemporaryDir folder;
  const std::string name = folder.filePath(QStringLiteral("a.log")).toStdString();
  // All at once, as often as it takes.
  constexpr int kBatches = 2000;
  {
    std::ofstream file(name);
    for (int i = 0; i < kBatches * kBatch; ++i) {
      file << "1795252502.0 " << kLine;
    }
  }
  Opened opened("file://" + name);
  for (int i = 0; i < 10; ++i) {
    while (opened.Owner.Lines < kBatch * (i + 1)) {
      QCoreApplication::processEvents();
    }
  }
  const int linesBefore = opened.Owner.Lines;
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    QCoreApplication::processEvents();
  }
  const double lines = opened.Owner.Lines - linesBefore;
  state.counters["allocations/line"] = static_cast<double>(AllocationCount() - before) / lines;
  state.SetItemsProcessed(opened.Owner.Lines - linesBefore);
  opened.Port->PortOpen(false);
}
BENCHMARK(LinesFromAFile)->Unit(benchmark::kMicrosecond)->Iterations(100);

/// A sentence to a port that sends datagrams, and one that has clients.
void SentencesToUdp(benchmark::State& state) {
  const Socket far(SOCK_DGRAM);
  Opened opened("udp://127.0.0.1:" + std::to_string(far.Number));
  opened.Port->Output(kLine);
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    opened.Port->Output(kLine);
  }
  state.counters["allocations/line"] =
      static_cast<double>(AllocationCount() - before) / static_cast<double>(state.iterations());
  opened.Port->PortOpen(false);
}
BENCHMARK(SentencesToUdp)->Unit(benchmark::kMicrosecond);

void RecordedLines(benchmark::State& state) {
  const QTemporaryDir folder;
  HelmObservers observers;
  const SystemClock clock;
  InputRecorder recorder(
      observers, clock, [] { return 2; }, [](const std::string& /*why*/) {});
  recorder.Start(folder.filePath(QStringLiteral("a.nmea")).toStdString());
  const std::string_view line = kLine.substr(0, kLine.size() - 2);
  const auto record = [&] {
    observers.Tell([line](HelmObserver& told) { told.OnNmeaLine(line, LineFault::None, true); });
  };
  record();
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    record();
  }
  state.counters["allocations/line"] =
      static_cast<double>(AllocationCount() - before) / static_cast<double>(state.iterations());
}
// Less than a file holds before the next one begins.
BENCHMARK(RecordedLines)->Unit(benchmark::kMicrosecond)->Iterations(500'000);

}  // namespace
}  // namespace veerwatch
