#include "tools/make_data/plates/sections.h"

#include "tools/make_data/texts.h"
#include "tools/make_data/written_texts.h"

namespace lectern::plates {

namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(" \t\r\n") - start + 1);
}

}  // namespace

std::string Section::Value(std::string_view key) const {
  for (const auto& [name, value] : entries) {
    if (name == key) return value;
  }
  return {};
}

std::vector<std::string> Section::Values(std::string_view key) const {
  std::vector<std::string> values;
  for (const auto& [name, value] : entries) {
    if (name == key) values.push_back(value);
  }
  return values;
}

std::vector<Section> ReadSections(std::string_view text) {
  std::vector<Section> sections;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (Trimmed(line).empty() || line.starts_with('#')) continue;
    if (line.starts_with('[')) {
      sections.emplace_back().title = line.substr(1, line.find(']') - 1);
    } else if (sections.empty()) {
      throw make_data::Obstacle("A line stands before the first section: " + std::string(line));
    } else if (line.starts_with(' ')) {
      sections.back().body.emplace_back(line);
    } else {
      const std::size_t colon = std::min(line.find(':'), line.size());
      sections.back().entries.emplace_back(Trimmed(line.substr(0, colon)),
                                           Trimmed(line.substr(std::min(colon + 1, line.size()))));
    }
  }
  return sections;
}

std::vector<std::string> Parts(std::string_view text, char separator) {
  std::vector<std::string> parts;
  while (!Trimmed(text).empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    parts.emplace_back(Trimmed(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

std::string_view WrittenTable(std::string_view name) {
  for (const make_data::WrittenText& table : make_data::kPlateTables) {
    if (table.file == name) return table.text;
  }
  throw make_data::Obstacle("There is no table " + std::string(name) + ".");
}

}  // namespace lectern::plates
