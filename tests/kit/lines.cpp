#include "tests/kit/lines.h"

#include <algorithm>

namespace lectern::kit {

Lines Split(std::string_view text, std::string_view separator) {
  Lines parts(1);
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!quoted && text.substr(i).starts_with(separator)) {
      parts.emplace_back();
      i += separator.size() - 1;
      continue;
    }
    if (text[i] == '"') quoted = !quoted;
    parts.back() += text[i];
    if (text[i] == '\\' && quoted && i + 1 < text.size()) parts.back() += text[++i];
  }
  return parts;
}

std::string Joined(const Lines& parts, std::string_view separator) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) text.append(i == 0 ? "" : separator).append(parts[i]);
  return text;
}

bool Fits(std::string_view expected, std::string_view got) {
  constexpr std::string_view kAnything = "…";
  const std::size_t at = expected.find(kAnything);
  if (at == std::string_view::npos) return expected == got;
  const std::string_view behind = expected.substr(at + kAnything.size());
  return got.size() >= at + behind.size() && got.starts_with(expected.substr(0, at)) && got.ends_with(behind);
}

bool Fits(const Lines& expected, const Lines& got) {
  std::size_t at = 0;
  bool skipping = false;
  for (const std::string& line : expected) {
    if (line == "…") {
      skipping = true;
      continue;
    }
    while (skipping && at < got.size() && !Fits(line, got[at])) ++at;
    skipping = false;
    if (at == got.size() || !Fits(line, got[at++])) return false;
  }
  return skipping || at == got.size();
}

namespace {

std::string Numbered(char sign, std::size_t index, const std::string& line) {
  return sign + std::to_string(index + 1) + (line.empty() ? "" : " " + line);
}

}  // namespace

Lines Difference(const Lines& before, const Lines& now) {
  // How many lines are common to what follows the i-th line of one and the j-th of the other.
  std::vector<std::vector<int>> common(before.size() + 1, std::vector<int>(now.size() + 1));
  for (std::size_t i = before.size(); i-- > 0;) {
    for (std::size_t j = now.size(); j-- > 0;) {
      common[i][j] =
          before[i] == now[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  Lines difference;
  for (std::size_t i = 0, j = 0; i < before.size() || j < now.size();) {
    if (i < before.size() && j < now.size() && before[i] == now[j]) {
      ++i;
      ++j;
    } else if (j == now.size() || (i < before.size() && common[i + 1][j] >= common[i][j + 1])) {
      difference.push_back(Numbered('-', i, before[i]));
      ++i;
    } else {
      difference.push_back(Numbered('+', j, now[j]));
      ++j;
    }
  }
  return difference.empty() ? Lines{"unchanged"} : difference;
}

}  // namespace lectern::kit
