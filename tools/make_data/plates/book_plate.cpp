#include "tools/make_data/plates/book_plate.h"

#include <algorithm>
#include <cmath>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/plates/ornament.h"
#include "tools/make_data/plates/sections.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

constexpr double kMargin = 46;           // of the text, from the frame
constexpr double kCapitalHeight = 0.65;  // of the em
constexpr double kInitialGap = 12;
constexpr double kTrialSize = 64;

// Without a title in brackets, which belongs to the psalm and not to its first verse.
std::string WithoutTitle(const std::string& words) {
  if (!words.starts_with('[')) return words;
  const std::size_t end = words.find(']');
  return end == std::string::npos ? words : words.substr(words.find_first_not_of(' ', end + 1));
}

bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }

// The divine name and other words in capitals, as printed: a capital and small capitals.
std::string Markup(const std::string& word, bool is_opening) {
  const auto capitals = std::count_if(word.begin(), word.end(), IsCapital);
  const std::string small = is_opening ? "smcp=1, c2sc=1" : "c2sc=1";
  if (is_opening) return "<span font_features='" + small + "'>" + word + "</span>";
  if (capitals < 2 || !IsCapital(word[0])) return word;
  return word.substr(0, 1) + "<span font_features='" + small + "'>" + word.substr(1) + "</span>";
}

Layout LayoutOf(const std::string& markup, double size) {
  Layout layout = NewLayout();
  SetLetters(layout.get(), {.size = size});
  pango_layout_set_attributes(layout.get(), nullptr);
  pango_layout_set_markup(layout.get(), markup.c_str(), static_cast<int>(markup.size()));
  return layout;
}

double WidthOf(const std::string& markup, double size) {
  int width = 0;
  pango_layout_get_size(LayoutOf(markup, size).get(), &width, nullptr);
  return static_cast<double>(width) / PANGO_SCALE;
}

}  // namespace

BookPlate::BookPlate(std::string book, std::string passage, const std::string& words, Colour ground)
    : book_(std::move(book)),
      passage_(std::move(passage)),
      plain_(Parts(WithoutTitle(words), ' ')),
      ground_(ground) {
  if (plain_.empty()) throw make_data::Obstacle("No words for the page of " + book_ + ".");
  initial_ = plain_[0].substr(0, 1);
  plain_[0].erase(0, 1);
  if (plain_[0].empty()) plain_.erase(plain_.begin());
  MeasureWords();
  const Canvas trial;
  room_ = DrawHeading(trial.Context(), book_, passage_);
  room_.left = kInside.left + kMargin;
  room_.right = kInside.right - kMargin;
  // Of all sizes and initials, the page that is fullest and most evenly spaced.
  double least = 1e9;
  double best_size = 0;
  int best_initial = 0;
  for (double size = 44; size >= 17; size -= 0.5) {
    for (const int initial_lines : {5, 4, 3}) {
      if (!Try(size, initial_lines)) continue;
      const double cost = Unevenness();
      if (cost < least) {
        least = cost;
        best_size = size;
        best_initial = initial_lines;
      }
    }
  }
  if (best_initial == 0) throw make_data::Obstacle("The verse of " + book_ + " is too long for its page.");
  Try(best_size, best_initial);
}

double BookPlate::LineWidth(const Line& line) const {
  double width = blank_ * static_cast<double>(line.count - 1);
  for (std::size_t word = line.first; word < line.first + line.count; ++word)
    width += words_[word].width_of_em * size_;
  return width;
}

double BookPlate::Unevenness() const {
  double widest_blank = 0;
  for (std::size_t i = 0; i + 1 < lines_.size(); ++i) {
    const double spare = room_.Width() - IndentOf(i) - LineWidth(lines_[i]);
    const double gaps = std::max(1.0, static_cast<double>(lines_[i].count) - 1);
    widest_blank = std::max(widest_blank, spare / gaps / size_);
  }
  const double fill = leading_ * static_cast<double>(lines_.size()) / room_.Height();
  const double last = LineWidth(lines_.back()) / room_.Width();
  const double initial = initial_side_ / room_.Height();
  constexpr double kShort = 0.35;
  return 5 * (1 - fill) * (1 - fill) + 3 * widest_blank + std::max(0.0, kShort - last) +
         1.5 * std::abs(initial - 0.36);
}

