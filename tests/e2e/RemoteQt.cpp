// The program with a remote control on its standard input, for tests that need somebody at the buttons and
// for the pictures of the manual. A NAME is looked for in all windows, WINDOW/NAME in that one. Ports, timers
// and profile are the program's own. One command a line, one answer a line:
//   click NAME      triggers an action or clicks a button          "clicked NAME"
//   text NAME       asks for the text of a label, an entry box or a button   "text NAME=TEXT"
//   watch NAME      asks for every text that a label shows, the present one first  "shows NAME=TEXT"
//   type NAME TEXT  puts a text into an entry box and takes it     "typed NAME"
//   size NAME W H   gives a window that size [px]                  "sized NAME"
//   grab NAME FILE  keeps a picture of a window, PNG               "grabbed NAME"
//   delays          how late events were since the last time       "delays COUNT MEDIAN P99 P999 MOST", in ms
//   step CLOCK S    sets the "wall", "steady" or "boot" clock forward, the wall clock also back [s]  "stepped
//   CLOCK" memory          how much it has taken and not given back       "memory BYTES" quit closes the main
//   window, as the end of the input does
// "ready" is said once in the beginning; "no NAME" when there is none of that name or it is disabled.

#include <unistd.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <vector>

#include "app/ProgramQt.h"
#include "tests/e2e/SteppedClock.h"
#include "tests/support/MemoryInUse.h"

#ifdef __SANITIZE_ADDRESS__
// What the desktop's libraries keep to the end of the program.
extern "C" const char* __lsan_default_suppressions() { return "leak:libdbus-1\n"; }
#endif

namespace {

/// How late the event loop is: a timer of a fixed interval, measured each time that it comes.
class Delays final : public QObject {
 public:
  explicit Delays(QObject* parent) : QObject(parent), m_counts(kMost) {
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { Measure(); });
    m_timer.start(kInterval);
    m_clock.start();
  }

  /// The delays since the last call; the first call comes from before anything was measured.
  QString Take() {
    const QString text = QStringLiteral("delays %1 %2 %3 %4 %5")
                             .arg(m_count)
                             .arg(Quantile(0.5), 0, 'f', 1)
                             .arg(Quantile(0.99), 0, 'f', 1)
                             .arg(Quantile(0.999), 0, 'f', 1)
                             .arg(Quantile(1.0), 0, 'f', 1);
    m_counts.assign(kMost, 0);
    m_count = 0;
    return text;
  }

 private:
  static constexpr int kInterval = 5;            // [ms]
  static constexpr std::size_t kMost = 100'000;  // tenths of a millisecond that are told apart
  static constexpr double kTenths = 10.0;        // of a millisecond

  void Measure() {
    const double passed = static_cast<double>(m_clock.nsecsElapsed()) / 1e6;
    m_clock.restart();
    const double late = std::max(0.0, passed - kInterval);
    ++m_counts[std::min(static_cast<std::size_t>(late * kTenths), kMost - 1)];
    ++m_count;
  }

  /// [ms], not less than what that part of the delays was.
  double Quantile(double part) const {
    const auto wanted = static_cast<std::uint64_t>(std::ceil(part * static_cast<double>(m_count)));
    std::uint64_t seen = 0;
    for (std::size_t at = 0; at < m_counts.size(); ++at) {
      seen += m_counts[at];
      if (seen >= wanted && m_count > 0) {
        return static_cast<double>(at + 1) / kTenths;
      }
    }
    return 0.0;
  }

  QTimer m_timer;
  QElapsedTimer m_clock;
  std::vector<std::uint64_t> m_counts;
  std::uint64_t m_count = 0;
};

