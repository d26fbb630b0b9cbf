#include "tools/make_data/plates/tree_plate.h"

#include <algorithm>
#include <functional>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

namespace {

constexpr double kBesideSize = 0.82;  // of the name's letters

void ReadBody(TreeNode& root, const std::vector<std::string>& body) {
  std::vector<TreeNode*> line = {&root};
  constexpr std::size_t kStep = 2;
  for (const std::string& text : body) {
    const std::size_t indent = text.find_first_not_of(' ');
    line.resize(std::min(indent / kStep + 1, line.size()));
    TreeNode& node = *line.back()->children.emplace_back(std::make_unique<TreeNode>());
    const std::vector<std::string> parts = Parts(text, '|');
    node.is_chief = parts[0].starts_with('*');
    node.name = parts[0].substr(node.is_chief ? 1 : 0);
    if (parts.size() > 1) node.beside = parts[1];
    line.push_back(&node);
  }
}

// Whether the names of each row, from the first shown, have a second line below them.
void SeeRows(const TreeNode& node, std::size_t level, std::vector<bool>& has_beside) {
  for (const auto& child : node.children) {
    if (has_beside.size() <= level) has_beside.push_back(false);
    has_beside[level] = has_beside[level] || !child->beside.empty();
    SeeRows(*child, level + 1, has_beside);
  }
}

// The number of rows of names below the node. Each line of a stack counts.
std::size_t TallestStack(const TreeNode& node) {
  std::size_t most = node.is_stacked ? node.children.size() : 0;
  for (const auto& child : node.children) most = std::max(most, TallestStack(*child));
  return most;
}

bool HasOnlyLeaves(const TreeNode& node) {
  return std::all_of(node.children.begin(), node.children.end(),
                     [](const auto& child) { return child->children.empty(); });
}

}  // namespace

TreePlate::TreePlate(const Section& section)
    : title_(section.title), passage_(ShownPassage(section.Value("passage"))) {
  ReadBody(root_, section.body);
  const Canvas trial;
  const Box room = DrawHeading(trial.Context(), title_, passage_);
  // The largest letters with which the tree fits, without stacks if possible.
  for (const double size : {19.0, 17.5, 16.0, 15.0, 14.0, 13.0, 12.0, 11.0}) {
    for (const bool may_stack : {false, true}) {
      fits_ = Try(room, size, may_stack);
      if (fits_) return;
    }
  }
}

bool TreePlate::Try(const Box& room, double size, bool may_stack) {
  constexpr double kTallest = 84, kSecondLine = 0.9, kLeastStep = 1.75;
  size_ = size;
  gap_ = size * 0.8;
  stack_step_ = size * 1.2;
  const double width = WidthOf(root_, may_stack);
  if (width > room.Width()) return false;
  std::vector<bool> has_beside;
  SeeRows(root_, 0, has_beside);
  const auto second_lines =
      static_cast<double>(std::count(has_beside.begin(), has_beside.end() - 1, true)) * size * kSecondLine;
  const auto stack = static_cast<double>(TallestStack(root_));
  const double below = (stack > 0 ? (stack - 1) * stack_step_ : 0) + (has_beside.back() ? size : 0);
  const double least = room.Height() - size - below - second_lines;
  const double step = std::min(kTallest, least / std::max(1.0, static_cast<double>(has_beside.size()) - 1));
  if (step < size * kLeastStep) return false;
  double height = size + below;
  steps_.clear();
  for (const bool is_double : has_beside) steps_.push_back(step + (is_double ? size * kSecondLine : 0));
  for (std::size_t i = 0; i + 1 < steps_.size(); ++i) height += steps_[i];
  double top = room.top + (room.Height() - height) / 2 + size * 0.8;
  const double left = room.left + (room.Width() - width) / 2;
  for (const auto& child : root_.children) Place(*child, left, top, 0);
  constexpr double kMostWidening = 1.7, kFull = 0.85;
  Widen(root_, std::clamp(kFull * room.Width() / width, 1.0, kMostWidening));
  return true;
}

