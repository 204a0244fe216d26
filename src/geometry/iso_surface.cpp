#include "geometry/iso_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "geometry/crossed_cells.h"
#include "geometry/iso_nodes.h"
#include "geometry/marching_cubes_tables.h"

namespace tessaplot::geometry {

namespace {

constexpr std::uint32_t noVertex = 0xFFFFFFFF;
constexpr std::size_t lineLength = maxIsoIndex + 1;
constexpr std::size_t linesAhead = 6;  ///< Enough to hide the way to memory, few enough to stay in the first cache.

bool isFinite(const IsoPoint& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

IsoVertex vertexBetween(const IsoNode& low, const IsoNode& high, float level) {
    const IsoPoint direction = EdgePoint(low.normal, high.normal, low.value, high.value, level);
    const float length = lengthOf(direction);
    if (length == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "The normals of an iso-surface cancel each other between two nodes.");
    const IsoVertex vertex{divided(direction, length),
                           EdgePoint(low.position, high.position, low.value, high.value, level)};
    if (!isFinite(vertex.normal) || !isFinite(vertex.position))
        throw base::Failure(base::FailureCode::Overflow, "The nodes of an iso-surface lie too far apart.");
    return vertex;
}

/// The lines of nodes with one third index: the nodes that are needed, and the vertices on the edges from them.
struct Plane {
    explicit Plane(int ny)
        : edges(static_cast<std::size_t>(ny) + 1),
          needed(edges.size()),
          nodeAt(edges.size() * lineLength),
          alongI(nodeAt.size()),
          alongJ(nodeAt.size()),
          alongK(nodeAt.size()) {}

    std::vector<EdgeBits> edges;
    std::vector<LineBits> needed;  ///< The nodes at the ends of edges.
    std::vector<IsoNode> nodes;
    std::vector<std::uint16_t> nodeAt;  ///< Where in `nodes` a node is, if it is there.
    std::vector<std::uint32_t> alongI;
    std::vector<std::uint32_t> alongJ;
    std::vector<std::uint32_t> alongK;
};

/// Sweeps over a volume plane by plane, makes each vertex of its surface once and puts the triangles in their places.
class SurfaceBuilder {
 public:
    SurfaceBuilder(int nx, int ny, int nz, const IsoNodes& nodes, const CrossedCells& cells, float level)
        : nx_(nx),
          ny_(ny),
          nz_(nz),
          nodesOf_(nodes),
          cells_(cells),
          level_(level),
          plane_(ny),
          before_(ny),
          places_(static_cast<std::size_t>(nx) * static_cast<std::size_t>(ny)) {}

    IsoMesh build() {
        placeTriangles();
        for (int k = 0; k <= nz_; ++k) {
            std::swap(plane_, before_);
            findEdges(k);
            addNodes(k);
            addVertices();
            if (k > 0) addTriangles(k - 1);
        }
        if (incomplete_)
            std::erase_if(mesh_.triangles, [](const auto& triangle) {
                return std::find(triangle.begin(), triangle.end(), noVertex) != triangle.end();
            });
        return std::move(mesh_);
    }

 private:
    std::uint32_t& place(int i, int j) {
        return places_[static_cast<std::size_t>(i) * static_cast<std::size_t>(ny_) + static_cast<std::size_t>(j)];
    }

    /// Finds out where the triangles of each first and second index begin.
    void placeTriangles() {
        for (int k = 0; k < nz_; ++k)
            for (int j = 0; j < ny_; ++j)
                forEachBit(cells_.row(j, k), [&](int i) { place(i, j) += triangleCounts[cells_.cubeIndex(i, j, k)]; });
        std::uint32_t total = 0;
        for (std::uint32_t& count : places_)
            total += std::exchange(count, total);
        mesh_.triangles.resize(total);
        // A closed piece has two vertices more than half its triangles.
        mesh_.vertices.reserve(total / 2 + total / 16 + 2);
    }

    void findEdges(int k) {
        for (int j = 0; j <= ny_; ++j)
            plane_.edges[static_cast<std::size_t>(j)] = cells_.edges(j, k);
        LineBits alongJBefore = 0;
        for (std::size_t j = 0; j < plane_.edges.size(); ++j) {
            const EdgeBits& edges = plane_.edges[j];
            plane_.needed[j] =
                edges.alongI | edges.alongI << 1 | edges.alongJ | alongJBefore | edges.alongK | before_.edges[j].alongK;
            alongJBefore = edges.alongJ;
        }
    }

    void addNodes(int k) {
        plane_.nodes.clear();
        for (std::size_t fetched = 0; fetched < plane_.needed.size() + linesAhead; ++fetched) {
            if (fetched < plane_.needed.size())
                nodesOf_.fetchLine(static_cast<int>(fetched), k, plane_.needed[fetched]);
            if (fetched < linesAhead) continue;
            const std::size_t j = fetched - linesAhead;
            nodesOf_.addLine(static_cast<int>(j), k, plane_.needed[j], plane_.nodes, &plane_.nodeAt[j * lineLength]);
        }
    }

    /// Makes the vertices on the edges that the nodes of this plane end.
    void addVertices() {
        for (std::size_t j = 0; j < plane_.edges.size(); ++j) {
            const std::size_t line = j * lineLength;
            addLine(plane_.edges[j].alongI, plane_, line, plane_, line + 1, plane_.alongI);
            addLine(plane_.edges[j].alongJ, plane_, line, plane_, line + lineLength, plane_.alongJ);
            addLine(before_.edges[j].alongK, before_, line, plane_, line, before_.alongK);
        }
    }

    void addLine(LineBits edges, const Plane& lowPlane, std::size_t low, const Plane& highPlane, std::size_t high,
                 std::vector<std::uint32_t>& numbers) {
        const std::uint16_t* lowAt = lowPlane.nodeAt.data() + low;
        const std::uint16_t* highAt = highPlane.nodeAt.data() + high;
        std::uint32_t* number = numbers.data() + low;
        forEachBit(edges, [&](int i) {
            const IsoNode& a = lowPlane.nodes[lowAt[i]];
            const IsoNode& b = highPlane.nodes[highAt[i]];
            if (a.usable && b.usable) {
                number[i] = static_cast<std::uint32_t>(mesh_.vertices.size());
                mesh_.vertices.push_back(vertexBetween(a, b, level_));
            } else {
                number[i] = noVertex;
                incomplete_ = true;
            }
        });
    }

    void addTriangles(int k) {
        for (int j = 0; j < ny_; ++j) {
            const std::size_t line = static_cast<std::size_t>(j) * lineLength;
            const std::size_t next = line + lineLength;
            const std::array<const std::uint32_t*, 12> onEdge = {
                &before_.alongI[line], &before_.alongJ[line + 1], &before_.alongI[next],     &before_.alongJ[line],
                &plane_.alongI[line],  &plane_.alongJ[line + 1],  &plane_.alongI[next],      &plane_.alongJ[line],
                &before_.alongK[line], &before_.alongK[line + 1], &before_.alongK[next + 1], &before_.alongK[next]};
            forEachBit(cells_.row(j, k),
                       [&](int i) { CellPolygons(i, cells_.cubeIndex(i, j, k), onEdge, place(i, j)); });
        }
    }

    void CellPolygons(int i, std::uint8_t cubeIndex, const std::array<const std::uint32_t*, 12>& onEdge,
                      std::uint32_t& place) {
        const auto& row = TriTable[cubeIndex];
        const auto vertex = [&](std::size_t entry) { return onEdge[static_cast<std::size_t>(row[entry])][i]; };
        for (std::size_t entry = 0; row[entry] >= 0; entry += 3)
            mesh_.triangles[place++] = {vertex(entry), vertex(entry + 1), vertex(entry + 2)};
    }

    const int nx_;
    const int ny_;
    const int nz_;
    const IsoNodes& nodesOf_;
    const CrossedCells& cells_;
    const float level_;
    Plane plane_;
    Plane before_;
    std::vector<std::uint32_t> places_;
    bool incomplete_ = false;
    IsoMesh mesh_;
};

void requireIndices(int nx, int ny, int nz, const base::CheckedArray<double>& array) {
    if (nx > array.upperI()) base::failSubscript(array.name(), nx, 0, array.upperI());
    if (ny > array.upperJ()) base::failSubscript(array.name(), ny, 0, array.upperJ());
    if (nz > array.upperK()) base::failSubscript(array.name(), nz, 0, array.upperK());
}

}  // namespace

IsoPoint EdgePoint(const IsoPoint& p1, const IsoPoint& p2, float va, float vb, float isoValue) {
    if (isoValue == std::abs(va)) return p1;
    if (isoValue == std::abs(vb)) return p2;
    if (va == vb) return p1;
    const float mu = (isoValue - va) / (vb - va);
    return {p1.x + mu * (p2.x - p1.x), p1.y + mu * (p2.y - p1.y), p1.z + mu * (p2.z - p1.z)};
}

IsoMesh IsoSurface(int nx, int ny, int nz, const base::CheckedArray<double>& X, const base::CheckedArray<double>& Y,
                   const base::CheckedArray<double>& Z, const base::CheckedArray<double>& V, double isoValue) {
    for (const int highest : {nx, ny, nz})
        if (highest > maxIsoIndex) base::failSubscript("nodes of an iso-surface", highest, 0, maxIsoIndex);
    if (nx < 1 || ny < 1 || nz < 1) return {};
    for (const auto* array : {&X, &Y, &Z, &V})
        requireIndices(nx, ny, nz, *array);
    const auto level = static_cast<float>(isoValue);
    const CrossedCells cells(nx, ny, nz, V, level);
    return SurfaceBuilder(nx, ny, nz, IsoNodes(nx, ny, nz, X, Y, Z, V), cells, level).build();
}

}  // namespace tessaplot::geometry
