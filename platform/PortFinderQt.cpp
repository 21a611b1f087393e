#include "platform/PortFinderQt.h"

#include <QSerialPortInfo>
#include <algorithm>

namespace veerwatch {

std::vector<FoundPort> PortFinderQt::Found() const {
  std::vector<FoundPort> found;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
    found.push_back({LastingName(port.systemLocation().toStdString()), port.description().toStdString(),
                     port.serialNumber().toStdString()});
  }
  std::sort(found.begin(), found.end(),
            [](const FoundPort& a, const FoundPort& b) { return a.Device < b.Device; });
  return found;
}

}  // namespace veerwatch
