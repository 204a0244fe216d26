#include "gl/mesh_placer.h"

namespace tessaplot::gl {

namespace {

constexpr std::size_t mostVertices = 4'000'000;

}  // namespace

bool MeshPlacer::hasRoomFor(std::size_t vertices) {
    vertices_ += vertices;
    return vertices_ <= mostVertices;
}

void MeshPlacer::place(const QuadricMesh& mesh, bool halvesQuads) {
    if (mesh.triangles.empty()) {
        appendFaces(litSort(GL_QUADS), mesh, mesh.quads);
    } else if (halvesQuads) {
        appendHalved(mesh);
    } else {
        appendFaces(litSort(GL_TRIANGLES), mesh, mesh.triangles);
        appendFaces(litSort(GL_QUADS), mesh, mesh.quads);
    }
    current_.setNormal(mesh.lastNormal);
}

/// Quads are halved to be of one kind with the triangles, so that all spheres come into one batch.
void MeshPlacer::appendHalved(const QuadricMesh& mesh) {
    halves_ = mesh.triangles;
    for (std::size_t i = 0; i < mesh.quads.size(); i += 4) {
        const auto corner = [&mesh, i](std::size_t k) { return mesh.quads[i + k]; };
        halves_.insert(halves_.end(), {corner(0), corner(1), corner(3), corner(1), corner(2), corner(3)});
    }
    BatchBuilder::Sort sort = litSort(GL_TRIANGLES);
    sort.spheres = !matrix_.placement().mirrors();
    appendFaces(sort, mesh, halves_);
}

void MeshPlacer::place(const GlyphMesh& mesh, bool lit) {
    if (!mesh.triangles.empty()) {
        if (lit) {
            BatchBuilder::Sort sort = litSort(GL_TRIANGLES);
            sort.glyphs = true;
            appendFaces(sort, mesh, mesh.triangles);
        } else {
            appendUnlit(mesh);
        }
        current_.setNormal(mesh.normals[mesh.triangles.back()]);
    }
    advances_.push_back({mesh.advance, 0, 0});
    matrix_.take({Op::Translatef, advances_.back(), 0});
}

/// Without light the normals do not matter, and the corners of the solid suffice.
void MeshPlacer::appendUnlit(const GlyphMesh& mesh) {
    const unsigned attributes = current_.known & ~static_cast<unsigned>(normalAttribute);
    batches_.open({.primitive = GL_TRIANGLES, .attributes = attributes, .glyphs = true}, mesh.points.size());
    VertexPool& vertices = batches_.vertices();
    const std::size_t first = vertices.vertices().size();
    Vertex vertex = current_.values;
    for (const Vector3f& point : mesh.points) {
        vertex.position = matrix_.placement().point(point);
        vertices.append(vertex);
    }
    batches_.addFaces(first, mesh.surface);
}

BatchBuilder::Sort MeshPlacer::litSort(GLenum primitive) const {
    return {.primitive = primitive, .attributes = current_.known | normalAttribute};
}

template <class Mesh>
void MeshPlacer::appendFaces(const BatchBuilder::Sort& sort, const Mesh& mesh,
                             const std::vector<std::uint32_t>& faces) {
    batches_.open(sort, mesh.positions.size());
    const Affine& placement = matrix_.placement();
    const Affine& normals = *matrix_.normalPlacement();
    const bool turns = !placement.keepsDirections();
    VertexPool& vertices = batches_.vertices();
    const std::size_t first = vertices.extend(mesh.positions.size());
    for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
        Vertex& vertex = vertices[first + i];
        vertex = current_.values;
        vertex.position = turns ? placement.point(mesh.positions[i]) : placement.moved(mesh.positions[i]);
        vertex.normal = turns ? normals.point(mesh.normals[i]) : mesh.normals[i];
    }
    batches_.addFaces(first, faces);
}

}  // namespace tessaplot::gl
