#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include <GL/gl.h>

namespace tessaplot::gl {

/// The independent kind (GL_POINTS, GL_LINES, GL_TRIANGLES or GL_QUADS) whose picture is that of a glBegin block of
/// `vertices` vertices in every polygon mode and shade model; none for polygons of more than four corners.
inline std::optional<GLenum> independentKind(GLenum mode, std::size_t vertices) {
    switch (mode) {
        case GL_POINTS:
            return GL_POINTS;
        case GL_LINES:
        case GL_LINE_STRIP:
        case GL_LINE_LOOP:
            return GL_LINES;
        case GL_TRIANGLES:
        case GL_TRIANGLE_STRIP:
        case GL_TRIANGLE_FAN:
            return GL_TRIANGLES;
        case GL_QUADS:
        case GL_QUAD_STRIP:
            return GL_QUADS;
        case GL_POLYGON:
            if (vertices > 4) return std::nullopt;
            return vertices == 4 ? GL_QUADS : GL_TRIANGLES;
        default:
            return std::nullopt;
    }
}

/// Calls `emit` with the vertex numbers of each complete primitive of a glBegin block, turned into its independent
/// kind: the orientation is kept, and the last vertex is the one that flat shading takes.
template <class Emit>
void forEachPrimitive(GLenum mode, std::size_t n, Emit&& emit) {
    using std::size_t;
    switch (mode) {
        case GL_POINTS:
            for (size_t i = 0; i < n; ++i)
                emit(std::array{i});
            break;
        case GL_LINES:
            for (size_t i = 1; i < n; i += 2)
                emit(std::array{i - 1, i});
            break;
        case GL_LINE_STRIP:
        case GL_LINE_LOOP:
            for (size_t i = 1; i < n; ++i)
                emit(std::array{i - 1, i});
            if (mode == GL_LINE_LOOP && n > 1) emit(std::array{n - 1, size_t{0}});
            break;
        case GL_TRIANGLES:
            for (size_t i = 2; i < n; i += 3)
                emit(std::array{i - 2, i - 1, i});
            break;
        case GL_TRIANGLE_STRIP:
            for (size_t i = 2; i < n; ++i)
                emit(i % 2 == 0 ? std::array{i - 2, i - 1, i} : std::array{i - 1, i - 2, i});
            break;
        case GL_TRIANGLE_FAN:
            for (size_t i = 2; i < n; ++i)
                emit(std::array{size_t{0}, i - 1, i});
            break;
        case GL_QUADS:
            for (size_t i = 3; i < n; i += 4)
                emit(std::array{i - 3, i - 2, i - 1, i});
            break;
        case GL_QUAD_STRIP:
            for (size_t i = 3; i < n; i += 2)
                emit(std::array{i - 1, i - 3, i - 2, i});
            break;
        case GL_POLYGON:
            if (n == 3) emit(std::array<size_t, 3>{1, 2, 0});
            if (n == 4) emit(std::array<size_t, 4>{1, 2, 3, 0});
            break;
        default:
            break;
    }
}

}  // namespace tessaplot::gl
