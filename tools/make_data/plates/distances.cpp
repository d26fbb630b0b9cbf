#include "tools/make_data/plates/distances.h"

#include <algorithm>
#include <cmath>

namespace lectern::plates {

namespace {

constexpr float kFar = 1e9F;

// The squared distances along one line of the grid: the lower envelope of the parabolas that stand on its
// values.
class LowerEnvelope {
 public:
  explicit LowerEnvelope(std::size_t length) : values_(length), feet_(length), borders_(length + 1) {}

  float& operator[](std::size_t i) { return values_[i]; }

  template <class Put>
  void Distances(Put put) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (values_[i] >= kFar) continue;
      float border = -kFar;
      while (count > 0) {
        border = Crossing(feet_[count - 1], i);
        if (border > borders_[count - 1]) break;
        --count;
      }
      feet_[count] = i;
      borders_[count] = count == 0 ? -kFar : border;
      ++count;
    }
    std::size_t at = 0;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (count == 0) {
        put(i, kFar);
        continue;
      }
      while (at + 1 < count && borders_[at + 1] < static_cast<float>(i)) ++at;
      const float off = static_cast<float>(i) - static_cast<float>(feet_[at]);
      put(i, off * off + values_[feet_[at]]);
    }
  }

 private:
  float Crossing(std::size_t left, std::size_t right) const {
    const auto a = static_cast<float>(left), b = static_cast<float>(right);
    return (values_[right] + b * b - values_[left] - a * a) / (2 * (b - a));
  }

  std::vector<float> values_;
  std::vector<std::size_t> feet_;
  std::vector<float> borders_;
};

}  // namespace

std::vector<float> DistancesToLand(cairo_surface_t* mask) {
  const auto width = static_cast<std::size_t>(cairo_image_surface_get_width(mask));
  const auto height = static_cast<std::size_t>(cairo_image_surface_get_height(mask));
  const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(mask));
  const unsigned char* const land = cairo_image_surface_get_data(mask);
  std::vector<float> squared(width * height);
  // First along the columns, where a pass in each direction is enough.
  constexpr unsigned char kHalf = 128;
  for (std::size_t x = 0; x < width; ++x) {
    float distance = 30000;
    for (std::size_t y = 0; y < height; ++y) {
      distance = land[y * stride + x] >= kHalf ? 0 : distance + 1;
      squared[y * width + x] = distance;
    }
    for (std::size_t y = height - 1; y-- > 0;) {
      squared[y * width + x] = std::min(squared[y * width + x], squared[(y + 1) * width + x] + 1);
    }
  }
  LowerEnvelope envelope(width);
  for (std::size_t y = 0; y < height; ++y) {
    float* const row = squared.data() + y * width;
    for (std::size_t x = 0; x < width; ++x) envelope[x] = row[x] * row[x];
    envelope.Distances([&](std::size_t x, float value) { row[x] = std::sqrt(value); });
  }
  return squared;
}

}  // namespace lectern::plates
