#include "plain_volume.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "graphs/color_fill.h"
#include "graphs/contour_lines.h"
#include "graphs/emitters.h"

namespace tessaplot::graphs {

namespace {

bool bad(double number) {
    return number == 0.12345 || !std::isfinite(number);
}

bool badAt(const data::ClsData& data, int i, int j, int k) {
    return bad(data.Reg4DX(i, j, k)) || bad(data.Reg4DY(i, j, k)) || bad(data.Reg4DZ(i, j, k)) ||
           bad(data.Reg4DV(i, j, k));
}

void marks(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    if (context.kind != data::DataKind::IrregularVolume || !graph.ShowIrregData) return;
    for (int p = 0; p < context.data.Points; ++p) {
        scene::Cls2 mark;
        mark.z = context.data.Irreg4DX(p) / context.scaling.ScaleX;
        mark.x = context.data.Irreg4DY(p) / context.scaling.ScaleY;
        mark.y = context.data.Irreg4DZ(p) / context.scaling.ScaleZ;
        mark.Color = 255;
        mark.size = context.data.Irreg4DV(p) / context.data.MaxV * 5.0;
        mark.Draw(list, context.scene);
    }
}

void smooth(gl::DisplayList& list) {
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
}

void color3f(gl::DisplayList& list, base::PackedColor color) {
    const Rgb rgb = ColorToRGB(color);
    list.glColor3f(static_cast<float>(rgb.r), static_cast<float>(rgb.g), static_cast<float>(rgb.b));
}

/// An arrow by the differences to the nodes `back` before and `forth` after this one.
void arrow(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, int i, int j, int k, int back,
           int forth) {
    const data::ClsData& d = context.data;
    for (const int step : {-back, 0, forth})
        if (badAt(d, i + step, j, k) || badAt(d, i, j + step, k) || badAt(d, i, j, k + step)) return;
    const double v = d.Reg4DV(i, j, k);
    const int count = back + forth;
    const double du = ((v - d.Reg4DV(i - back, j, k)) + (d.Reg4DV(i + forth, j, k) - v)) / count;
    const double dv = ((v - d.Reg4DV(i, j - back, k)) + (d.Reg4DV(i, j + forth, k) - v)) / count;
    const double dh = ((v - d.Reg4DV(i, j, k - back)) + (d.Reg4DV(i, j, k + forth) - v)) / count;
    const Node from{d.Reg4DY(i, j, k), d.Reg4DZ(i, j, k), d.Reg4DX(i, j, k)};
    DrawArrow(list, graph, context, from, {from.x + dv, from.y + dh, from.z + du});
}

/// What slices across one axis exchange: the node at (first, second, layer), the vertex, and everything by name.
struct Across {
    const SliceSet& slices;
    double scale, minimum, cell, minimumU, cellU, minimumV, cellV;
    int last, lastU, lastV;
    ContourPass pass;
    std::array<double, 3> normal;
};

}  // namespace

void plainScatter(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    for (int i = 0; i <= graph.StepU; ++i) {
        for (int j = 0; j <= graph.StepV; ++j) {
            for (int k = 0; k <= graph.StepH; ++k) {
                if (badAt(d, i, j, k)) continue;
                scene::Cls2 marker = scene::Cls2::init(d.Reg4DY(i, j, k), d.Reg4DZ(i, j, k), d.Reg4DX(i, j, k));
                marker.Color = graph.Scat4DColor;
                marker.size = d.Reg4DV(i, j, k) / d.MaxV * context.scaling.ScaleV * 5.0;
                marker.Draw(list, context.scene);
            }
        }
    }
    marks(list, graph, context);
}

void plainVectors(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    const int u = graph.StepU;
    const int v = graph.StepV;
    const int h = graph.StepH;
    smooth(list);
    color3f(list, graph.VectorColor);
    for (int i = 1; i < u; ++i)
        for (int j = 1; j < v; ++j)
            for (int k = 1; k < h; ++k)
                arrow(list, graph, context, i, j, k, 1, 1);
    for (int i = 0; i < u; ++i)
        for (int j = 0; j < v; ++j)
            arrow(list, graph, context, i, j, 0, 0, 1);
    for (int i = 1; i < u; ++i)
        for (int j = 1; j < v; ++j)
            arrow(list, graph, context, i, j, h, 1, 0);
    for (int i = 0; i < u; ++i)
        for (int k = 0; k < h; ++k)
            arrow(list, graph, context, i, 0, k, 0, 1);
    for (int i = 1; i < u; ++i)
        for (int k = 1; k < h; ++k)
            arrow(list, graph, context, i, v, k, 1, 0);
    for (int j = 0; j < v; ++j)
        for (int k = 0; k < h; ++k)
            arrow(list, graph, context, 0, j, k, 0, 1);
    for (int j = 1; j < v; ++j)
        for (int k = 1; k < h; ++k)
            arrow(list, graph, context, u, j, k, 1, 0);
    marks(list, graph, context);
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
}

namespace {

/// `number(i, j, n)` gives coordinates Y, Z, X and the value (n from 0 to 3) of the node of a layer; `place` the vertex
/// of a node and a shift within the plane.
template <class Number, class Place>
void plainSlice(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const Across& a,
                const SliceSet::Slice& slice, double pos, const Number& number, const Place& place) {
    const int i0 = slice.FirstBegin == 0 ? 0 : slice.FirstBegin - 1;
    const int i1 = slice.FirstEnd == 0 ? a.lastU : slice.FirstEnd - 1;
    const int j0 = slice.SecondBegin == 0 ? 0 : slice.SecondBegin - 1;
    const int j1 = slice.SecondEnd == 0 ? a.lastV : slice.SecondEnd - 1;
    const auto value = [&](int i, int j) { return number(i, j, 3); };
    const auto hole = [&](int i, int j) { return bad(value(i, j)); };
    if (slice.ShowColor) {
        list.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        list.glShadeModel(GL_SMOOTH);
        if (slice.ShowCont || slice.ShowVect) {
            list.glEnable(GL_POLYGON_OFFSET_FILL);
            list.glPolygonOffset(1, 1);
        }
        for (int i = i0; i < i1; ++i) {
            for (int j = j0; j < j1; ++j) {
                if (hole(i, j) || hole(i + 1, j) || hole(i + 1, j + 1) || hole(i, j + 1)) continue;
                list.glBegin(GL_QUADS);
                list.glNormal3d(a.normal[0], a.normal[1], a.normal[2]);
                for (const auto& [ci, cj] : {std::pair{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}) {
                    Rgb color;
                    const double v = value(ci, cj);
                    if (graph.FillStyle == 5) ValueToRGB(graph, v, graph.MInv, graph.MaxV - graph.MInv, color);
                    if (graph.FillStyle == 3)
                        color = gradientColor(v, graph.MInv, graph.MaxV - graph.MInv, ColorToRGB(graph.FirstColor),
                                              ColorToRGB(graph.SecondColor));
                    list.glColor3d(color.r, color.g, color.b);
                    place(ci, cj, 0, 0);
                }
                list.glEnd();
            }
        }
        if (slice.ShowCont || slice.ShowVect) list.glDisable(GL_POLYGON_OFFSET_FILL);
        list.glEnable(GL_LIGHTING);
    }
    if (slice.ShowCont)
        emitContourLines(list, graph, context,
                         {i1 - i0 + 1, j1 - j0 + 1, [&](int i, int j) { return value(i0 + i, j0 + j); }, a.cellU,
                          a.cellV, (i0 - 1) * a.cellU + a.minimumU, (j0 - 1) * a.cellV + a.minimumV},
                         pos, {slice.ContLevels, 4, slice.ContColor, slice.ContColor, graph.LineWidth}, a.pass);
    if (!slice.ShowVect) return;
    smooth(list);
    color3f(list, a.pass == ContourPass::AcrossZ ? 0 : slice.VectColor);
    for (int i = i0 + 1; i < i1; ++i) {
        for (int j = j0 + 1; j < j1; ++j) {
            if (hole(i, j) || hole(i - 1, j) || hole(i + 1, j) || hole(i, j - 1) || hole(i, j + 1)) continue;
            const double v = value(i, j);
            list.glBegin(GL_LINES);
            place(i, j, 0, 0);
            place(i, j, ((v - value(i - 1, j)) + (value(i + 1, j) - v)) / 2,
                  ((v - value(i, j - 1)) + (value(i, j + 1) - v)) / 2);
            list.glEnd();
        }
    }
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
}

/// `node(i, j, layer)` gives the indices of a node in the data set.
template <class NodeOf, class Vertex>
void plainSlicesAcross(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const Across& a,
                       const NodeOf& node, const Vertex& vertex) {
    const data::ClsData& d = context.data;
    for (int n = 1; n <= a.slices.Num; ++n) {
        const double pos = a.slices[n].Position / a.scale;
        int lower = 0;
        int upper = 0;
        double w = 0;
        for (int k = 0; k < a.last; ++k) {
            const double lo = k * a.cell + a.minimum;
            const double hi = (k + 1) * a.cell + a.minimum;
            lower = k;
            upper = k + 1;
            w = (pos - lo) / (hi - lo);
            if (pos - lo > 0.0001 && hi - pos > 0.0001) break;
            upper = k;
            if (std::abs(lo - pos) < 0.0001) break;
            lower = upper = k + 1;
            if (std::abs(hi - pos) < 0.0001) break;
        }
        const auto number = [&](int i, int j, int which) {
            const auto at = [&](int layer) {
                const auto [x, y, z] = node(i, j, layer);
                if (badAt(d, x, y, z)) return 0.12345;
                const std::array numbers{d.Reg4DY(x, y, z), d.Reg4DZ(x, y, z), d.Reg4DX(x, y, z), d.Reg4DV(x, y, z)};
                return numbers[static_cast<std::size_t>(which)];
            };
            if (lower == upper || bad(at(lower)) || bad(at(upper))) return bad(at(upper)) ? 0.12345 : at(lower);
            return at(lower) + (at(upper) - at(lower)) * w;
        };
        plainSlice(list, graph, context, a, a.slices[n], pos, number, [&](int i, int j, double du, double dv) {
            const std::array<double, 3> p =
                vertex(pos, std::array{number(i, j, 0), number(i, j, 1), number(i, j, 2)}, du, dv);
            list.glVertex3d(p[0] - context.scene.SceneCenterX, p[1] - context.scene.SceneCenterY,
                            p[2] - context.scene.SceneCenterZ);
        });
    }
}

}  // namespace

void plainSlices(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    using Place = std::array<int, 3>;
    using Point = std::array<double, 3>;
    const data::Scaling& scale = context.scaling;
    const double cu = (graph.MaxX - graph.MinX) / graph.StepU;
    const double cv = (graph.MaxY - graph.MinY) / graph.StepV;
    const double ch = (graph.MaxZ - graph.MinZ) / graph.StepH;
    const int u = graph.StepU;
    const int v = graph.StepV;
    const int h = graph.StepH;
    plainSlicesAcross(
        list, graph, context,
        {graph.SlicesZ,
         scale.ScaleZ,
         graph.MinZ,
         ch,
         graph.MinX,
         cu,
         graph.MinY,
         cv,
         h,
         u,
         v,
         ContourPass::AcrossZ,
         {0, 1, 0}},
        [](int i, int j, int layer) {
            return Place{i, j, layer};
        },
        [](double pos, const Point& p, double du, double dv) {
            return Point{p[0] + dv, pos, p[2] + du};
        });
    plainSlicesAcross(
        list, graph, context,
        {graph.SlicesY,
         scale.ScaleY,
         graph.MinY,
         cv,
         graph.MinX,
         cu,
         graph.MinZ,
         ch,
         v,
         u,
         h,
         ContourPass::AcrossY,
         {0, 0, 1}},
        [](int i, int k, int layer) {
            return Place{i, layer, k};
        },
        [](double pos, const Point& p, double du, double dh) {
            return Point{pos, p[1] + dh, p[2] + du};
        });
    plainSlicesAcross(
        list, graph, context,
        {graph.SlicesX,
         scale.ScaleX,
         graph.MinX,
         cu,
         graph.MinY,
         cv,
         graph.MinZ,
         ch,
         u,
         v,
         h,
         ContourPass::AcrossX,
         {1, 0, 0}},
        [](int j, int k, int layer) {
            return Place{layer, j, k};
        },
        [](double pos, const Point& p, double dv, double dh) {
            return Point{p[0] + dv, p[1] + dh, pos};
        });
    marks(list, graph, context);
}

}  // namespace tessaplot::graphs
