// A family tree: parents above their children, joined by lines. Children without children of their own are
// stacked if a row of them would be too wide.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

// A name of a tree with its descendants. In the table, an indented line is a child of the line above:
//
//   Abraham | Sarah      a partner or a description is shown below in smaller letters
//     *Isaac             a main person of the tree is shown in red
struct TreeNode {
  std::string name, beside;
  bool is_chief = false;
  std::vector<std::unique_ptr<TreeNode>> children;

  Point at{};               // of the middle of the name's base line
  double width = 0;         // of the subtree
  bool is_stacked = false;  // whether the children stand below one another
};

class TreePlate {
 public:
  explicit TreePlate(const Section& section);

  std::string AsJpeg() const;
  bool Fits() const { return fits_; }
  std::vector<std::string> Names() const;

 private:
  double NameWidth(const TreeNode& node) const;
  double WidthOf(TreeNode& node, bool may_stack);
  bool Try(const Box& room, double size, bool may_stack);
  void Place(TreeNode& node, double left, double top, std::size_t level);
  void Widen(TreeNode& node, double share) const;
  void DrawLines(cairo_t* context, const TreeNode& node) const;
  void DrawNames(cairo_t* context, const TreeNode& node) const;

  std::string title_, passage_;
  TreeNode root_;  // above the first row, not shown
  double size_ = 0, gap_ = 0, stack_step_ = 0;
  std::vector<double> steps_;  // from each row to the one below it
  bool fits_ = false;
};

}  // namespace lectern::plates
