#include "graphs/surface_normals.h"

#include <algorithm>
#include <cmath>

namespace tessaplot::graphs {

namespace {

Direction operator+(const Direction& a, const Direction& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

double lengthOf(const Direction& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

Direction over(const Direction& v, double length) {
    return {v.x / length, v.y / length, v.z / length};
}

bool meet(const Node& a, const Node& b, const SeamTolerance& tolerance) {
    return std::abs(a.x - b.x) < tolerance.x && std::abs(a.y - b.y) < tolerance.y && std::abs(a.z - b.z) < tolerance.z;
}

bool closesAlongV(const NodeTable& nodes, int lastU, int lastV, const SeamTolerance& tolerance) {
    return meet(nodes(0, lastV), nodes(0, 0), tolerance) && meet(nodes(lastU, lastV), nodes(lastU, 0), tolerance);
}

bool closesAlongU(const NodeTable& nodes, int lastU, int lastV, const SeamTolerance& tolerance) {
    return meet(nodes(lastU, 0), nodes(0, 0), tolerance) && meet(nodes(lastU, lastV), nodes(0, lastV), tolerance);
}

}  // namespace

Direction crossNormal(const Direction& a, const Direction& b) {
    const Direction n{a.y * b.z - a.z * b.y, a.z * b.x - b.z * a.x, b.y * a.x - a.y * b.x};
    const double length = lengthOf(n);
    // A cell with a node that is no number is a hole; its normal must not spoil those of the nodes round it.
    if (!std::isfinite(length)) return {};
    return over(n, length == 0 ? 1.0 / 10000 : length);
}

Direction atUnitLength(const Direction& v) {
    const double length = lengthOf(v);
    return over(v, length == 0 ? 1 : length);
}

SeamTolerance seamToleranceOf(const Cls9& graph) {
    const double cellY = (graph.MaxY - graph.MinY) / graph.StepU;
    const double cellZ = (graph.MaxZ - graph.MinZ) / graph.StepV;
    const double cellX = (graph.MaxX - graph.MinX) / std::max(graph.StepU, graph.StepV);
    return {cellY * 8 / 10, cellZ * 8 / 10, cellX * 8 / 10};
}

SurfaceNormals::SurfaceNormals(const NodeTable& nodes, int cellsU, int cellsV, const SeamTolerance& tolerance)
    : cellsU_(cellsU), cellsV_(cellsV), cells_(cellsU - 1, cellsV - 1), nodes_(cellsU, cellsV) {
    fillCells(nodes);
    sumCorners();
    sumEdges();
    if (closesAlongV(nodes, cellsU_, cellsV_, tolerance)) sumSeamAlongV();
    if (closesAlongU(nodes, cellsU_, cellsV_, tolerance)) sumSeamAlongU();
    sumInterior();
    std::ranges::transform(nodes_, nodes_.begin(), atUnitLength);
}

void SurfaceNormals::fillCells(const NodeTable& nodes) {
    for (int i = 0; i < cellsU_; ++i)
        for (int j = 0; j < cellsV_; ++j)
            cells_(i, j) = crossNormal(directionBetween(nodes(i + 1, j + 1), nodes(i, j)),
                                       directionBetween(nodes(i, j + 1), nodes(i + 1, j)));
}

void SurfaceNormals::sumCorners() {
    nodes_(0, 0) = cells_(0, 0);
    nodes_(0, cellsV_) = cells_(0, cellsV_ - 1);
    nodes_(cellsU_, 0) = cells_(cellsU_ - 1, 0);
    nodes_(cellsU_, cellsV_) = cells_(cellsU_ - 1, cellsV_ - 1);
}

void SurfaceNormals::sumEdges() {
    const int lastU = cellsU_ - 1;
    const int lastV = cellsV_ - 1;
    for (int j = 1; j < cellsV_; ++j) {
        nodes_(0, j) = cells_(0, j) + cells_(0, j - 1);
        nodes_(cellsU_, j) = cells_(lastU, j) + cells_(lastU, j - 1);
    }
    for (int i = 1; i < cellsU_; ++i) {
        nodes_(i, 0) = cells_(i, 0) + cells_(i - 1, 0);
        nodes_(i, cellsV_) = cells_(i, lastV) + cells_(i - 1, lastV);
    }
}

void SurfaceNormals::sumSeamAlongV() {
    const int lastU = cellsU_ - 1;
    const int lastV = cellsV_ - 1;
    nodes_(0, cellsV_) = nodes_(0, 0) = cells_(0, 0) + cells_(0, lastV);
    nodes_(cellsU_, cellsV_) = nodes_(cellsU_, 0) = cells_(lastU, 0) + cells_(lastU, lastV);
    for (int i = 1; i < cellsU_; ++i)
        nodes_(i, cellsV_) = nodes_(i, 0) = cells_(i, 0) + cells_(i - 1, 0) + cells_(i, lastV) + cells_(i - 1, lastV);
}

void SurfaceNormals::sumSeamAlongU() {
    const int lastU = cellsU_ - 1;
    const int lastV = cellsV_ - 1;
    nodes_(cellsU_, 0) = nodes_(0, 0) = cells_(0, 0) + cells_(lastU, 0);
    nodes_(cellsU_, cellsV_) = nodes_(0, cellsV_) = cells_(0, lastV) + cells_(lastU, lastV);
    for (int j = 1; j < cellsV_; ++j)
        nodes_(cellsU_, j) = nodes_(0, j) = cells_(0, j) + cells_(0, j - 1) + cells_(lastU, j) + cells_(lastU, j - 1);
}

void SurfaceNormals::sumInterior() {
    for (int i = 1; i < cellsU_; ++i)
        for (int j = 1; j < cellsV_; ++j)
            nodes_(i, j) = cells_(i, j) + cells_(i - 1, j) + cells_(i, j - 1) + cells_(i - 1, j - 1);
}

}  // namespace tessaplot::graphs
