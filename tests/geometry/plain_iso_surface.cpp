#include "geometry/plain_iso_surface.h"

#include <cmath>
#include <limits>

#include "base/failure.h"
#include "geometry/marching_cubes_tables.h"

namespace tessaplot::geometry::test {

namespace {

struct NodeRecord {
    IsoPoint position;
    IsoPoint normal;
    float value = 0;
    bool hasValue = false;
    bool hasPlace = false;
};

using Cell = std::array<const NodeRecord*, 8>;

bool isNumber(double number) {
    return number != 0.12345 && std::abs(static_cast<float>(number)) <= std::numeric_limits<float>::max();
}

float plainLength(const IsoPoint& v) {
    const float squares = v.x * v.x + v.y * v.y + v.z * v.z;
    const bool lost = squares < std::numeric_limits<float>::min() || squares > std::numeric_limits<float>::max();
    return lost ? static_cast<float>(std::hypot(double(v.x), double(v.y), double(v.z))) : std::sqrt(squares);
}

IsoPoint between(const IsoPoint& p1, const IsoPoint& p2, float va, float vb, float level) {
    if (level == std::abs(va)) return p1;
    if (level == std::abs(vb)) return p2;
    if (va == vb) return p1;
    const float mu = (level - va) / (vb - va);
    return {p1.x + mu * (p2.x - p1.x), p1.y + mu * (p2.y - p1.y), p1.z + mu * (p2.z - p1.z)};
}

IsoVertex vertexBetween(const NodeRecord& a, const NodeRecord& b, float level) {
    IsoPoint n = between(a.normal, b.normal, a.value, b.value, level);
    const float length = plainLength(n);
    if (length == 0) throw base::Failure(base::FailureCode::DivisionByZero, "length");
    n = {n.x / length, n.y / length, n.z / length};
    const IsoPoint p = between(a.position, b.position, a.value, b.value, level);
    for (const float number : {n.x, n.y, n.z, p.x, p.y, p.z})
        if (!std::isfinite(number)) throw base::Failure(base::FailureCode::Overflow, "vertex");
    return {n, p};
}

void plainCell(const Cell& cell, float level, std::vector<IsoTriangle>& triangles) {
    // The lower end of each edge first.
    static constexpr int ends[12][2] = {{0, 1}, {1, 2}, {3, 2}, {0, 3}, {4, 5}, {5, 6},
                                        {7, 6}, {4, 7}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
    unsigned below = 0;
    for (unsigned corner = 0; corner < 8; ++corner) {
        if (!cell[corner]->hasValue) return;
        if (cell[corner]->value < level) below |= 1U << corner;
    }
    std::array<IsoVertex, 12> crossing;
    std::array<bool, 12> hasPlace{};
    for (std::size_t edge = 0; edge < 12; ++edge) {
        if ((EdgeTable[below] >> edge & 1) == 0) continue;
        const NodeRecord& a = *cell[static_cast<std::size_t>(ends[edge][0])];
        const NodeRecord& b = *cell[static_cast<std::size_t>(ends[edge][1])];
        hasPlace[edge] = a.hasPlace && b.hasPlace;
        if (hasPlace[edge]) crossing[edge] = vertexBetween(a, b, level);
    }
    const auto edgeAt = [&](std::size_t entry) { return static_cast<std::size_t>(TriTable[below][entry]); };
    for (std::size_t entry = 0; TriTable[below][entry] >= 0; entry += 3)
        if (hasPlace[edgeAt(entry)] && hasPlace[edgeAt(entry + 1)] && hasPlace[edgeAt(entry + 2)])
            triangles.push_back({crossing[edgeAt(entry)], crossing[edgeAt(entry + 1)], crossing[edgeAt(entry + 2)]});
}

template <class Visitor>
void forEachNode(const Volume& volume, const Visitor& visit) {
    for (int i = 0; i <= volume.nx; ++i)
        for (int j = 0; j <= volume.ny; ++j)
            for (int k = 0; k <= volume.nz; ++k)
                visit(i, j, k);
}

class NodeTable {
 public:
    explicit NodeTable(const Volume& volume) : volume_(volume), nodes_(volume.V.values().size()) {
        forEachNode(volume, [&](int i, int j, int k) {
            const double x = volume.X(i, j, k), y = volume.Y(i, j, k), z = volume.Z(i, j, k), value = volume.V(i, j, k);
            (*this)(i, j, k) = {{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)},
                                {},
                                static_cast<float>(value),
                                isNumber(value),
                                isNumber(x) && isNumber(y) && isNumber(z)};
        });
        forEachNode(volume, [&](int i, int j, int k) { (*this)(i, j, k).normal = normalAt(i, j, k); });
    }

    NodeRecord& operator()(int i, int j, int k) {
        return nodes_[static_cast<std::size_t>(i) + volume_.V.strideJ() * static_cast<std::size_t>(j) +
                      volume_.V.strideK() * static_cast<std::size_t>(k)];
    }

 private:
    IsoPoint normalAt(int i, int j, int k) {
        const auto beside = [&](int di, int dj, int dk) {
            const int ni = i + di, nj = j + dj, nk = k + dk;
            const bool inside =
                ni >= 0 && ni <= volume_.nx && nj >= 0 && nj <= volume_.ny && nk >= 0 && nk <= volume_.nz;
            return inside && (*this)(ni, nj, nk).hasValue ? (*this)(ni, nj, nk).value : (*this)(i, j, k).value;
        };
        const IsoPoint fall{beside(-1, 0, 0) - beside(1, 0, 0), beside(0, -1, 0) - beside(0, 1, 0),
                            beside(0, 0, -1) - beside(0, 0, 1)};
        const float length = plainLength(fall);
        if (length == 0) return {1, 0, 0};
        return {fall.x / length, fall.y / length, fall.z / length};
    }

    const Volume& volume_;
    std::vector<NodeRecord> nodes_;
};

}  // namespace

Volume::Volume(int highestI, int highestJ, int highestK, int spare) : nx(highestI), ny(highestJ), nz(highestK) {
    for (Array* array : {&X, &Y, &Z, &V})
        array->allocate(nx + spare, ny + spare, nz + spare);
    forEachNode(*this, [this](int i, int j, int k) {
        X(i, j, k) = -1 + 2.0 * i / nx;
        Y(i, j, k) = -1 + 2.0 * j / ny;
        Z(i, j, k) = -1 + 2.0 * k / nz;
    });
}

std::vector<IsoTriangle> plainIsoSurface(const Volume& volume, double isoValue) {
    NodeTable nodes(volume);
    std::vector<IsoTriangle> triangles;
    for (int i = 0; i < volume.nx; ++i)
        for (int j = 0; j < volume.ny; ++j)
            for (int k = 0; k < volume.nz; ++k)
                plainCell({&nodes(i, j, k), &nodes(i + 1, j, k), &nodes(i + 1, j + 1, k), &nodes(i, j + 1, k),
                           &nodes(i, j, k + 1), &nodes(i + 1, j, k + 1), &nodes(i + 1, j + 1, k + 1),
                           &nodes(i, j + 1, k + 1)},
                          static_cast<float>(isoValue), triangles);
    return triangles;
}

}  // namespace tessaplot::geometry::test
