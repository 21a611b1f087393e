// A port whose number the profile leads to a pty, with an owner that keeps a record, for all tests of
// SerialPortQt.
#pragma once

#include "platform/SerialPortQt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <string>

#include "app/PortMakerQt.h"
#include "platform/PortNames.h"
#include "platform/SystemClock.h"
#include "tests/support/PortOwner.h"
#include "tests/support/Pty.h"

namespace veerwatch {

inline constexpr int kLimit = 30000;  // [ms], for anything that must happen

inline bool Await(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, kLimit); }

/// How many of a thousand turns of the event loop found anything to do.
inline int BusyTurns() {
  int busy = 0;
  for (int turn = 0; turn < 1000; ++turn) {
    busy += QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents) ? 1 : 0;
  }
  return busy;
}

class SerialPortQtTest : public testing::Test {
 protected:
  SerialPortQtTest() : m_port(m_profile, PortMaker(m_clock), DeviceIsThere), m_owner(m_port) {
    Name(1, m_pty.Device());
    m_port.CommPort(1);
  }

  void Name(int number, const std::string& device) {
    m_profile.ProfileSet("Ports", std::to_string(number), std::string_view(device));
  }

  std::string FileName(const char* name) const { return m_folder.filePath(name).toStdString(); }

  /// Turns the event loop until the pty hands a mark from the port's own side through: everything that was
  /// under way before has been handled then.
  void PassAMark() {
    const std::size_t before = m_owner.Text.size();
    ASSERT_EQ(m_pty.Write("|"), 1U);
    ASSERT_TRUE(Await([&] { return m_owner.Text.size() > before && m_owner.Text.back() == '|'; }));
    m_owner.Text.pop_back();
  }

  QTemporaryDir m_folder;
  Pty m_pty;
  Profile m_profile;
  SystemClock m_clock;
  NamedPort m_port;
  PortOwner m_owner;
};

}  // namespace veerwatch