class Remote final : public QObject {
 public:
  explicit Remote(QWidget& window)
      : QObject(&window), m_window(window), m_notifier(STDIN_FILENO, QSocketNotifier::Read) {
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] { Read(); });
    Say("ready");
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      SayWhenNew(*qobject_cast<QLabel*>(watched));
    }
    return false;
  }

 private:
  static void Say(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
  }

  void SayWhenNew(const QLabel& label) {
    const auto [shown, first] = m_shown.try_emplace(&label, label.text());
    if (first || shown->second != label.text()) {
      shown->second = label.text();
      Say(QStringLiteral("shows %1=%2").arg(label.objectName(), label.text()));
    }
  }

  void Read() {
    std::array<char, 1024> part{};
    const ssize_t length = ::read(STDIN_FILENO, part.data(), part.size());
    if (length <= 0) {
      m_notifier.setEnabled(false);
      m_window.close();
      return;
    }
    m_line.append(part.data(), length);
    for (qsizetype end = m_line.indexOf('\n'); end >= 0; end = m_line.indexOf('\n')) {
      const QString line = QString::fromUtf8(m_line.left(end));
      m_line.remove(0, end + 1);
      Obey(line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1));
    }
  }

  /// What has that name, in the window that is named too or in whichever; null without.
  template <class Type>
  static Type* Find(const QString& name) {
    const QString inside = name.contains(QLatin1Char('/')) ? name.section(QLatin1Char('/'), 0, 0) : QString();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* found = window->findChild<Type*>(name.section(QLatin1Char('/'), -1));
      if (found != nullptr && (inside.isEmpty() || window->objectName() == inside)) {
        return found;
      }
    }
    return nullptr;
  }

  static QWidget* Window(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == name && window->isVisible()) {
        return window;
      }
    }
    return nullptr;
  }

  /// The verbs with more than a name; false for others, and where nothing has that name.
  static bool ObeyWith(const QString& verb, const QString& name, const QString& rest) {
    QWidget* window = Window(name);
    auto* box = Find<QLineEdit>(name);
    if (verb == QLatin1String("type") && box != nullptr) {
      box->setFocus();
      box->selectAll();
      box->insert(rest);
      for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent enter(type, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(box, &enter);
      }
      Say(QStringLiteral("typed ") + name);
    } else if (verb == QLatin1String("size") && window != nullptr) {
      window->resize(rest.section(QLatin1Char(' '), 0, 0).toInt(), rest.section(QLatin1Char(' '), 1).toInt());
      Say(QStringLiteral("sized ") + name);
    } else if (verb == QLatin1String("step") && name == QLatin1String("wall")) {
      veerwatch::StepWallClock(rest.toLongLong());
      Say(QStringLiteral("stepped wall"));
    } else if (verb == QLatin1String("step") && name == QLatin1String("boot")) {
      veerwatch::StepBootClock(rest.toLongLong());
      Say(QStringLiteral("stepped boot"));
    } else if (verb == QLatin1String("step") && name == QLatin1String("steady")) {
      veerwatch::StepSteadyClock(rest.toLongLong());
      Say(QStringLiteral("stepped steady"));
    } else if (verb == QLatin1String("grab") && window != nullptr && window->grab().save(rest)) {
      Say(QStringLiteral("grabbed ") + name);
    } else {
      return false;
    }
    return true;
  }

  void Obey(const QString& verb, const QString& name) {
    if (verb == QLatin1String("quit")) {
      m_window.close();
      return;
    }
    if (verb == QLatin1String("delays")) {
      if (m_delays == nullptr) {
        m_delays = new Delays(this);
      }
      Say(m_delays->Take());
      return;
    }
    if (verb == QLatin1String("memory")) {
      Say(QStringLiteral("memory %1").arg(veerwatch::MemoryInUse()));
      return;
    }
    const QString first = name.section(QLatin1Char(' '), 0, 0);
    if (ObeyWith(verb, first, name.section(QLatin1Char(' '), 1))) {
      return;
    }
    if (verb == QLatin1String("click")) {
      auto* action = Find<QAction>(name);
      auto* button = Find<QAbstractButton>(name);
      if (action != nullptr && action->isEnabled()) {
        action->trigger();
      } else if (button != nullptr && button->isEnabled()) {
        button->click();
      } else {
        Say(QStringLiteral("no ") + name);
        return;
      }
      Say(QStringLiteral("clicked ") + name);
      return;
    }
    auto* label = Find<QLabel>(name);
    const auto* box = Find<QLineEdit>(name);
    const auto* button = Find<QAbstractButton>(name);
    if (verb == QLatin1String("watch") && label != nullptr) {
      label->installEventFilter(this);
      SayWhenNew(*label);
    } else if (verb == QLatin1String("text") && (label != nullptr || box != nullptr)) {
      Say(QStringLiteral("text %1=%2").arg(name, label != nullptr ? label->text() : box->text()));
    } else if (verb == QLatin1String("text") && button != nullptr) {
      Say(QStringLiteral("text %1=%2").arg(name, button->text()));
    } else {
      Say(QStringLiteral("no ") + name);
    }
  }

  QWidget& m_window;
  QSocketNotifier m_notifier;
  QByteArray m_line;
  Delays* m_delays = nullptr;  ///< from the first time that somebody asks
  std::map<const QLabel*, QString> m_shown;
};

}  // namespace

int main(int argc, char* argv[]) {
  return veerwatch::RunProgram(argc, argv, [](QWidget& window) { new Remote(window); });
}
