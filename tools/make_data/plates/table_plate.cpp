#include "tools/make_data/plates/table_plate.h"

#include <algorithm>
#include <numeric>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

namespace {

constexpr double kBlockGap = 28;
constexpr double kHeadHeight = 24;

}  // namespace

TablePlate::TablePlate(const Section& section)
    : title_(section.title),
      passage_(ShownPassage(section.Value("passage"))),
      heads_(Parts(section.Value("columns"), '|')) {
  if (const std::string blocks = section.Value("blocks"); !blocks.empty()) blocks_ = std::stoul(blocks);
  for (const std::string& line : section.body) rows_.push_back(Parts(line, '|'));
  const Canvas trial;
  room_ = DrawHeading(trial.Context(), title_, passage_);
  for (const double size : {19.0, 18.0, 17.0, 16.0, 15.0, 14.0, 13.0, 12.0, 11.0}) {
    if (Try(size)) {
      fits_ = true;
      return;
    }
  }
}

Letters TablePlate::LettersOf(std::size_t column) const {
  return column == 0 ? Letters{.size = size_} : Letters{.size = size_ * 0.92, .is_italic = true};
}

double TablePlate::RowHeight() const {
  const auto rows = static_cast<double>((rows_.size() + blocks_ - 1) / blocks_);
  return std::min(size_ * 1.9, (room_.Height() - kHeadHeight) / rows);
}

bool TablePlate::Try(double size) {
  size_ = size;
  if (RowHeight() < size * 1.22) return false;
  widths_.assign(heads_.size(), 0);
  for (std::size_t column = 0; column < heads_.size(); ++column) {
    widths_[column] =
        Measure(heads_[column], {.size = size * 0.85, .has_small_capitals = true, .spacing = 0.6}).width;
    for (const Row& row : rows_) {
      if (column < row.size()) {
        widths_[column] = std::max(widths_[column], Measure(row[column], LettersOf(column)).width);
      }
    }
    if (column + 1 < heads_.size()) widths_[column] += size * 1.1;
  }
  const double width = std::accumulate(widths_.begin(), widths_.end(), 0.0);
  const auto blocks = static_cast<double>(blocks_);
  const double spare = room_.Width() - 20 - width * blocks - kBlockGap * (blocks - 1);
  if (spare < 0) return false;
  // Part of the remaining width goes between the columns.
  const double gaps = std::max(1.0, static_cast<double>(heads_.size() - 1)) * blocks;
  for (std::size_t column = 0; column + 1 < heads_.size(); ++column) {
    widths_[column] += std::min(size * 1.6, spare / gaps);
  }
  return true;
}

std::string TablePlate::AsJpeg() const {
  const Canvas canvas;
  cairo_t* const context = canvas.Context();
  DrawHeading(context, title_, passage_);
  const double width = std::accumulate(widths_.begin(), widths_.end(), 0.0);
  const auto blocks = static_cast<double>(blocks_);
  const std::size_t rows = (rows_.size() + blocks_ - 1) / blocks_;
  const double all = width * blocks + kBlockGap * (blocks - 1);
  double left = (kWidth - all) / 2;
  for (std::size_t first = 0; first < rows_.size(); first += rows) {
    DrawBlock(context, left, first, std::min(rows, rows_.size() - first));
    left += width + kBlockGap;
    if (first + rows < rows_.size()) {
      const double x = left - kBlockGap / 2;
      Line(context, {x, room_.top + 4}, {x, room_.bottom - 4}, 0.8, kGold);
    }
  }
  DrawFrame(context);
  return canvas.AsJpeg();
}

void TablePlate::DrawBlock(cairo_t* context, double left, std::size_t first, std::size_t count) const {
  const double row_height = RowHeight();
  const auto rows = static_cast<double>((rows_.size() + blocks_ - 1) / blocks_);
  const double top = room_.top + (room_.Height() - kHeadHeight - rows * row_height) / 2;
  const double width = std::accumulate(widths_.begin(), widths_.end(), 0.0);
  double x = left;
  for (std::size_t column = 0; column < heads_.size(); ++column) {
    DrawText(context, heads_[column], {.size = size_ * 0.85, .has_small_capitals = true, .spacing = 0.6},
             {x, top + 14}, Align::kLeft, kRed);
    x += widths_[column];
  }
  Line(context, {left, top + 20}, {left + width, top + 20}, 0.9, kGold);
  for (std::size_t i = 0; i < count; ++i) {
    x = left;
    const double base = top + kHeadHeight + row_height * (static_cast<double>(i) + 0.5) + size_ * 0.28;
    for (std::size_t column = 0; column < rows_[first + i].size(); ++column) {
      DrawText(context, rows_[first + i][column], LettersOf(column), {x, base}, Align::kLeft,
               column == 0 ? kInk : kFaintInk);
      x += widths_[column];
    }
  }
}

std::vector<std::string> TablePlate::Names() const {
  std::vector<std::string> names;
  for (const Row& row : rows_) names.push_back(row[0]);
  return names;
}

}  // namespace lectern::plates
