#include "tools/make_data/dictionary/topics.h"

#include <algorithm>
#include <map>

#include "base/files/record_reader.h"
#include "reader/reference.h"
#include "tools/make_data/markup.h"

namespace lectern::make_data {

namespace {

constexpr std::string_view kHeadingMark = "$$$";

// The value after `start`, up to the next quote; empty if the tag does not begin with `start`.
std::string_view ValueOf(std::string_view tag, std::string_view start) {
  if (!tag.starts_with(start)) return {};
  const std::string_view value = tag.substr(start.size());
  return value.substr(0, value.find('"'));
}

// Parses the text of one topic, a tag at a time.
class ItemReader {
 public:
  std::vector<Item> Read(std::string_view markup) {
    while (!markup.empty()) {
      const std::size_t open = std::min(markup.find('<'), markup.size());
      if (!inside_passage_ && !behind_passage_) words_.append(markup.substr(0, open));
      markup.remove_prefix(open);
      const std::size_t close = markup.find('>');
      if (close == std::string_view::npos) break;
      TakeTag(markup.substr(1, close - 1));
      markup.remove_prefix(close + 1);
    }
    Finish();
    return std::move(items_);
  }

 private:
  void TakeTag(std::string_view tag) {
    if (tag.starts_with("lb") || tag == "item" || tag == "/item" || tag == "list" || tag == "/list") {
      Finish();
      item_.nested = tag == "item";
    } else if (const std::string_view id = ValueOf(tag, "ref osisRef=\""); !id.empty()) {
      TakePassage(id);
      inside_passage_ = true;
    } else if (const std::string_view target = ValueOf(tag, "ref target=\"Nave:"); !target.empty()) {
      item_.see.emplace_back(target);
    } else if (tag == "/ref" && inside_passage_) {
      inside_passage_ = false;
      // What follows is punctuation, and references that are not marked in the source.
      behind_passage_ = true;
    }
  }

  void TakePassage(std::string_view id) {
    const std::size_t dash = std::min(id.find('-'), id.size());
    const auto first = reader::ReadReference(id.substr(0, dash));
    const auto last = dash == id.size() ? first : reader::ReadReference(id.substr(dash + 1));
    if (!first || !last || first->reference.book != last->reference.book) return;
    item_.passages.push_back({first->reference.book, first->reference.chapter, first->reference.verse,
                              last->reference.chapter, last->reference.verse});
  }

  void Finish() {
    item_.words = PlainWords(words_);
    constexpr std::string_view kArrow = "→";
    if (item_.words.starts_with(kArrow)) item_.words.erase(0, kArrow.size() + 1);
    // Some items are two, the second after a dash.
    constexpr std::string_view kDash = " -";
    for (std::size_t at = item_.words.find(kDash); at != std::string::npos; at = item_.words.find(kDash)) {
      items_.push_back({item_.nested, item_.words.substr(0, at), {}, {}});
      item_.words.erase(0, at + kDash.size());
    }
    if (!item_.words.empty() || !item_.passages.empty()) items_.push_back(std::move(item_));
    item_ = {};
    words_.clear();
    behind_passage_ = false;
  }

  std::vector<Item> items_;
  Item item_;
  std::string words_;
  bool inside_passage_ = false;
  bool behind_passage_ = false;
};

}  // namespace

std::vector<Topic> ParseTopics(std::string_view module_text) {
  std::vector<Topic> topics;
  std::map<std::string, std::size_t> positions;
  std::string heading;
  std::string markup;
  const auto put = [&] {
    std::vector<Item> items = ItemReader().Read(markup);
    markup.clear();
    if (items.empty()) return;
    const auto [found, fresh] = positions.emplace(heading, topics.size());
    if (fresh) topics.push_back({heading, {}});
    std::vector<Item>& all = topics[found->second].items;
    all.insert(all.end(), std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
  };
  files::RecordReader lines(module_text);
  while (!lines.AtEnd()) {
    const std::string_view line = lines.Line();
    if (line.starts_with(kHeadingMark)) {
      put();
      heading = line.substr(kHeadingMark.size());
    } else {
      markup.append(line).append(1, ' ');
    }
  }
  put();
  return topics;
}

}  // namespace lectern::make_data
