// Where the texts come from: the programs of the distribution that hold them, or a person's own file. Each
// throws an Obstacle that says what to install or what is wrong with the file.
#pragma once

#include <string>

#include "tools/make_data/verses.h"

namespace lectern::make_data {

// The King James text, read with the program `bible`.
Version ReadKingJames();

// The World English text, which stands in for the second version, read with `mod2imp`.
Version ReadWorldEnglish();

// A person's own second version: one verse a line ("Ge1:1 In the …"), or OSIS XML.
Version ReadOwnText(const std::string& path);

// The output of a command of the distribution; an Obstacle that names the package where the command is
// missing, fails or prints nothing.
std::string OutputOf(const std::string& command, const std::string& program, const std::string& packages);

// The font that a serif text shows in on this machine.
std::string SerifFont();

}  // namespace lectern::make_data
