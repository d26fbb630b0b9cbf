#include "tools/make_data/plates/coast_line.h"

#include <algorithm>
#include <cmath>
#include <netcdf.h>

#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

constexpr const char* kFolder = "/usr/share/gmt-gshhg/";
constexpr int kAround = 180;  // squares around the earth

// One of the data set's files.
class DataFile {
 public:
  explicit DataFile(const std::string& name) {
    if (nc_open((kFolder + name).c_str(), NC_NOWRITE, &file_) == NC_NOERR) return;
    throw make_data::Obstacle(
        "The coast lines for the maps are missing. Install gmt-gshhg-high (apt-get install gmt-gshhg-high) "
        "and run "
        "this again.");
  }
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;
  ~DataFile() { nc_close(file_); }

  std::vector<int> Column(const std::string& name) const { return Column(name, 0, Length(name)); }

  std::vector<int> Column(const std::string& name, std::size_t first, std::size_t count) const {
    std::vector<int> values(count);
    if (nc_get_vara_int(file_, Id(name), &first, &count, values.data()) != NC_NOERR) {
      throw make_data::Obstacle("The coast lines for the maps cannot be read: " + name + ".");
    }
    return values;
  }

 private:
  int Id(const std::string& name) const {
    int id = 0;
    if (nc_inq_varid(file_, name.c_str(), &id) != NC_NOERR) {
      throw make_data::Obstacle("The coast lines for the maps are of another form: " + name + " is missing.");
    }
    return id;
  }
  std::size_t Length(const std::string& name) const {
    int dimension = 0;
    std::size_t length = 0;
    nc_inq_vardimid(file_, Id(name), &dimension);
    nc_inq_dimlen(file_, dimension, &length);
    return length;
  }

  int file_ = 0;
};

// The points of the pieces, which are stored as fractions of their square.
class PointColumns {
 public:
  explicit PointColumns(const DataFile& file)
      : east_(file.Column("Relative_longitude_from_SW_corner_of_bin")),
        north_(file.Column("Relative_latitude_from_SW_corner_of_bin")) {}

  Outline Points(Place south_west, int first, int count) const {
    Outline points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = first; i < first + count; ++i) {
      const auto at = static_cast<std::size_t>(i);
      points.push_back({south_west.longitude + Share(east_[at]), south_west.latitude + Share(north_[at])});
    }
    return points;
  }

 private:
  static double Share(int value) {
    constexpr double kWhole = 65535;
    return (value & 0xFFFF) / kWhole * kSquareDegrees;
  }
  std::vector<int> east_, north_;
};

// Calls visit(square's number, its south-west corner) for the squares of a region.
template <class Visit>
void EachSquare(Place south_west, Place north_east, Visit visit) {
  const int west = static_cast<int>(std::floor(south_west.longitude / kSquareDegrees));
  const int east = static_cast<int>(std::floor(north_east.longitude / kSquareDegrees));
  const int north = static_cast<int>(std::floor((90 - north_east.latitude) / kSquareDegrees));
  const int south = static_cast<int>(std::floor((90 - south_west.latitude) / kSquareDegrees));
  for (int row = north; row <= south; ++row) {
    for (int column = west; column <= east; ++column) {
      const int number = row * kAround + (column + kAround) % kAround;
      visit(static_cast<std::size_t>(number),
            Place{column * kSquareDegrees, 90 - (row + 1) * kSquareDegrees});
    }
  }
}

// How far along the square's edge a point lies, from the south-west corner against the clock; a side is 1
// long.
double AlongEdge(const Square& square, Place point, int side) {
  const double east = (point.longitude - square.south_west.longitude) / kSquareDegrees;
  const double north = (point.latitude - square.south_west.latitude) / kSquareDegrees;
  switch (side) {
    case 0:
      return east;
    case 1:
      return 1 + north;
    case 2:
      return 3 - east;
    default:
      return 4 - north;
  }
}

Place Corner(const Square& square, int corner) {
  const Place from = square.south_west;
  return {from.longitude + (corner == 1 || corner == 2 ? kSquareDegrees : 0),
          from.latitude + (corner >= 2 ? kSquareDegrees : 0)};
}

void Reverse(Shore& shore) {
  std::reverse(shore.points.begin(), shore.points.end());
  std::swap(shore.enters, shore.leaves);
}

}  // namespace

