// A data folder with a little of everything that the program reads, for tests that go everywhere: three
// short books in both versions, all lists, a bookmark, a note and a few pictures of some pixels.
#pragma once

#include <string>

namespace lectern {

// Makes the folder hold just that, which is tests/data/world.
void LaySmallWorld(const std::string& folder);

// Puts all 66 books beside it, where the older builder of the concordance looks for them and gives up at the
// first that is missing.
void LayBooksToBuildFrom(const std::string& folder);

}  // namespace lectern
