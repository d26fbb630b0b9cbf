#include "search/line_rules.h"

namespace lectern::search {

LineFindings SearchLine(std::u32string_view line, std::u32string_view first, std::u32string_view second,
                        const LineRules& rules, bool book_has_name, char32_t& next) {
  LineFindings findings;
  std::size_t i = kFirstPlace;
  while (rules.FirstLooksAt(i, line.size())) {
    if (i >= line.size() || line.substr(i, first.size()) != first) {
      ++i;
      continue;
    }
    if (i + first.size() < line.size()) next = line[i + first.size()];
    const bool counts = !rules.Rejects(next) && (book_has_name || rules.CountsNameless());
    findings.candidate = findings.candidate || counts;
    if (counts && second.empty()) ++findings.hits;
    std::size_t j = 0;
    while (counts && !second.empty() && rules.SecondLooksAt(j, line.size())) {
      if (line.substr(j, second.size()) != second) {
        ++j;
        continue;
      }
      ++findings.hits;
      if (j >= kNextPlace) break;
      j = kNextPlace;
    }
    // Rejected or not, the first candidate decides the verse.
    if (i >= kNextPlace) break;
    i = kNextPlace;
  }
  return findings;
}

}  // namespace lectern::search
