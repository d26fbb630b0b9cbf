// The texts that were written for the data folder. They lie as files beside the tool's source and are carried
// inside it, so that it needs nothing but itself to install them.
#pragma once

#include <span>
#include <string_view>

namespace lectern::make_data {

struct WrittenText {
  std::string_view file;  // its name, without the folder
  std::string_view text;
};

extern const std::span<const WrittenText> kHelpSources;    // one a topic
extern const std::span<const WrittenText> kTriviaSources;  // questions of the game

}  // namespace lectern::make_data
