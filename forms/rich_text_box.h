// A pane of text with runs of style, a font of its own, a selection and a search.
//
// Positions count characters of Text from 0, and a line end is CR LF, two of them. A pane that is read-only
// lets a person select and copy; the program's own code writes all the same.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/rich_text.h"

namespace lectern::forms {

inline constexpr int kFindNoHighlight = 8;

// The size in points that a pane is shown in until it is given one.
inline constexpr double kReadingSize = 11;

struct RichTextBoxDesign {
  std::string_view text{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool read_only = false;
};

// What stands above a page: its title, and what is said besides.
struct Heading {
  std::string title;
  std::string detail;
};

class RichTextBox : public TextControl {
 public:
  using Design = RichTextBoxDesign;

  RichTextBox(Container& parent, std::string name, const Design& design = {});

  bool ReadOnly() const { return read_only_; }

  // Replaces the whole content from a file: rich text where the file begins as such, plain text where not.
  // Change runs, also where the text is the same.
  void LoadFile(std::string_view path);
  void LoadBytes(std::string_view bytes);  // as from a file that holds them

  // Replaces the whole content by rich text.
  void Show(RichText content);

  // The first position of `sought` from `start` on; -1 if there is none, and for an empty text. Case
  // does not matter, and the inside of words counts. With kFindNoHighlight the selection stays; without, it
  // moves to what was found.
  int Find(std::string_view sought, int start, int options);

  // Gives `length` characters from each start on a colour, as SelColor would one after the other.
  // Requires: the starts ascend, at least that far from one another.
  void ColourPlaces(const std::vector<std::size_t>& starts, std::size_t length, Colour colour);

  const TextRuns& Runs() const { return runs_; }
  bool TextIsAscii() const { return is_ascii_; }

  // Grow whenever the program's own code changed the text, or the style of some of it.
  unsigned TextGeneration() const { return text_generation_; }
  unsigned StyleGeneration() const { return style_generation_; }

  // The person replaces `removed` characters from `start` on.
  void PersonEdits(std::size_t start, std::size_t removed, std::string_view inserted);
  void PersonTypes(const std::string& text) override;
  void PersonSelects(int start, int length);

  RuledProperty<std::string> Text;
  RuledProperty<int> SelStart;  // writing it leaves nothing selected
  RuledProperty<int> SelLength;
  ComputedProperty<std::string> SelText;  // writing it puts the text in the selection's place
  ComputedProperty<Colour> SelColor;      // of the selection; read from its first character
  Event<> Change;

  // The selection with its reference, as it is copied for use elsewhere; "" if nothing can be quoted. Empty
  // for a pane whose text is not quoted.
  std::function<std::string()> Quote;

  // What the text is, as a layer that shows it as a page may say above it. Empty for a pane that is no page
  // of a book.
  std::function<forms::Heading()> Heading;

 private:
  // A character's position and where its bytes begin.
  struct Place {
    std::size_t position = 0;
    std::size_t byte = 0;
  };

  void Replace(std::size_t start, std::size_t removed, std::string_view inserted);
  void TextWritten();
  void PutSelectionInside();
  std::size_t LengthInCharacters();
  std::size_t ByteOf(std::size_t position);  // the text's size where there is no such position

  TextRuns runs_;
  // Counts over a text that is not plain ASCII, kept until it changes: otherwise a walk from find to find
  // would count from the beginning each time.
  std::optional<std::size_t> length_;
  Place reached_;
  bool read_only_;
  bool is_ascii_ = true;
  bool editing_ = false;  // while Text changes in part, and the runs with it
  unsigned text_generation_ = 0;
  unsigned style_generation_ = 0;
};

}  // namespace lectern::forms
