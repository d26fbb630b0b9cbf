#include "ui/desktop/reading_order.h"

#include <algorithm>
#include <numeric>

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
    for (const Along along : {Along::kDown, Along::kAcross}) {
      const std::size_t before = SortedUpToGap(group, along);
      if (before == group.size()) continue;
      const auto cut = group.begin() + static_cast<std::ptrdiff_t>(before);
      Append({group.begin(), cut});
      return Append({cut, group.end()});
    }
    const auto highest = std::min_element(group.begin(), group.end(), [this](std::size_t a, std::size_t b) {
      return std::pair(places_[a].top(), places_[a].left()) < std::pair(places_[b].top(), places_[b].left());
    });
    found.push_back(*highest);
    group.erase(highest);
    Append(std::move(group));
  }

  std::vector<std::size_t> found;

 private:
  // Sorts the group, and tells how many stand before the widest gap that no place reaches into.
  std::size_t SortedUpToGap(std::vector<std::size_t>& group, Along along) const {
    const auto begin = [&](std::size_t i) {
      return along == Along::kDown ? places_[i].top() : places_[i].left();
    };
    const auto end = [&](std::size_t i) {
      return along == Along::kDown ? places_[i].bottom() : places_[i].right();
    };
    std::stable_sort(group.begin(), group.end(),
                     [&](std::size_t a, std::size_t b) { return begin(a) < begin(b); });
    std::size_t before = group.size();
    int widest = 0;
    int reach = end(group.front());
    for (std::size_t i = 1; i < group.size(); ++i) {
      const int gap = begin(group[i]) - reach;
      if (gap > widest) {
        before = i;
        widest = gap;
      }
      reach = std::max(reach, end(group[i]));
    }
    return before;
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
