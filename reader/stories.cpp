#include "reader/stories.h"

#include "base/errors.h"

namespace lectern::reader {

namespace {

enum class Order { kBookFirst, kChapterFirst };
enum class Failures { kLeave, kIgnore };

struct Submenu {
  const char* control;
  const char* caption;
};

// ODDITY(kept-spelling): some captions are misspelt; readers know them that way.
constexpr Submenu kSubmenus[] = {
    {"dd2", "The Beginning"}, {"dd3", "Abraham"}, {"dd4", "Noah"}, {"ddd8", "Moses"},
    {"dd5", "David"},         {"dd6", "Peter"},   {"dd7", "Paul"}, {"dd8", "Jesus"},
};

}  // namespace

struct Story {
  const char* submenu;
  const char* caption;
  const char* control;
  const char* book;  // for both labels
  const char* chapter;
  Order order = Order::kBookFirst;
  Failures failures = Failures::kLeave;
};

namespace {

constexpr Story kStories[] = {
    {"dd2", "Adam and Eve", "ss3", "Genesis", "2"},
    {"dd2", "Cain and Abel", "sss4", "Genesis", "4"},
    {"dd2", "The Tower of Babel", "ss4", "Genesis", "11"},

    {"dd3", "God's Covenent", "ss1", "Genesis", "15"},
    {"dd3", "Three Visitors", "ss5", "Genesis", "18"},
    {"dd3", "Tested", "ss6", "Genesis", "22"},

    {"dd4", "The Flood", "ss7", "Genesis", "6"},
    {"dd4", "Noah's Ark", "sss8", "Genesis", "6"},
    {"dd4", "God's Covenent", "ss2", "Genesis", "9"},

    {"ddd8", "The Ten Commandments", "jj8", "Exodus", "20"},
    {"ddd8", "The Burning Bush", "ss8", "Exodus", "3"},
    {"ddd8", "Crossing the Sea", "ss9", "Exodus", "13"},
    {"ddd8", "At Sinia", "sss1", "Exodus", "19"},

    {"dd5", "And Samuel", "aaa3", "1-Samuel", "16", Order::kBookFirst, Failures::kIgnore},
    {"dd5", "And Goliath", "sss3", "1-Samuel", "17"},
    {"dd5", "And Saul", "aaa4", "1-Samuel", "19", Order::kBookFirst, Failures::kIgnore},
    {"dd5", "Becomes a King", "aaa5", "2-Samuel", "5", Order::kBookFirst, Failures::kIgnore},

    // ODDITY(peter-at-samuel): this entry goes where "And Samuel" goes.
    {"dd6", "Disowns Jesus", "ddd1", "1-Samuel", "16"},
    {"dd6", "Reinstated", "aaa9", "John", "21", Order::kBookFirst, Failures::kIgnore},
    {"dd6", "Heals a Beggar", "aaa8", "Acts", "3", Order::kBookFirst, Failures::kIgnore},
    {"dd6", "Escaping from Prison", "sss7", "Acts", "12"},

    {"dd7", "First Journey", "dddd5", "Acts", "13"},
    {"dd7", "In Prison", "ddd4", "Acts", "16"},
    {"dd7", "Shiprecked", "ddd3", "Acts", "27"},
    {"dd7", "Preaches in Rome", "ddd2", "Acts", "28"},

    {"dd8", "His Birth", "gg5", "Luke", "2", Order::kChapterFirst},
    {"dd8", "Changing Water to Wine", "gg1", "John", "2", Order::kChapterFirst},
    {"dd8", "Healing the Sick", "ff9", "Mark", "1"},
    {"dd8", "Walking on Water", "ff8", "Matthew", "14"},
    {"dd8", "At the Temple", "ff6", "Mark", "11"},
    {"dd8", "The Last Supper", "ff5", "John", "13"},
    {"dd8", "On Trial", "ff4", "Matthew", "27"},
    {"dd8", "Crusifiction", "ff3", "Matthew", "27"},
    {"dd8", "After his Death", "ff2", "John", "20"},
    {"dd8", "Return to Heaven", "ff1", "Luke", "24"},
};

}  // namespace

Stories::Stories(Reader& the_reader, forms::Menu& dd1) : reader_(the_reader) {
  for (const Submenu& submenu : kSubmenus) {
    forms::Menu& list =
        submenus_.emplace_back(dd1, submenu.control, forms::MenuDesign{.caption = submenu.caption});
    for (const Story& story : kStories) {
      if (list.Name() != story.submenu) continue;
      forms::Menu& entry =
          entries_.emplace_back(list, story.control, forms::MenuDesign{.caption = story.caption});
      entry.Click = [this, &story] { Entry_Click(story); };
    }
  }
}

// ODDITY(story-keeps-range): the chapter bar keeps the range of the previous book.
void Stories::Entry_Click(const Story& story) {
  const auto show = [&] {
    if (story.order == Order::kBookFirst) {
      reader_.ShowPassage(story.book, story.chapter);
    } else {
      // ODDITY(story-first-chapter): the name goes back to chapter 1, whatever the chapter of the entry.
      reader_.ShowChapterThenBook(story.book, story.chapter);
    }
  };
  const base::Ignoring ignore;
  if (story.failures == Failures::kIgnore) {
    ignore(show);
  } else {
    show();
  }
}

}  // namespace lectern::reader
