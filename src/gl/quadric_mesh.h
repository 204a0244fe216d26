#pragma once

#include <cstdint>
#include <vector>

#include "gl/affine.h"

namespace tessaplot::gl {

/// The filled surface of a quadric with a smooth normal at each vertex. The last corner of a face is the one that flat
/// shading takes. The triangles are drawn before the quads.
struct QuadricMesh {
    std::vector<Vector3f> positions;
    std::vector<Vector3f> normals;
    std::vector<std::uint32_t> triangles;  ///< Three vertex numbers each.
    std::vector<std::uint32_t> quads;      ///< Four vertex numbers each.
    Vector3f lastNormal{};                 ///< The normal that gluSphere or gluCylinder leaves as the current one.
};

/// Makes the meshes of spheres and cylinders with the vertices, faces and normals that GLU draws for a filled, smooth
/// quadric seen from outside. What does not depend on the radii is kept from one call to the next.
class QuadricMeshes {
 public:
    /// The mesh of gluSphere; empty where GLU would draw none. Valid until the next call.
    const QuadricMesh& sphere(double radius, int slices, int stacks);
    /// The mesh of gluCylinder, likewise.
    const QuadricMesh& cylinder(double base, double top, double height, int slices, int stacks);

 private:
    struct Shape {
        enum class Kind { None, Sphere, Cylinder } kind = Kind::None;
        int slices = 0;
        int stacks = 0;
        bool operator==(const Shape&) const = default;
    };

    void makeSphereFaces();
    void makeCylinderFaces();

    Shape shape_;
    double radius_ = 0;             ///< Of the sphere in `mesh_`.
    std::vector<Vector3f> circle_;  ///< Sine and cosine around the axis, one a slice.
    QuadricMesh mesh_;
};

}  // namespace tessaplot::gl
