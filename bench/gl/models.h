#pragma once

#include <array>
#include <cmath>
#include <vector>

#include <GL/gl.h>

namespace tessaplot::bench {

/// Nodes of a wavy surface of 140 by 140 rows, scaled into a box of ten units around the origin, with what a surface
/// draws at each node. The emitters take any sink whose methods bear the names of the OpenGL calls.
class WavySurface {
 public:
    static constexpr int nodes = 140;

    WavySurface() {
        for (int i = 0; i < nodes; ++i)
            for (int j = 0; j < nodes; ++j)
                nodes_.push_back(nodeAt(i * 10.0 / (nodes - 1), j * 10.0 / (nodes - 1)));
    }

    /// The grid model: each cell draws two of its edges in a block of its own.
    template <class Sink>
    void emitGrid(Sink& sink) const {
        constexpr int last = nodes - 1;
        sink.glLineWidth(1);
        const auto begin = [&sink] {
            sink.glBegin(GL_LINES);
            sink.glColor3d(0, 0.2, 0.8);
        };
        for (int i = 0; i < last; ++i) {
            for (int j = 0; j < last; ++j) {
                begin();
                for (const Node* node : {&at(i, j), &at(i, j + 1), &at(i, j), &at(i + 1, j)})
                    sink.glVertex3d(node->x, node->y, node->z);
                sink.glEnd();
            }
        }
        for (int j = 0; j < last; ++j) {
            for (const bool along : {true, false}) {
                begin();
                for (const int k : {j, j + 1}) {
                    const Node& node = along ? at(last, k) : at(k, last);
                    sink.glVertex3d(node.x, node.y, node.z);
                }
                sink.glEnd();
            }
        }
    }

    /// The surface: each cell a lit quad with a normal and a colour at each corner.
    template <class Sink>
    void emitQuads(Sink& sink) const {
        sink.glShadeModel(GL_SMOOTH);
        for (int i = 0; i + 1 < nodes; ++i) {
            for (int j = 0; j + 1 < nodes; ++j) {
                sink.glBegin(GL_QUADS);
                for (const Node* node : {&at(i, j), &at(i + 1, j), &at(i + 1, j + 1), &at(i, j + 1)}) {
                    sink.glNormal3d(node->normal[0], node->normal[1], node->normal[2]);
                    sink.glColor3d((node->y + 5) / 10, 0.3, (5 - node->y) / 10);
                    sink.glVertex3d(node->x, node->y, node->z);
                }
                sink.glEnd();
            }
        }
    }

    /// The vertex model: each node a sphere.
    template <class Sink>
    void emitMarkers(Sink& sink) const {
        for (const Node& node : nodes_) {
            sink.glPushMatrix();
            sink.glColor3f(0.8F, 0.1F, 0.1F);
            sink.glTranslatef(static_cast<float>(node.x), static_cast<float>(node.y), static_cast<float>(node.z));
            sink.gluNewQuadric();
            sink.gluSphere(0.05, 8, 8);
            sink.gluDeleteQuadric();
            sink.glPopMatrix();
        }
    }

 private:
    struct Node {
        double x, y, z;
        std::array<double, 3> normal;
    };

    static Node nodeAt(double x, double y) {
        const double up = 5 * std::sin(0.5 * x) * std::cos(0.4 * y);
        const double alongX = 2.5 * std::cos(0.5 * x) * std::cos(0.4 * y);
        const double alongY = -2 * std::sin(0.5 * x) * std::sin(0.4 * y);
        const double length = std::sqrt(alongX * alongX + alongY * alongY + 1);
        return {x - 5, up, y - 5, {-alongX / length, 1 / length, -alongY / length}};
    }
    const Node& at(int i, int j) const {
        return nodes_[static_cast<std::size_t>(i) * nodes + static_cast<std::size_t>(j)];
    }

    std::vector<Node> nodes_;
};

}  // namespace tessaplot::bench
