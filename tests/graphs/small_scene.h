#pragma once

#include <array>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gl/display_list.h"
#include "graphs/graph.h"
#include "graphs/texture.h"
#include "plain_graphs.h"

namespace tessaplot::graphs {

/// A small data set with all that a graph reads beside it.
struct SmallScene {
    data::ClsData data;
    data::DataKind kind = data::DataKind::RegularSurface;
    data::Scaling scaling;
    scene::SceneState scene;
    std::vector<geometry::Triangle> triangles;
    platform::Desktop desktop;
    mutable TextureCache textures;
    std::filesystem::path folder;

    SmallScene() {
        scaling.ScaleX = 2;
        scaling.ScaleY = 4;
        scaling.ScaleZ = 8;
    }

    GraphContext context() const { return {data, kind, scaling, scene, triangles, &desktop, &textures, folder}; }

    /// A surface of countX by countY nodes at (i, 10 j, 100 i + j) with the colour -j.
    void fillSurface(int countX, int countY) {
        for (data::Array* array : {&data.Reg3DX, &data.Reg3DY, &data.Reg3DZ, &data.Reg3DC})
            array->allocate(countX, countY);
        for (int i = 0; i < countX; ++i) {
            for (int j = 0; j < countY; ++j) {
                data.Reg3DX(i, j) = i;
                data.Reg3DY(i, j) = 10 * j;
                data.Reg3DZ(i, j) = 100 * i + j;
                data.Reg3DC(i, j) = -j;
            }
        }
    }

    gl::DisplayList listOf(Cls9& graph) const {
        gl::DisplayList list;
        graph.Draw(list, context());
        return list;
    }
    std::string drawn(Cls9& graph) const { return gl::toText(listOf(graph)); }
    /// What the graph emits after its material.
    std::string body(Cls9& graph) const {
        const std::string lastOfMaterial = "GL_AMBIENT 0 0 0 0\n";
        const std::string text = drawn(graph);
        return text.substr(text.find(lastOfMaterial) + lastOfMaterial.size());
    }
    /// Draws the graph and holds it against its plain form.
    void expectAsPlain(Cls9& graph, PlainGraph* plain) const {
        const std::string text = body(graph);
        gl::DisplayList list;
        Cls9 other = graph;  // With the ranges that it found.
        plain(list, other, context());
        ASSERT_EQ(text, gl::toText(list));
        ASSERT_EQ(text.find("nan"), std::string::npos);
        EXPECT_EQ(graph.ColorName, other.ColorName);
    }
};

inline Cls9 graphOf(int type, int stepU, int stepV) {
    Cls9 graph;
    graph.GraphType = type;
    graph.StepU = stepU;
    graph.StepV = stepV;
    return graph;
}

using Place = std::array<double, 3>;

/// Every vertex with the colour in force.
inline std::vector<std::pair<Place, Place>> colouredVerticesOf(const gl::DisplayList& list) {
    std::vector<std::pair<Place, Place>> vertices;
    Place color{};
    list.forEach([&](const gl::Operation& operation) {
        const auto& n = operation.numbers;
        if (operation.op == gl::Op::Color3d) color = {n[0], n[1], n[2]};
        if (operation.op == gl::Op::Vertex3d) vertices.push_back({{n[0], n[1], n[2]}, color});
    });
    return vertices;
}

using Engine = std::mt19937;

inline int pick(Engine& engine, int least, int most) {
    return std::uniform_int_distribution(least, most)(engine);
}

}  // namespace tessaplot::graphs
