#pragma once

#include <string>
#include <vector>

#include "gl/display_list.h"
#include "graphs/graph.h"
#include "graphs/texture.h"

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

    std::string drawn(Cls9& graph) const {
        gl::DisplayList list;
        graph.Draw(list, context());
        return gl::toText(list);
    }
};

inline Cls9 graphOf(int type, int stepU, int stepV) {
    Cls9 graph;
    graph.GraphType = type;
    graph.StepU = stepU;
    graph.StepV = stepV;
    return graph;
}

}  // namespace tessaplot::graphs
