// What a topic of the index says by itself, without its passages.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/dictionary/topics.h"
#include "tools/make_data/dictionary/wording.h"

namespace lectern::make_data {

struct Fact {
  std::string sentence;  // without its stop
  int number = 0;        // of several persons or places of one name, from 1; 0 if there is only one
  enum class Says {
    kWhat,  // what a thing is: "A celestial spirit"
    kWho,   // who or where a person or place is: "A son of Noah"
    kUse,   // what is done with a thing: "Used for food"
    kDeed,  // what a person does, or what happens to a person or place: "Kills Goliath", "Captured by David"
  };
  Says says = Says::kDeed;

  bool Defines() const { return says == Says::kWhat || says == Says::kWho; }
};

// The items that can be read as sentences. Left out are those that only point to passages ("Lineage of"), to
// other headings or to editions, and those that are damaged.
std::vector<Fact> FactsOf(const Topic& topic, const Wording& wording);

// The heading to which a topic without facts refers, and the number there; "" if there is none.
struct See {
  std::string heading;
  int number = 0;
};
See SeeOf(const Topic& topic);

}  // namespace lectern::make_data
