#include "tools/make_data/plates/reign_plate.h"

#include <algorithm>
#include <sstream>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

namespace {

constexpr Letters kNames{.size = 13};
constexpr double kNameStep = 12.8;
constexpr double kMiddle = kWidth / 2.0;
constexpr double kHead = 20;

}  // namespace

ReignPlate::ReignPlate(const Section& section)
    : title_(section.title),
      passage_(ShownPassage(section.Value("passage"))),
      left_head_(section.Value("left")),
      right_head_(section.Value("right")),
      from_(std::stod(section.Value("from"))),
      to_(std::stod(section.Value("to"))),
      lanes_(4) {
  const Canvas trial;
  room_ = DrawHeading(trial.Context(), title_, passage_);
  room_.top += kHead;
  lanes_[0] = {{}, kMiddle - 46, kMiddle - 26, kMiddle - 62, Align::kRight, kRed};
  lanes_[1] = {{}, kMiddle - 196, kMiddle - 182, kMiddle - 208, Align::kRight, kGold};
  lanes_[2] = {{}, kMiddle + 26, kMiddle + 46, kMiddle + 62, Align::kLeft, kBlue};
  lanes_[3] = {{}, kMiddle + 182, kMiddle + 196, kMiddle + 208, Align::kLeft, kGold};
  for (const std::string& line : section.body) {
    std::istringstream fields(line);
    std::string side, what;
    Reign reign;
    double from = 0, to = 0;
    fields >> side >> what >> reign.name >> from >> to;
    reign.from = HeightOf(from);
    reign.to = HeightOf(to);
    const bool is_left = side == "judah";
    lanes_[(is_left ? 0U : 2U) + (what == "king" ? 0U : 1U)].reigns.push_back(reign);
  }
  for (Lane& lane : lanes_) SpreadNames(lane);
}

double ReignPlate::HeightOf(double year) const {
  return room_.top + (from_ - year) / (from_ - to_) * room_.Height();
}

// Puts each name as near to the middle of its bar as the other names allow.
void ReignPlate::SpreadNames(Lane& lane) {
  double least = room_.top + 4;
  for (Reign& reign : lane.reigns) {
    reign.name_at = std::max(least, (reign.from + reign.to) / 2 + 4);
    least = reign.name_at + kNameStep;
  }
  double most = room_.bottom;
  for (auto reign = lane.reigns.rbegin(); reign != lane.reigns.rend(); ++reign) {
    reign->name_at = std::min(reign->name_at, most);
    most = reign->name_at - kNameStep;
    fits_ = fits_ && reign->name_at >= room_.top;
  }
}

std::string ReignPlate::AsJpeg() const {
  const Canvas canvas;
  cairo_t* const context = canvas.Context();
  DrawHeading(context, title_, passage_);
  const Letters head{.size = 14, .has_small_capitals = true, .spacing = 1.2};
  DrawText(context, left_head_, head, {kMiddle - 62, room_.top - 10}, Align::kRight, kRed);
  DrawText(context, right_head_, head, {kMiddle + 62, room_.top - 10}, Align::kLeft, kBlue);
  DrawText(context, "Prophets", head, {kMiddle - 208, room_.top - 10}, Align::kRight, kFaintInk);
  DrawText(context, "Prophets", head, {kMiddle + 208, room_.top - 10}, Align::kLeft, kFaintInk);
  DrawYears(context);
  for (const Lane& lane : lanes_) DrawLane(context, lane);
  DrawFrame(context);
  return canvas.AsJpeg();
}

void ReignPlate::DrawYears(cairo_t* context) const {
  constexpr int kStep = 50;
  for (int year = static_cast<int>(from_) / kStep * kStep; year >= to_; year -= kStep) {
    const double y = HeightOf(year);
    Line(context, {kMiddle - 24, y}, {kMiddle - 15, y}, 0.8, kFaintInk);
    Line(context, {kMiddle + 15, y}, {kMiddle + 24, y}, 0.8, kFaintInk);
    DrawText(context, std::to_string(year), {.size = 12}, {kMiddle, y + 4}, Align::kMiddle, kFaintInk);
  }
}

void ReignPlate::DrawLane(cairo_t* context, const Lane& lane) const {
  const double toward = lane.align == Align::kRight ? -1 : 1;
  const double edge = toward < 0 ? lane.bar_left : lane.bar_right;
  bool is_dark = true;
  double last_end = 0;
  for (const Reign& reign : lane.reigns) {
    // A prophet whose time overlaps with another's is drawn a little to the side.
    const double aside = reign.from < last_end - 0.5 && lane.colour.red == kGold.red ? -toward * 18 : 0;
    if (aside == 0) last_end = reign.to;
    const Box bar{lane.bar_left + aside, reign.from, lane.bar_right + aside,
                  std::max(reign.from + 1.2, reign.to)};
    SetColour(context, lane.colour, is_dark ? 0.85 : 0.45);
    cairo_rectangle(context, bar.left, bar.top, bar.Width(), bar.Height());
    cairo_fill(context);
    StrokeBox(context, bar, 0.6, kInk);
    is_dark = !is_dark;
    const double middle = (bar.top + bar.bottom) / 2;
    SetColour(context, kFaintInk);
    cairo_set_line_width(context, 0.6);
    cairo_move_to(context, edge + aside, middle);
    cairo_line_to(context, edge + toward * 4, middle);
    cairo_line_to(context, lane.name_at - toward * 3, reign.name_at - 3.5);
    cairo_stroke(context);
    DrawText(context, reign.name, kNames, {lane.name_at, reign.name_at}, lane.align, kInk);
  }
}

std::vector<std::string> ReignPlate::Names() const {
  std::vector<std::string> names;
  for (const Lane& lane : lanes_) {
    for (const Reign& reign : lane.reigns) names.push_back(reign.name);
  }
  return names;
}

}  // namespace lectern::plates