double TreePlate::NameWidth(const TreeNode& node) const {
  double width = Measure(node.name, {.size = size_}).width;
  if (!node.beside.empty()) {
    width = std::max(width, Measure(node.beside, {.size = size_ * kBesideSize, .is_italic = true}).width);
  }
  return width + gap_;
}

double TreePlate::WidthOf(TreeNode& node, bool may_stack) {
  double across = 0;
  double widest = 0;
  for (const auto& child : node.children) {
    const double width = WidthOf(*child, may_stack);
    across += width;
    widest = std::max(widest, width);
  }
  constexpr std::size_t kFewest = 3;
  node.is_stacked = may_stack && &node != &root_ && node.children.size() >= kFewest && HasOnlyLeaves(node);
  node.width = std::max(&node == &root_ ? 0 : NameWidth(node), node.is_stacked ? widest : across);
  return node.width;
}

void TreePlate::Place(TreeNode& node, double left, double top, std::size_t level) {
  node.at = {left + node.width / 2, top};
  double children_width = 0;
  for (const auto& child : node.children) children_width += child->width;
  double from = node.is_stacked ? left : left + (node.width - children_width) / 2;
  double down = top + steps_[level];
  for (const auto& child : node.children) {
    if (node.is_stacked) child->width = node.width;
    Place(*child, from, down, level + 1);
    if (node.is_stacked) {
      down += stack_step_;
    } else {
      from += child->width;
    }
  }
  // A parent is above the middle of its children, not of the space that they take.
  if (!node.is_stacked && !node.children.empty()) {
    node.at.x = (node.children.front()->at.x + node.children.back()->at.x) / 2;
  }
}

// Spreads a narrow tree over more of the page.
void TreePlate::Widen(TreeNode& node, double share) const {
  constexpr double kMiddle = kWidth / 2.0;
  for (const auto& child : node.children) {
    child->at.x = kMiddle + (child->at.x - kMiddle) * share;
    Widen(*child, share);
  }
}

std::string TreePlate::AsJpeg() const {
  const Canvas canvas;
  DrawHeading(canvas.Context(), title_, passage_);
  for (const auto& child : root_.children) {
    DrawLines(canvas.Context(), *child);
    DrawNames(canvas.Context(), *child);
  }
  DrawFrame(canvas.Context());
  return canvas.AsJpeg();
}

void TreePlate::DrawLines(cairo_t* context, const TreeNode& node) const {
  SetColour(context, kGold);
  cairo_set_line_width(context, 1.4);
  const double from = node.at.y + (node.beside.empty() ? size_ * 0.4 : size_ * 1.25);
  for (const auto& child : node.children) {
    if (!node.is_stacked || child == node.children.front()) {
      const double to = child->at.y - size_ * 0.85;
      const double middle = (from + to) / 2;
      cairo_move_to(context, node.at.x, from);
      cairo_curve_to(context, node.at.x, middle + 4, child->at.x, middle - 4, child->at.x, to);
      cairo_stroke(context);
    }
    DrawLines(context, *child);
    SetColour(context, kGold);
  }
}

void TreePlate::DrawNames(cairo_t* context, const TreeNode& node) const {
  DrawText(context, node.name, {.size = size_}, node.at, Align::kMiddle, node.is_chief ? kRed : kInk);
  if (!node.beside.empty()) {
    DrawText(context, node.beside, {.size = size_ * kBesideSize, .is_italic = true},
             {node.at.x, node.at.y + size_ * 0.98}, Align::kMiddle, kFaintInk);
  }
  for (const auto& child : node.children) DrawNames(context, *child);
}

std::vector<std::string> TreePlate::Names() const {
  std::vector<std::string> names;
  const std::function<void(const TreeNode&)> gather = [&](const TreeNode& node) {
    for (const auto& child : node.children) {
      names.push_back(child->name);
      if (!child->beside.empty()) names.push_back(child->beside);
      gather(*child);
    }
  };
  gather(root_);
  return names;
}

}  // namespace lectern::plates