CoastLine::CoastLine(Place south_west, Place north_east) {
  const DataFile shores("binned_GSHHS_h.nc");
  const PointColumns shore_points(shores);
  const auto first_shore = shores.Column("Id_of_first_segment_in_a_bin");
  const auto shore_count = shores.Column("N_segments_in_a_bin");
  const auto corners = shores.Column("Embedded_node_levels_in_a_bin");
  const auto facts = shores.Column("Embedded_npts_levels_exit_entry_for_a_segment");
  const auto first_point = shores.Column("Id_of_first_point_in_a_segment");
  EachSquare(south_west, north_east, [&](std::size_t number, Place corner) {
    Square& square = squares_.emplace_back();
    square.south_west = corner;
    for (int i = 0; i < 4; ++i) square.corner_levels[i] = (corners[number] >> (9 - 3 * i)) & 7;
    for (int i = 0; i < (shore_count[number] & 0xFFFF); ++i) {
      const auto at = static_cast<std::size_t>(first_shore[number] + i);
      const int fact = facts[at];
      square.shores.push_back({(fact >> 6) & 7, (fact >> 3) & 7, fact & 7,
                               shore_points.Points(corner, first_point[at], fact >> 9)});
    }
  });

  const DataFile rivers("binned_river_h.nc");
  const PointColumns river_points(rivers);
  const auto first_river = rivers.Column("Id_of_first_segment_in_a_bin");
  const auto river_count = rivers.Column("N_segments_in_a_bin");
  const auto length = rivers.Column("N_points_for_a_segment");
  const auto rank = rivers.Column("Hierarchial_level_of_a_segment");
  const auto first_of_river = rivers.Column("Id_of_first_point_in_a_segment");
  EachSquare(south_west, north_east, [&](std::size_t number, Place corner) {
    for (int i = 0; i < (river_count[number] & 0xFFFF); ++i) {
      const auto at = static_cast<std::size_t>(first_river[number] + i);
      rivers_.push_back({rank[at], river_points.Points(corner, first_of_river[at], length[at] & 0xFFFF)});
    }
  });
}

std::vector<Outline> ClosedOutlines(const Square& square, Shore::Level level) {
  std::vector<Outline> closed;
  std::vector<Shore> open;
  for (const Shore& shore : square.shores) {
    if (shore.level != level) continue;
    if (shore.enters == kClosed) {
      closed.push_back(shore.points);
    } else {
      open.push_back(shore);
      // Land is to the left of every shore, so that the water of a lake is to the right.
      const bool is_water = level == Shore::kLake || level == Shore::kPond;
      if (is_water) Reverse(open.back());
    }
  }
  if (open.empty()) {
    const bool is_within = square.corner_levels[0] >= level;
    if (is_within)
      closed.push_back({Corner(square, 0), Corner(square, 1), Corner(square, 2), Corner(square, 3)});
    return closed;
  }
  // Where a piece leaves the square, the outline follows the edge anticlockwise to where the next piece
  // enters.
  const auto start = [&](const Shore& shore) {
    return AlongEdge(square, shore.points.front(), shore.enters);
  };
  const auto end = [&](const Shore& shore) { return AlongEdge(square, shore.points.back(), shore.leaves); };
  while (!open.empty()) {
    Shore shore = std::move(open.back());
    open.pop_back();
    const double first = start(shore);
    Outline outline;
    for (;;) {
      outline.insert(outline.end(), shore.points.begin(), shore.points.end());
      const double left = end(shore);
      const auto way_to = [&](double along) { return along < left ? along - left + 4 : along - left; };
      const auto next = std::min_element(open.begin(), open.end(), [&](const Shore& a, const Shore& b) {
        return way_to(start(a)) < way_to(start(b));
      });
      const bool returns = next == open.end() || way_to(first) <= way_to(start(*next));
      const double way = returns ? way_to(first) : way_to(start(*next));
      for (int corner = static_cast<int>(std::floor(left)) + 1; corner < left + way; ++corner) {
        outline.push_back(Corner(square, corner % 4));
      }
      if (returns) break;
      shore = std::move(*next);
      open.erase(next);
    }
    closed.push_back(std::move(outline));
  }
  return closed;
}

}  // namespace lectern::plates
