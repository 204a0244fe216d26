#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "core/app_state.h"
#include "data/data_kind.h"
#include "graphs/graph.h"

namespace tessaplot::samples {

/// The four columns of a data row.
struct Row {
    double first = 0;
    double second = 0;
    double third = 0;
    double fourth = 0;
};

/// The grid that scattered points are brought to: counts of nodes and limits along the first and the second axis.
struct Lattice {
    int countX = 0;
    int countY = 0;
    double minX = 0;
    double maxX = 0;
    double minY = 0;
    double maxY = 0;
};

/// The lattice that scattered points of a volume are brought to: counts of nodes along the three axes, and limits that
/// are the same along all of them.
struct VolumeLattice {
    int countX = 0;
    int countY = 0;
    int countZ = 0;
    double minimum = 0;
    double maximum = 0;
};

/// Puts one sample document together and writes it the way the program saves.
class SampleBuilder {
 public:
    explicit SampleBuilder(int sceneMode);

    /// A regular surface of `rows` by `columns` nodes; `node(u, v)` is asked with u and v from 0 to 1.
    void regularSurface(data::DataKind kind, int rows, int columns, const std::function<Row(double, double)>& node);
    /// Scattered points of a Cartesian surface.
    void irregularSurface(const std::vector<Row>& points, const Lattice& lattice);
    /// A regular volume of `count` nodes along each axis; `node(u, v, w)` is asked with all three from 0 to 1.
    void regularVolume(const std::array<int, 3>& count, const std::function<Row(double, double, double)>& node);
    /// Scattered points of a volume.
    void irregularVolume(const std::vector<Row>& points, const VolumeLattice& lattice);
    /// Adds a graph of a kind with its steps set for the data; the reference is good until the next one is added.
    graphs::Cls9& add(int graphType, const std::string& name);
    void titles(const std::string& x, const std::string& y, const std::string& z);
    core::AppState& state() { return state_; }

    void write(const std::filesystem::path& path) const;

 private:
    void setRow(int at, const Row& row);

    core::AppState state_;
    int lastU_ = 1;
    int lastV_ = 1;
    int lastH_ = 0;
};

inline double between(double from, double to, double share) {
    return from + (to - from) * share;
}

/// Place n of a sequence that fills the unit interval evenly: the digits of n in a base, mirrored at the point.
double radicalInverse(int n, int base);

}  // namespace tessaplot::samples
