#include "ui/desktop/layout/reading_order.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace lectern::desktop {

namespace {

enum class Along { kDown, kAcross };

class Order {
 public:
  explicit Order(const std::vector<QRect>& places) : places_(places) {}

  void Append(std::vector<std::size_t> group) {
    if (group.size() < 2) {
      found.insert(found.end(), group.begin(), group.end());
      return;
    }
    const auto [between_lines, lines_before] = SortedUpToGap(group, Along::kDown);
    const auto [between_columns, columns_before] = SortedUpToGap(group, Along::kAcross);
    if (between_lines == 0 && between_columns == 0) return TakeHighest(std::move(group));
    const bool is_across = between_columns > between_lines;
    if (!is_across) SortedUpToGap(group, Along::kDown);
    const auto cut = group.begin() + (is_across ? columns_before : lines_before);
    Append({group.begin(), cut});
    Append({cut, group.end()});
  }

  std::vector<std::size_t> found;

 private:
  void TakeHighest(std::vector<std::size_t> group) {
    const auto highest = std::min_element(group.begin(), group.end(), [this](std::size_t a, std::size_t b) {
      return std::pair(places_[a].top(), places_[a].left()) < std::pair(places_[b].top(), places_[b].left());
    });
    found.push_back(*highest);
    group.erase(highest);
    Append(std::move(group));
  }

  // Sorts the group; the widest gap that no place reaches into, and how many stand before it.
  std::pair<int, std::ptrdiff_t> SortedUpToGap(std::vector<std::size_t>& group, Along along) const {
    const auto begin = [&](std::size_t i) {
      return along == Along::kDown ? places_[i].top() : places_[i].left();
    };
    const auto end = [&](std::size_t i) {
      return along == Along::kDown ? places_[i].bottom() : places_[i].right();
    };
    std::stable_sort(group.begin(), group.end(),
                     [&](std::size_t a, std::size_t b) { return begin(a) < begin(b); });
    std::pair<int, std::ptrdiff_t> widest{0, 0};
    int reach = end(group.front());
    for (std::size_t i = 1; i < group.size(); ++i) {
      if (const int gap = begin(group[i]) - reach; gap > widest.first) {
        widest = {gap, static_cast<std::ptrdiff_t>(i)};
      }
      reach = std::max(reach, end(group[i]));
    }
    return widest;
  }

  const std::vector<QRect>& places_;
};

}  // namespace

std::vector<std::size_t> ReadingOrder(const std::vector<QRect>& places) {
  std::vector<std::size_t> all(places.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  Order order(places);
  order.Append(std::move(all));
  return std::move(order.found);
}

}  // namespace lectern::desktop
