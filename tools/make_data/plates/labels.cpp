#include "tools/make_data/plates/labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace lectern::plates {

namespace {

constexpr double kForbidden = 1000;  // the cost of touching something that must stay free
constexpr double kApart = 1.5;       // between a name and anything else
constexpr double kWordApart = 6;     // more, beside one with spaced letters

struct Candidate {
  Box box;
  double cost;
};

Box Around(Point middle, double width, double height) {
  return {middle.x - width / 2, middle.y - height / 2, middle.x + width / 2, middle.y + height / 2};
}

// Places beside a sign: preferably to the right, then above and below it on that side, then the others.
std::vector<Candidate> BesideSign(const Label& label, const Extent& extent) {
  struct Direction {
    double right, down, cost;
  };
  constexpr std::array<Direction, 16> kDirections = {{{1, 0, 0},
                                                      {1, -1, 1},
                                                      {1, 1, 1.2},
                                                      {-1, 0, 1.5},
                                                      {-1, -1, 2},
                                                      {-1, 1, 2.2},
                                                      {0, -1, 2.5},
                                                      {0, 1, 2.7},
                                                      {1, -0.5, 1},
                                                      {1, 0.5, 1.2},
                                                      {-1, -0.5, 2},
                                                      {-1, 0.5, 2.2},
                                                      {0.5, -1, 3},
                                                      {0.5, 1, 3.2},
                                                      {-0.5, -1, 3},
                                                      {-0.5, 1, 3.2}}};
  const double height = extent.ascent + extent.descent;
  std::vector<Candidate> candidates;
  for (const double gap : {2.5, 7.0, 12.0}) {
    for (const Direction& to : kDirections) {
      const bool is_corner = std::abs(to.right) == 1 && std::abs(to.down) == 1;
      const double beside = label.sign_radius + (is_corner ? gap - 2 : gap);
      // A name looks centred if its small letters are; descenders do not count.
      const Point middle{label.anchor.x + to.right * (beside + extent.width / 2),
                         label.anchor.y +
                             to.down * (label.sign_radius + (is_corner ? gap - 3 : gap - 1.5) + height / 2) +
                             (to.down == 0 ? extent.descent / 2 - 0.5 : 0)};
      candidates.push_back({Around(middle, extent.width, height), to.cost + 2.5 * (gap - 2.5)});
    }
  }
  return candidates;
}

std::vector<Candidate> UponArea(const Label& label, const Extent& extent) {
  constexpr int kReach = 8;
  constexpr double kStep = 6;
  std::vector<Candidate> candidates;
  for (int row = -kReach; row <= kReach; ++row) {
    for (int column = -kReach; column <= kReach; ++column) {
      const Point middle{label.anchor.x + column * kStep, label.anchor.y + row * kStep};
      candidates.push_back(
          {Around(middle, extent.width, extent.ascent + extent.descent), std::hypot(column, row)});
    }
  }
  return candidates;
}

// The cost of a candidate by itself, regardless of the other names.
double CostAlone(const Label& label, const Box& box, const Surroundings& surroundings) {
  double cost = 0;
  const Box page = kInside.Grown(-3);
  if (box.left < page.left || box.right > page.right || box.top < page.top || box.bottom > page.bottom) {
    cost += 2 * kForbidden;
  }
  for (const Box& obstacle : surroundings.obstacles) {
    if (box.Grown(kApart).Meets(obstacle)) cost += kForbidden;
  }
  const Box reach = box.Grown(2);
  for (const Point& point : surroundings.lines) {
    if (point.x > reach.left && point.x < reach.right && point.y > reach.top && point.y < reach.bottom)
      cost += 3;
  }
  const double wet = surroundings.share_of_water(box);
  if (label.sign_radius > 0) {
    cost += 14 * std::min(wet, 1 - wet);
  } else if (label.upon != Ground::kEither) {
    cost += 60 * (label.upon == Ground::kWater ? 1 - wet : wet);
  }
  return cost;
}

class Search {
 public:
  Search(std::vector<Label>& labels, const Surroundings& surroundings) : labels_(labels) {
    for (const Label& label : labels_) {
      const Extent extent = Measure(label.text, label.letters);
      std::vector<Candidate>& mine = candidates_.emplace_back(
          label.sign_radius > 0 ? BesideSign(label, extent) : UponArea(label, extent));
      for (Candidate& candidate : mine) candidate.cost += CostAlone(label, candidate.box, surroundings);
      std::stable_sort(mine.begin(), mine.end(),
                       [](const Candidate& a, const Candidate& b) { return a.cost < b.cost; });
    }
  }

  void Run() {
    std::vector<std::size_t> chosen(labels_.size(), 0);
    std::vector<std::size_t> best = chosen;
    double least = 1e18;
    std::mt19937 random(1);
    constexpr int kRounds = 24;
    for (int round = 0; round < kRounds; ++round) {
      Settle(chosen);
      const double cost = Cost(chosen);
      if (cost < least) {
        least = cost;
        best = chosen;
      }
      chosen = best;
      for (std::size_t& choice : chosen) {
        if (random() % 4 == 0) choice = random() % 12;
      }
      for (std::size_t i = 0; i < chosen.size(); ++i)
        chosen[i] = std::min(chosen[i], candidates_[i].size() - 1);
    }
    for (std::size_t i = 0; i < labels_.size(); ++i) {
      labels_[i].box = candidates_[i][best[i]].box;
      labels_[i].is_clear = CostOf(i, best[i], best) < kForbidden;
    }
  }

 private:
  // Moves each name in turn to its best place among the others, until none moves.
  void Settle(std::vector<std::size_t>& chosen) const {
    constexpr int kMostTurns = 12;
    bool has_moved = true;
    for (int turn = 0; turn < kMostTurns && has_moved; ++turn) {
      has_moved = false;
      for (std::size_t i = 0; i < chosen.size(); ++i) {
        std::size_t best = chosen[i];
        double least = CostOf(i, best, chosen);
        for (std::size_t choice = 0; choice < candidates_[i].size(); ++choice) {
          if (candidates_[i][choice].cost >= least) break;  // sorted: no later one is better
          const double cost = CostOf(i, choice, chosen);
          if (cost < least) {
            least = cost;
            best = choice;
          }
        }
        has_moved = has_moved || best != chosen[i];
        chosen[i] = best;
      }
    }
  }

  double CostOf(std::size_t label, std::size_t choice, const std::vector<std::size_t>& chosen) const {
    const Candidate& candidate = candidates_[label][choice];
    Box box = candidate.box.Grown(kApart);
    if (labels_[label].sign_radius == 0) {
      box.left -= kWordApart;
      box.right += kWordApart;
    }
    double cost = candidate.cost;
    for (std::size_t other = 0; other < chosen.size(); ++other) {
      if (other != label && box.Meets(candidates_[other][chosen[other]].box)) cost += kForbidden;
    }
    return cost;
  }

  double Cost(const std::vector<std::size_t>& chosen) const {
    double cost = 0;
    for (std::size_t i = 0; i < chosen.size(); ++i) cost += CostOf(i, chosen[i], chosen);
    return cost;
  }

  std::vector<Label>& labels_;
  std::vector<std::vector<Candidate>> candidates_;
};

}  // namespace

void PlaceLabels(std::vector<Label>& labels, const Surroundings& surroundings) {
  Search(labels, surroundings).Run();
}

Point BaseLine(const Label& label) {
  return {label.box.left, label.box.top + Measure(label.text, label.letters).ascent};
}

}  // namespace lectern::plates
