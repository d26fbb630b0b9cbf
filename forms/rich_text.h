// Text with runs of style. Positions count characters from 0; a line end is CR LF, two characters.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/colour.h"

namespace lectern::forms {

// How a run differs from its pane; what is not set is as in the pane.
struct TextStyle {
  std::optional<Colour> colour;
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::string font;  // "" for the pane's
  double size = 0;   // points, 0 for the pane's

  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

struct TextRun {
  std::size_t start = 0;
  std::size_t length = 0;
  TextStyle style;

  std::size_t End() const { return start + length; }
};

// Runs in ascending order that do not overlap; between them the style is the pane's.
class TextRuns {
 public:
  const std::vector<TextRun>& All() const { return runs_; }
  void Clear() { runs_.clear(); }
  void Append(TextRun run);  // Requires: it begins where the last one ends, or behind

  TextStyle At(std::size_t position) const;

  // Gives `length` characters from each start on another colour and leaves the rest of their style.
  // Requires: the starts ascend, at least that far from one another.
  void SetColour(const std::vector<std::size_t>& starts, std::size_t length, Colour colour);

  // The text was edited: `removed` characters at `start` gave place to `inserted` others.
  void Edited(std::size_t start, std::size_t removed, std::size_t inserted);

 private:
  std::size_t SplitAt(std::size_t position);

  std::vector<TextRun> runs_;
};

struct RichText {
  std::string text;
  TextRuns runs;
};

bool LooksLikeRtf(std::string_view bytes);

// Reads rich text as word processors write it, as far as a help page needs: paragraphs, fonts, sizes, bold,
// italic, underlined, colours and special characters. Everything else is skipped, and any bytes give some
// text.
RichText ReadRtf(std::string_view bytes);

// Plain text with every line end made CR LF.
std::string WithCrLf(std::string_view text);

}  // namespace lectern::forms