// Words keep their proportions in every size, so that they are measured once.
void BookPlate::MeasureWords() {
  std::size_t number = 0;
  for (const std::string& word : plain_) {
    // The rest of the first word and the next one stand in small capitals.
    const std::string markup = Markup(word, number < 2);
    words_.push_back({markup, WidthOf(markup, kTrialSize) / kTrialSize});
    ++number;
  }
}

double BookPlate::IndentOf(std::size_t line) const {
  return line < initial_lines_ ? initial_side_ + kInitialGap : 0;
}

std::vector<BookPlate::Line> BookPlate::Broken() const {
  std::vector<Line> lines;
  std::size_t at = 0;
  while (at < words_.size()) {
    const double room = room_.Width() - IndentOf(lines.size());
    Line line{at, 0};
    double width = 0;
    while (at < words_.size() &&
           (line.count == 0 || width + blank_ + words_[at].width_of_em * size_ <= room)) {
      width += (line.count == 0 ? 0 : blank_) + words_[at].width_of_em * size_;
      ++line.count;
      ++at;
    }
    lines.push_back(line);
  }
  return lines;
}

bool BookPlate::Try(double size, int initial_lines) {
  size_ = size;
  leading_ = size * 1.26;
  blank_ = size * 0.235;
  initial_lines_ = static_cast<std::size_t>(initial_lines);
  initial_side_ = leading_ * (initial_lines - 1) + size * kCapitalHeight;
  constexpr double kLargest = 160;
  if (initial_side_ > kLargest) return false;
  lines_ = Broken();
  // The text goes on below the initial, unless the verse is short.
  if (lines_.size() < initial_lines_ + (initial_lines_ > 3 ? 1 : 0)) return false;
  return leading_ * static_cast<double>(lines_.size()) <= room_.Height();
}

void BookPlate::DrawWord(cairo_t* context, const Word& word, Point at) const {
  const Layout layout = LayoutOf(word.markup, size_);
  cairo_move_to(context, at.x, at.y);
  pango_cairo_show_layout_line(context, pango_layout_get_line_readonly(layout.get(), 0));
  cairo_new_path(context);
}

std::string BookPlate::AsJpeg() const {
  const Canvas canvas;
  cairo_t* const context = canvas.Context();
  DrawHeading(context, book_, passage_);
  const double height = leading_ * static_cast<double>(lines_.size());
  const double spare = room_.Height() - height;
  constexpr double kTailpiece = 52;
  const bool has_tailpiece = spare > kTailpiece;
  const double top = room_.top + (spare - (has_tailpiece ? kTailpiece : 0)) / 2;
  const double capital = size_ * kCapitalHeight;
  const double first_base = top + (leading_ + capital) / 2;
  DrawInitial(
      context, initial_,
      {room_.left, first_base - capital, room_.left + initial_side_, first_base - capital + initial_side_},
      ground_);
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    const double width = LineWidth(line);
    const double room = room_.Width() - IndentOf(i);
    const bool is_last = i + 1 == lines_.size();
    const double blank =
        is_last || line.count < 2 ? blank_ : blank_ + (room - width) / static_cast<double>(line.count - 1);
    Point at{room_.left + IndentOf(i), first_base + leading_ * static_cast<double>(i)};
    SetColour(context, kInk);
    for (std::size_t word = line.first; word < line.first + line.count; ++word) {
      DrawWord(context, words_[word], at);
      at.x += words_[word].width_of_em * size_ + blank;
    }
  }
  if (has_tailpiece) DrawTailpiece(context, {kWidth / 2.0, top + height + kTailpiece / 2 + 6}, 170, kGold);
  DrawFrame(context);
  return canvas.AsJpeg();
}

}  // namespace lectern::plates
