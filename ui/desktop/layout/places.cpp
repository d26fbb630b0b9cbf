#include "ui/desktop/layout/places.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "forms/window.h"

namespace lectern::desktop {

namespace {

enum class Along { kDown, kAcross };

// Divides the places at their widest gap, then each part in the same way.
class DividedPlaces {
 public:
  explicit DividedPlaces(const std::vector<QRect>& places) : places_(places) {}

  void Append(std::vector<std::size_t> group) {
    if (group.size() < 2) {
      order.insert(order.end(), group.begin(), group.end());
      return;
    }
    const Gap between_lines = SortUpToGap(group, Along::kDown);
    const Gap between_columns = SortUpToGap(group, Along::kAcross);
    if (between_lines.width == 0 && between_columns.width == 0) return TakeHighest(std::move(group));
    const bool is_across = between_columns.width > between_lines.width;
    if (!is_across) SortUpToGap(group, Along::kDown);
    const auto cut = group.begin() + (is_across ? between_columns : between_lines).before;
    Append({group.begin(), cut});
    Append({cut, group.end()});
  }

  std::vector<std::size_t> order;

 private:
  struct Gap {
    int width = 0;
    std::ptrdiff_t before = 0;  // how many places stand before it
  };

  void TakeHighest(std::vector<std::size_t> group) {
    const auto highest = std::min_element(group.begin(), group.end(), [this](std::size_t a, std::size_t b) {
      return std::pair(places_[a].top(), places_[a].left()) < std::pair(places_[b].top(), places_[b].left());
    });
    order.push_back(*highest);
    group.erase(highest);
    Append(std::move(group));
  }

  // Sorts the group; returns the widest gap that no place reaches into.
  Gap SortUpToGap(std::vector<std::size_t>& group, Along along) const {
    const auto begin = [&](std::size_t i) {
      return along == Along::kDown ? places_[i].top() : places_[i].left();
    };
    const auto end = [&](std::size_t i) {
      return along == Along::kDown ? places_[i].bottom() : places_[i].right();
    };
    std::stable_sort(group.begin(), group.end(),
                     [&](std::size_t a, std::size_t b) { return begin(a) < begin(b); });
    Gap widest;
    int reach = end(group.front());
    for (std::size_t i = 1; i < group.size(); ++i) {
      const int width = begin(group[i]) - reach;
      if (width > widest.width) widest = {width, static_cast<std::ptrdiff_t>(i)};
      reach = std::max(reach, end(group[i]));
    }
    return widest;
  }

  const std::vector<QRect>& places_;
};

}  // namespace

int ToPixels(double twips) { return static_cast<int>(std::lround(twips / forms::kTwipsPerPixel)); }

// Edges are rounded, not sizes, so that what stands edge to edge stays so.
QRect PlaceOf(const forms::PlacedControl& control) {
  const QPoint corner(ToPixels(control.Left), ToPixels(control.Top));
  const QPoint end(ToPixels(control.Left + control.Width), ToPixels(control.Top + control.Height));
  return {corner, QSize(std::max(end.x() - corner.x(), 0), std::max(end.y() - corner.y(), 0))};
}

QRect CoveredPart(const forms::Container& container, const QSize& client) {
  const QRect all(QPoint(0, 0), client);
  QRect covered;
  for (const forms::Control* child : container.Children()) {
    const auto* const control = dynamic_cast<const forms::PlacedControl*>(child);
    if (control == nullptr || control->IsStorage()) continue;
    const QRect place = PlaceOf(*control);
    if (place.width() > 1 && place.height() > 1) covered |= place & all;
  }
  return covered;
}

std::vector<std::size_t> ReadingOrder(const std::vector<QRect>& places) {
  std::vector<std::size_t> all(places.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  DividedPlaces divided(places);
  divided.Append(std::move(all));
  return std::move(divided.order);
}

}  // namespace lectern::desktop
