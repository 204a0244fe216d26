#include "gl/quadric_mesh.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaplot::gl {

namespace {

/// GLU draws no quadric finer than this.
constexpr int mostSlices = 239;

/// Points of the unit circle, which GLU holds with float precision: sine in x, cosine in y.
std::vector<Vector3f> unitCircle(int slices) {
    std::vector<Vector3f> circle;
    for (int i = 0; i < slices; ++i) {
        const double angle = static_cast<float>(2 * std::numbers::pi * i / slices);
        circle.push_back({static_cast<float>(std::sin(angle)), static_cast<float>(std::cos(angle)), 0});
    }
    return circle;
}

/// The faces of a strip between two rings of vertices, of which the first one comes first in each pair of the strip.
void appendStrip(std::vector<std::uint32_t>& quads, std::uint32_t first, std::uint32_t second, std::uint32_t slices) {
    for (std::uint32_t i = 0; i < slices; ++i) {
        const std::uint32_t next = (i + 1) % slices;
        quads.insert(quads.end(), {first + next, first + i, second + i, second + next});
    }
}

}  // namespace

const QuadricMesh& QuadricMeshes::sphere(double radius, int slices, int stacks) {
    const Shape shape{Shape::Kind::Sphere, std::min(slices, mostSlices), std::min(stacks, mostSlices)};
    if (slices < 2 || stacks < 1 || !(radius >= 0)) {
        shape_ = {};
        mesh_ = {};
        return mesh_;
    }
    if (shape != shape_) {
        shape_ = shape;
        circle_ = unitCircle(shape.slices);
        makeSphereFaces();
    } else if (radius == radius_) {
        return mesh_;
    }
    radius_ = radius;
    for (std::size_t i = 0; i < mesh_.positions.size(); ++i) {
        const Vector3f& direction = mesh_.normals[i];
        for (std::size_t k = 0; k < 3; ++k)
            mesh_.positions[i][k] = static_cast<float>(radius * direction[k]);
    }
    return mesh_;
}

/// Two poles and the rings between them, from +z down.
void QuadricMeshes::makeSphereFaces() {
    const auto slices = static_cast<std::uint32_t>(shape_.slices);
    const auto stacks = static_cast<std::uint32_t>(shape_.stacks);
    mesh_ = {};
    mesh_.normals = {{0, 0, 1}, {0, 0, -1}};
    for (std::uint32_t j = 1; j < stacks; ++j) {
        const double angle = static_cast<float>(std::numbers::pi * j / stacks);
        const auto ring = static_cast<float>(std::sin(angle));
        for (const Vector3f& point : circle_)
            mesh_.normals.push_back({ring * point[0], ring * point[1], static_cast<float>(std::cos(angle))});
    }
    mesh_.positions.resize(mesh_.normals.size());
    if (stacks == 1) return;
    const auto ringAt = [slices](std::uint32_t j) { return 2 + (j - 1) * slices; };
    std::vector<std::uint32_t>& caps = mesh_.triangles;
    for (std::uint32_t i = slices; i > 0; --i)
        caps.insert(caps.end(), {0, ringAt(1) + i % slices, ringAt(1) + i - 1});
    for (std::uint32_t i = 0; i < slices; ++i)
        caps.insert(caps.end(), {1, ringAt(stacks - 1) + i, ringAt(stacks - 1) + (i + 1) % slices});
    for (std::uint32_t j = 1; j + 1 < stacks; ++j)
        appendStrip(mesh_.quads, ringAt(j + 1), ringAt(j), slices);
    mesh_.lastNormal = stacks > 2 ? mesh_.normals[ringAt(stacks - 2)] : mesh_.normals[ringAt(stacks - 1)];
}

const QuadricMesh& QuadricMeshes::cylinder(double base, double top, double height, int slices, int stacks) {
    const Shape shape{Shape::Kind::Cylinder, std::min(slices, mostSlices), stacks};
    const double slope = base - top;
    const auto length = static_cast<float>(std::sqrt(slope * slope + height * height));
    if (slices < 2 || stacks < 1 || !(base >= 0) || !(top >= 0) || !(height >= 0) || length == 0) {
        shape_ = {};
        mesh_ = {};
        return mesh_;
    }
    if (shape != shape_) {
        shape_ = shape;
        circle_ = unitCircle(shape.slices);
        makeCylinderFaces();
    }
    const auto zNormal = static_cast<float>(slope / length);
    const auto around = static_cast<float>(height / length);
    std::size_t vertex = 0;
    for (int j = 0; j <= stacks; ++j) {
        const double part = static_cast<float>(j) / static_cast<float>(stacks);
        const auto ring = static_cast<float>(base - slope * part);
        const auto z = static_cast<float>(j * height / stacks);
        for (const Vector3f& point : circle_) {
            mesh_.positions[vertex] = {ring * point[0], ring * point[1], z};
            mesh_.normals[vertex] = {around * point[0], around * point[1], zNormal};
            ++vertex;
        }
    }
    mesh_.lastNormal = mesh_.normals[0];
    return mesh_;
}

void QuadricMeshes::makeCylinderFaces() {
    const auto slices = static_cast<std::uint32_t>(shape_.slices);
    const auto stacks = static_cast<std::uint32_t>(shape_.stacks);
    mesh_ = {};
    mesh_.positions.resize(static_cast<std::size_t>(slices) * (stacks + 1));
    mesh_.normals.resize(mesh_.positions.size());
    for (std::uint32_t j = 0; j < stacks; ++j)
        appendStrip(mesh_.quads, j * slices, (j + 1) * slices, slices);
}

}  // namespace tessaplot::gl
