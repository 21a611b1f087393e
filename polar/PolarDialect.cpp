#include "polar/PolarDialect.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::string_view kBlanks = " \t\v\f";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr float kLargestAngle = 180.0F;
constexpr std::size_t kLongestQuote = 20;

/// What stops the reading.
struct Trouble {
  std::string Text;
};

[[noreturn]] void Fail(int line, const std::string& what) {
  throw Trouble{Filled(Tr("line %1: %2"), {std::to_string(line), what})};
}

[[noreturn]] void Fail(int line, std::size_t column, const std::string& what) {
  throw Trouble{Filled(Tr("line %1, column %2: %3"), {std::to_string(line), std::to_string(column), what})};
}

/// A cell's text for a message: short and printable.
std::string Quoted(std::string_view text) {
  std::string quote(1, '"');
  for (const char c : text.substr(0, kLongestQuote)) {
    quote += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? '?' : c;
  }
  return quote + (text.size() > kLongestQuote ? "...\"" : "\"");
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// A cell without blanks and quotes around it.
std::string_view Bare(std::string_view cell) {
  cell = Trimmed(cell);
  const bool quoted = cell.size() >= 2 && cell.front() == '"' && cell.back() == '"';
  return quoted ? Trimmed(cell.substr(1, cell.size() - 2)) : cell;
}

bool IsComment(std::string_view line) {
  return line.starts_with('#') || line.starts_with('!') || line.starts_with('%') || line.starts_with("//");
}

/// "twa", alone or followed by some sign and "tws".
bool IsCorner(std::string_view text) {
  std::string letters;
  for (const char c : text) {
    letters += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  if (!letters.starts_with("twa")) {
    return false;
  }
  const std::string_view rest = Trimmed(std::string_view(letters).substr(3));
  return rest.empty() || (rest.size() > 3 && rest.ends_with("tws") &&
                          rest.find_first_of("abcdefghijklmnopqrstuvwxyz0123456789") == rest.size() - 3);
}

char SeparatorOf(std::string_view header) {
  for (const char separator : {'\t', ';', ','}) {
    if (header.find(separator) != std::string_view::npos) {
      return separator;
    }
  }
  return ' ';
}

std::vector<std::string_view> Cells(std::string_view line, char separator) {
  std::vector<std::string_view> cells;
  if (separator == ' ') {
    std::size_t at = line.find_first_not_of(kBlanks);
    while (at != std::string_view::npos) {
      const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
      cells.push_back(Bare(line.substr(at, end - at)));
      at = line.find_first_not_of(kBlanks, end);
    }
    return cells;
  }
  for (std::size_t at = 0; at <= line.size();) {
    const std::size_t end = std::min(line.find(separator, at), line.size());
    cells.push_back(Bare(line.substr(at, end - at)));
    at = end + 1;
  }
  // A separator after the last cell means nothing.
  while (!cells.empty() && cells.back().empty()) {
    cells.pop_back();
  }
  return cells;
}

std::optional<float> CellNumber(std::string_view cell, char separator) {
  std::string text(cell);
  if ((separator == ';' || separator == '\t') && text.find('.') == std::string::npos) {
    std::replace(text.begin(), text.end(), ',', '.');
  }
  return StrictNumber(text);
}

using Speed = std::optional<float>;

struct Row {
  int Line = 0;
  float Angle = 0.0F;
  std::vector<Speed> Speeds;  ///< by column of the file
};

class Reader {
 public:
  void Line(int number, std::string_view line) {
    const std::string_view text = Trimmed(line.substr(0, line.find('#')));
    if (text.empty() || IsComment(text)) {
      return;
    }
    if (m_winds.empty()) {
      Header(number, line.substr(0, line.find('#')));
    } else {
      Data(number, line.substr(0, line.find('#')));
    }
  }

  /// Returns the note.
  std::string Store(PolarTable& table, int slot, int lastLine) {
    if (m_winds.empty()) {
      Fail(std::max(lastLine, 1), Tr("no table"));
    }
    if (m_rows.empty()) {
      Fail(lastLine, Tr("no rows behind the wind speeds"));
    }
    Sort();
    const std::vector<std::size_t> kept = Kept();
    // A row that cannot be filled ends it before anything is stored.
    std::vector<std::vector<float>> speeds(m_rows.size());
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
      for (const std::size_t wind : kept) {
        speeds[row].push_back(SpeedAt(row, wind));
      }
    }
    for (std::size_t i = 0; i < kept.size(); ++i) {
      table.Value(slot, 0, static_cast<int>(i) + 1) = m_winds[kept[i]].first;
    }
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
      table.Value(slot, static_cast<int>(row) + 1, 0) = m_rows[row].Angle;
      for (std::size_t i = 0; i < kept.size(); ++i) {
        table.Value(slot, static_cast<int>(row) + 1, static_cast<int>(i) + 1) = speeds[row][i];
      }
    }
    table.PolarRows(slot) = static_cast<std::int16_t>(m_rows.size());
    table.PolarColumns(slot) = static_cast<std::int16_t>(kept.size());
    return kept.size() == m_winds.size()
               ? std::string()
               : Filled(Tr("of %1 wind speeds %2 are kept"),
                        {std::to_string(m_winds.size()), std::to_string(kept.size())});
  }

 private:
  void Header(int line, std::string_view text) {
    m_separator = SeparatorOf(Trimmed(text));
    const auto cells = Cells(m_separator == '\t' ? text : Trimmed(text), m_separator);
    const std::string_view corner = cells.empty() ? std::string_view() : cells.front();
    if (!IsCorner(corner)) {
      Fail(line, 1, Filled(Tr("%1 where \"TWA\" should stand"), {Quoted(corner)}));
    }
    if (cells.size() < 2) {
      Fail(line, 2, Tr("no wind speeds"));
    }
    if (cells.size() - 1 > kMostDialectWinds) {
      Fail(line, kMostDialectWinds + 2,
           Filled(Tr("more than %1 wind speeds"), {std::to_string(kMostDialectWinds)}));
    }
    for (std::size_t i = 1; i < cells.size(); ++i) {
      const auto wind = CellNumber(cells[i], m_separator);
      if (!wind || *wind < 0.0F) {
        Fail(line, i + 1, Filled(Tr("%1 is no wind speed"), {Quoted(cells[i])}));
      }
      for (const auto& other : m_winds) {
        if (other.first == *wind) {
          Fail(line, i + 1, Filled(Tr("the wind speed %1 is there already"), {ShortestText(*wind)}));
        }
      }
      m_winds.emplace_back(*wind, i - 1);
    }
  }

  void Data(int line, std::string_view text) {
    const auto cells = Cells(m_separator == '\t' ? text : Trimmed(text), m_separator);
    if (cells.empty()) {
      return;
    }
    if (cells.size() - 1 > m_winds.size()) {
      Fail(line, m_winds.size() + 2, Tr("more cells than the first line has"));
    }
    if (m_rows.size() == PolarTable::kMostRows) {
      Fail(line, Filled(Tr("more than %1 rows"), {std::to_string(PolarTable::kMostRows)}));
    }
    const auto angle = CellNumber(cells.front(), m_separator);
    if (!angle || *angle < 0.0F || *angle > kLargestAngle) {
      Fail(line, 1, Filled(Tr("%1 is no angle from 0 to 180"), {Quoted(cells.front())}));
    }
    for (const Row& other : m_rows) {
      if (other.Angle == *angle) {
        Fail(line, 1,
             Filled(Tr("the angle %1 is there already, in line %2"),
                    {ShortestText(*angle), std::to_string(other.Line)}));
      }
    }
    Row row{line, *angle, std::vector<Speed>(m_winds.size())};
    for (std::size_t i = 1; i < cells.size(); ++i) {
      if (cells[i].empty()) {
        continue;
      }
      const auto speed = CellNumber(cells[i], m_separator);
      if (!speed || *speed < 0.0F) {
        Fail(line, i + 1, Filled(Tr("%1 is no boat speed"), {Quoted(cells[i])}));
      }
      row.Speeds[i - 1] = speed;
    }
    m_rows.push_back(std::move(row));
  }

  void Sort() {
    std::sort(m_winds.begin(), m_winds.end());
    std::sort(m_rows.begin(), m_rows.end(), [](const Row& a, const Row& b) { return a.Angle < b.Angle; });
    for (Row& row : m_rows) {
      const std::vector<Speed> speeds = row.Speeds;
      for (std::size_t column = 0; column < m_winds.size(); ++column) {
        row.Speeds[column] = speeds[m_winds[column].second];
      }
    }
  }

  /// The wind speeds that a table has room for, of the sorted ones.
  std::vector<std::size_t> Kept() const {
    const std::size_t last = m_winds.size() - 1;
    const std::size_t steps = std::min<std::size_t>(last, PolarTable::kMostColumns - 1);
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i <= steps; ++i) {
      kept.push_back(steps == 0 ? 0 : (2 * i * last + steps) / (2 * steps));
    }
    return kept;
  }

  float SpeedAt(std::size_t row, std::size_t column) const {
    const std::vector<Row>& known = m_rows;
    if (const Speed own = known[row].Speeds[column]) {
      return *own;
    }
    // Each neighbour: where it is and its speed.
    using Neighbour = std::optional<std::pair<float, float>>;
    Neighbour less;
    Neighbour more;
    for (std::size_t i = 0; i < m_winds.size(); ++i) {
      if (const Speed speed = known[row].Speeds[i]) {
        if (i < column) {
          less = {m_winds[i].first, *speed};
        } else if (!more) {
          more = {m_winds[i].first, *speed};
        }
      }
    }
    const float wind = m_winds[column].first;
    if (less && more) {
      return Interpolate(wind, less->first, more->first, less->second, more->second);
    }
    Neighbour before;
    Neighbour after;
    for (std::size_t i = 0; i < known.size(); ++i) {
      if (const Speed speed = known[i].Speeds[column]) {
        if (i < row) {
          before = {known[i].Angle, *speed};
        } else if (!after) {
          after = {known[i].Angle, *speed};
        }
      }
    }
    if (before && after) {
      return Interpolate(known[row].Angle, before->first, after->first, before->second, after->second);
    }
    if (more) {
      return Interpolate(wind, 0.0F, more->first, 0.0F, more->second);
    }
    if (less) {
      return less->second;
    }
    Fail(known[row].Line, Tr("a row without any boat speed"));
  }

  char m_separator = ' ';
  std::vector<std::pair<float, std::size_t>> m_winds;  ///< with their column in the file, from 0
  std::vector<Row> m_rows;
};

}  // namespace

DialectResult PolarReadDialect(PolarTable& table, int slot, std::string_view text) {
  try {
    if (text.starts_with(kByteOrderMark)) {
      text.remove_prefix(kByteOrderMark.size());
    }
    Reader reader;
    int line = 0;
    while (!text.empty()) {
      const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
      reader.Line(++line, text.substr(0, end));
      const bool two = text.substr(end, 2) == "\r\n";
      text.remove_prefix(std::min(end + (two ? 2 : 1), text.size()));
    }
    return {{}, reader.Store(table, slot, line)};
  } catch (const Trouble& trouble) {
    return {trouble.Text, {}};
  }
}

}  // namespace veerwatch
