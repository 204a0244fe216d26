#include "plain_graphs.h"

#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "geometry/contour.h"
#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "scene/material.h"

namespace tessaplot::graphs {

namespace {

using Triple = std::array<double, 3>;
using Table = std::vector<std::vector<Triple>>;
using Corner = std::array<int, 2>;

constexpr double missing = 0.12345;

bool bad(double number) {
    return number == missing || !std::isfinite(number);
}

Table table(int lastI, int lastJ) {
    return Table(std::size_t(lastI) + 1, std::vector<Triple>(std::size_t(lastJ) + 1));
}

std::array<Corner, 4> cornersOf(int i, int j) {
    return {{{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}};
}

Triple plus(const Triple& a, const Triple& b) {
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

Triple divided(const Triple& v, double instead) {
    double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (!std::isfinite(length)) return {};
    if (length == 0) length = instead;
    return {v[0] / length, v[1] / length, v[2] / length};
}

Triple normal(const Triple& p, const Triple& q, const Triple& r, const Triple& s) {
    const Triple a{p[0] - q[0], p[1] - q[1], p[2] - q[2]};
    const Triple b{r[0] - s[0], r[1] - s[1], r[2] - s[2]};
    return divided({a[1] * b[2] - a[2] * b[1], a[2] * b[0] - b[2] * a[0], b[1] * a[0] - a[1] * b[0]}, 1.0 / 10000);
}

double spanOf(double lower, double upper) {
    return upper - lower == 0 ? 1.0 / 1000000 : upper - lower;
}

Rgb gradient(double value, double lower, double upper, base::PackedColor first, base::PackedColor second) {
    const double span = spanOf(lower, upper);
    const Rgb f = ColorToRGB(first);
    const Rgb s = ColorToRGB(second);
    return {(value - lower) * (f.r - s.r) / span + s.r, (value - lower) * (f.g - s.g) / span + s.g,
            (value - lower) * (f.b - s.b) / span + s.b};
}

/// The colour variables of one drawing.
struct Colors {
    Cls9& graph;
    Rgb now{};

    Rgb at(const Triple& node, double value, bool overlay) {
        const auto along = [&](double number, double lower, double upper) {
            now = gradient(number, lower, upper, graph.FirstColor, graph.SecondColor);
        };
        const int style = graph.FillStyle;
        if (style == 1 && !overlay) along(node[0], graph.MinY, graph.MaxY);
        if (style == 2 && !overlay) along(node[2], graph.MinX, graph.MaxX);
        if (style == 3) along(node[1], graph.MinZ, graph.MaxZ);
        if (style == 4 && !overlay) now = ColorToRGB(graph.SecondColor);
        if (style == 5) ValueToRGB(graph, value, graph.MinC, spanOf(graph.MinC, graph.MaxC), now);
        return now;
    }
};

void color3f(gl::DisplayList& list, base::PackedColor color) {
    const Rgb rgb = ColorToRGB(color);
    list.glColor3f(static_cast<float>(rgb.r), static_cast<float>(rgb.g), static_cast<float>(rgb.b));
}

/// A vertex of a scene that stands upright, at data X, Y and Z.
void upright(gl::DisplayList& list, const GraphContext& context, const Triple& p) {
    const scene::SceneState& at = context.scene;
    list.glVertex3d(p[1] - at.SceneCenterX, p[2] - at.SceneCenterY, p[0] - at.SceneCenterZ);
}

void flat(gl::DisplayList& list, const GraphContext& context, const Triple& p) {
    const scene::SceneState& at = context.scene;
    list.glVertex3d(p[0] - at.SceneCenterZ, p[1] - at.SceneCenterX, p[2] - at.SceneCenterY);
}

void beginSmooth(gl::DisplayList& list, bool hint) {
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    if (hint) list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
}

void endSmooth(gl::DisplayList& list) {
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
}

void shade(gl::DisplayList& list, int smoothness) {
    if (smoothness == 1) list.glShadeModel(GL_FLAT);
    if (smoothness == 2 || smoothness == 3) list.glShadeModel(GL_SMOOTH);
}

/// Values at m by n nodes, `du` and `dv` apart, the first of them a step beyond (u, v).
struct Field {
    int m, n;
    double du, dv, u, v;
};

Field fieldOf(const Cls9& graph) {
    const double du = (graph.MaxX - graph.MinX) / graph.StepU;
    const double dv = (graph.MaxY - graph.MinY) / graph.StepV;
    return {graph.StepU + 1, graph.StepV + 1, du, dv, graph.MinX - du, graph.MinY - dv};
}

template <class Value, class Vertex>
void contours(gl::DisplayList& list, const GraphContext& context, const Field& field, int width,
              const geometry::ContourOptions& options, const Value& valueAt, const Vertex& vertex) {
    std::vector<double> values;
    for (int i = 0; i < field.m; ++i)
        for (int j = 0; j < field.n; ++j)
            values.push_back(valueAt(i, j));
    const auto lines = geometry::CContour::Contour(
        {field.m, field.n, field.dv, field.du, field.v, field.u, values, std::size_t(field.n)}, options);
    list.glDisable(GL_LIGHTING);
    beginSmooth(list, false);
    list.glLineWidth(static_cast<float>(width));
    for (const auto& level : lines.levels) {
        list.glColor3d(level.color->r, level.color->g, level.color->b);
        for (const auto& [from, to] : lines.of(level)) {
            if (context.scene.SceneMode != scene::mode2D) list.glColor3d(150, 150, 150);
            list.glBegin(GL_LINES);
            vertex(from.B, from.A);
            vertex(to.B, to.A);
            list.glEnd();
        }
    }
    endSmooth(list);
    list.glEnable(GL_LIGHTING);
}

/// The difference of the values beside a node along both axes; none beside a hole.
template <class Value>
std::optional<std::array<double, 2>> slopeAt(const Value& valueAt, int i, int j) {
    const double h = valueAt(i, j), w = valueAt(i - 1, j), s = valueAt(i, j - 1), e = valueAt(i + 1, j),
                 n = valueAt(i, j + 1);
    if (bad(h) || bad(w) || bad(s) || bad(e) || bad(n)) return std::nullopt;
    return {{((h - w) + (e - h)) / 2, ((h - s) + (n - h)) / 2}};
}

template <class Vertex>
void arrows(gl::DisplayList& list, const Cls9& graph, const data::ClsData& d, const data::Array& values,
            base::PackedColor color, const Vertex& vertex) {
    list.glDisable(GL_LIGHTING);
    beginSmooth(list, true);
    color3f(list, color);
    for (int i = 1; i < graph.StepU; ++i)
        for (int j = 1; j < graph.StepV; ++j) {
            const auto slope = slopeAt(values, i, j);
            if (!slope) continue;
            const double tipX = d.Reg3DX(i, j) + (*slope)[0];
            const double tipY = d.Reg3DY(i, j) + (*slope)[1];
            list.glBegin(GL_LINES);
            vertex(d.Reg3DX(i, j), d.Reg3DY(i, j), false);
            vertex(tipX, tipY, false);
            list.glEnd();
            for (int t = 0; t < 20; ++t) {
                const double y = tipY + std::sin(t * 0.31416) * 0.04;
                list.glBegin(GL_TRIANGLES);
                vertex(tipX + std::cos(t * 0.31416) * 0.04, y, true);
                vertex(tipX + std::cos((t + 1) * 0.31416) * 0.04, y, true);
                vertex(tipX, tipY, false);
                list.glEnd();
            }
        }
    endSmooth(list);
    list.glEnable(GL_LIGHTING);
}

/// Each node's normal is the sum of those of the cells around it, over the seams where the surface closes.
Table vertexNormals(const Cls9& graph, const Table& P, const Table& FN) {
    const int U = graph.StepU;
    const int V = graph.StepV;
    const auto sumOf = [&](std::initializer_list<Corner> cells) {
        std::optional<Triple> sum;
        for (const auto& [i, j] : cells)
            if (i >= 0 && i < U && j >= 0 && j < V) sum = sum ? plus(*sum, FN[i][j]) : FN[i][j];
        return *sum;
    };
    Table VN = table(U, V);
    for (int i = 0; i <= U; ++i)
        for (int j = 0; j <= V; ++j)
            VN[i][j] = sumOf({{i, j}, {i - 1, j}, {i, j - 1}, {i - 1, j - 1}});
    const Triple tolerance{(graph.MaxY - graph.MinY) / U * 8 / 10, (graph.MaxZ - graph.MinZ) / V * 8 / 10,
                           (graph.MaxX - graph.MinX) / (U > V ? U : V) * 8 / 10};
    const auto meet = [&](const Triple& a, const Triple& b) {
        return std::abs(a[0] - b[0]) < tolerance[0] && std::abs(a[1] - b[1]) < tolerance[1] &&
               std::abs(a[2] - b[2]) < tolerance[2];
    };
    if (meet(P[0][V], P[0][0]) && meet(P[U][V], P[U][0]))
        for (int i = 0; i <= U; ++i)
            VN[i][0] = VN[i][V] = sumOf({{i, 0}, {i - 1, 0}, {i, V - 1}, {i - 1, V - 1}});
    if (meet(P[U][0], P[0][0]) && meet(P[U][V], P[0][V]))
        for (int j = 0; j <= V; ++j)
            VN[0][j] = VN[U][j] = sumOf({{0, j}, {0, j - 1}, {U - 1, j}, {U - 1, j - 1}});
    for (auto& row : VN)
        for (Triple& v : row)
            v = divided(v, 1);
    return VN;
}

bool badAt(const data::ClsData& d, int i, int j, int k) {
    return bad(d.Reg4DX(i, j, k)) || bad(d.Reg4DY(i, j, k)) || bad(d.Reg4DZ(i, j, k)) || bad(d.Reg4DV(i, j, k));
}

void volumeMarks(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    if (context.kind != data::DataKind::IrregularVolume || !graph.ShowIrregData) return;
    const data::ClsData& d = context.data;
    for (int p = 0; p < d.Points; ++p) {
        scene::Cls2 mark =
            scene::Cls2::init(d.Irreg4DY(p) / context.scaling.ScaleY, d.Irreg4DZ(p) / context.scaling.ScaleZ,
                              d.Irreg4DX(p) / context.scaling.ScaleX);
        mark.Color = 255;
        mark.size = d.Irreg4DV(p) / d.MaxV * 5.0;
        mark.Draw(list, context.scene);
    }
}

}  // namespace

void plainSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    const int U = graph.StepU;
    const int V = graph.StepV;
    Table P = table(U, V);
    for (int i = 0; i <= U; ++i)
        for (int j = 0; j <= V; ++j)
            P[i][j] = {d.Reg3DY(i, j), d.Reg3DZ(i, j), d.Reg3DX(i, j)};
    if (graph.Show == 1) list.glPolygonMode(GL_FRONT_AND_BACK, GL_POINT);
    if (graph.Show == 2) list.glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    if (graph.Show == 3) list.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    if (graph.ShowTrans) {
        list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        list.glEnable(GL_BLEND);
        list.glDepthMask(false);
    }
    Table FN = table(U - 1, V - 1);
    for (int i = 0; i < U; ++i)
        for (int j = 0; j < V; ++j)
            FN[i][j] = normal(P[i][j], P[i + 1][j + 1], P[i + 1][j], P[i][j + 1]);
    const Table VN = vertexNormals(graph, P, FN);
    shade(list, graph.Smoothness);

    Colors colors{graph};
    const auto color = [&](const Rgb& c) {
        if (graph.ShowTex && graph.TexMode == 2) list.glColor4d(c.r, c.g, c.b, graph.TransAlpha);
        if (graph.ShowTex && graph.TexMode == 1) list.glColor3d(1, 1, 1);
        if (!graph.ShowTex && graph.ShowTrans) list.glColor4d(c.r, c.g, c.b, graph.TransAlpha);
        if (!graph.ShowTex && !graph.ShowTrans) list.glColor3d(c.r, c.g, c.b);
    };
    const double under = graph.MinZ - 3.0;
    for (const bool overlay : {false, true}) {
        if (overlay) {
            if (graph.ShowTex) list.glDisable(GL_TEXTURE_2D);
            if (graph.ShowTrans) list.glDisable(GL_BLEND);
            for (int p = 0; p < d.Points && graph.ShowIrregData; ++p) {
                scene::Cls2 marker = scene::Cls2::init(d.Irreg3DY(p), d.Irreg3DZ(p), d.Irreg3DX(p));
                marker.Color = base::packColor(255, 255, 0);
                marker.size = 3;
                marker.Draw(list, context.scene);
            }
            if (!graph.ShowColormap) break;
        }
        const bool one = !overlay && (graph.Smoothness == 1 || graph.Smoothness == 2);
        const bool drawn = overlay || one || graph.Smoothness == 3;
        for (int i = 0; i < U; ++i)
            for (int j = 0; j < V; ++j) {
                std::vector<Rgb> rgb;
                bool hole = false;
                for (const auto& [a, b] : cornersOf(i, j)) {
                    rgb.push_back(colors.at(P[a][b], d.Reg3DC(a, b), overlay));
                    for (const double coordinate : P[a][b])
                        hole = hole || bad(coordinate);
                }
                if (overlay && hole) continue;
                list.glBegin(GL_QUADS);
                if (one && !hole) list.glNormal3d(FN[i][j][0], FN[i][j][1], FN[i][j][2]);
                for (std::size_t k = 0; k < 4 && drawn && !hole; ++k) {
                    const auto [a, b] = cornersOf(i, j)[k];
                    const double tu = double(U - a) / U;
                    const double tv = double(V - b) / V;
                    if (one) list.glTexCoord2f(float(tu), float(tv));
                    if (!one && !overlay) list.glTexCoord2d(tu, tv);
                    if (!one) list.glNormal3d(VN[a][b][0], VN[a][b][1], VN[a][b][2]);
                    overlay ? list.glColor3d(rgb[k].r, rgb[k].g, rgb[k].b) : color(rgb[k]);
                    upright(list, context, {P[a][b][2], P[a][b][0], overlay ? under : P[a][b][1]});
                }
                list.glEnd();
            }
    }
    if (graph.ShowTrans) {
        list.glDisable(GL_BLEND);
        list.glDepthMask(true);
    }
    if (graph.ShowContour)
        contours(list, context, fieldOf(graph), graph.LineWidth, {graph.ContourLevel, 4, 0, 0, {}}, d.Reg3DC,
                 [&](double u, double v) {
                     upright(list, context, {u, v, under});
                 });
    if (graph.ShowVector)
        arrows(list, graph, d, d.Reg3DC, 0, [&](double x, double y, bool) { upright(list, context, {x, y, under}); });
}

void plainTriangles(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    const auto point = [&](int p) { return Triple{d.Irreg3DY(p - 1), d.Irreg3DZ(p - 1), d.Irreg3DX(p - 1)}; };
    const auto vertex = [&](const Triple& p) { upright(list, context, {p[2], p[0], p[1]}); };
    if (graph.ShowDS) {
        std::vector<Triple> normals(std::size_t(d.Points) + 1);
        std::vector<int> held(normals.size());
        std::vector<Triple> faces;
        for (const auto& [a, b, c] : context.triangles) {
            faces.push_back(normal(point(a), point(c), point(b), point(c)));
            for (int p = 1; p <= d.Points; ++p) {
                if (a != p && b != p && c != p) continue;
                normals[std::size_t(p)] = plus(normals[std::size_t(p)], faces.back());
                ++held[std::size_t(p)];
            }
        }
        for (std::size_t p = 0; p < normals.size(); ++p)
            if (held[p] > 0)
                normals[p] = divided({normals[p][0] / held[p], normals[p][1] / held[p], normals[p][2] / held[p]}, 1);
        shade(list, graph.Smoothness);
        Colors colors{graph};
        for (std::size_t k = 0; k < faces.size(); ++k) {
            const auto& [a, b, c] = context.triangles[k];
            bool begun = false;
            list.glBegin(GL_TRIANGLES);
            for (const int p : {a, b, c}) {
                const Rgb rgb = colors.at(point(p), d.Irreg3DC(p - 1), false);
                list.glColor3d(rgb.r, rgb.g, rgb.b);
                const bool isFlat = graph.Smoothness == 1;
                const Triple& n = isFlat ? faces[k] : normals[std::size_t(p)];
                if (!isFlat || !begun) list.glNormal3d(n[0], n[1], n[2]);
                begun = true;
                vertex(point(p));
            }
            list.glEnd();
        }
    }
    if (!graph.ShowDG) return;
    const Rgb rgb = ColorToRGB(graph.TriColor);
    for (const auto& [a, b, c] : context.triangles) {
        list.glColor3d(rgb.r, rgb.g, rgb.b);
        list.glLineWidth(static_cast<float>(graph.TriWidth));
        list.glBegin(GL_LINES);
        for (const int corner : {a, b, b, c, a, c})
            vertex(point(corner));
        list.glEnd();
    }
}

void plainColorMap(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    Rgb color;
    list.glDisable(GL_LIGHTING);
    for (int i = 0; i < graph.StepU; ++i)
        for (int j = 0; j < graph.StepV; ++j) {
            std::vector<Rgb> colors;
            bool hole = false;
            for (const auto& [a, b] : cornersOf(i, j)) {
                const double h = d.Reg3DZ(a, b);
                if (graph.FillStyle == 5) ValueToRGB(graph, h, graph.MinZ, spanOf(graph.MinZ, graph.MaxZ), color);
                if (graph.FillStyle == 3)
                    color = gradient(h, graph.MinZ, graph.MaxZ, graph.ColorMapcolor2, graph.ColorMapcolor1);
                colors.push_back(color);
                hole = hole || bad(h);
            }
            if (hole) continue;
            list.glBegin(GL_QUADS);
            for (std::size_t k = 0; k < 4; ++k) {
                const auto [a, b] = cornersOf(i, j)[k];
                list.glNormal3d(0, 0, 0);
                list.glColor3d(colors[k].r, colors[k].g, colors[k].b);
                flat(list, context, {d.Reg3DX(a, b), d.Reg3DY(a, b), graph.MinZ});
            }
            list.glEnd();
        }
    list.glEnable(GL_LIGHTING);
}

void plainVectors(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    arrows(list, graph, context.data, context.data.Reg3DZ, graph.VectorColor, [&](double x, double y, bool rim) {
        flat(list, context, {x, y, rim ? 0 : graph.MinZ});
    });
}

void plainContourPlot(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    contours(list, context, fieldOf(graph), graph.ConWidth,
             {graph.ContourLevels, graph.ConFillType, graph.ConColor1, graph.ConColor2, {}}, context.data.Reg3DZ,
             [&](double u, double v) {
                 (context.scene.SceneMode == scene::mode2D ? flat : upright)(list, context, {u, v, graph.MinZ});
             });
}

void plainScatter4D(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    for (int i = 0; i <= graph.StepU; ++i)
        for (int j = 0; j <= graph.StepV; ++j)
            for (int k = 0; k <= graph.StepH; ++k) {
                if (badAt(d, i, j, k)) continue;
                scene::Cls2 marker = scene::Cls2::init(d.Reg4DY(i, j, k), d.Reg4DZ(i, j, k), d.Reg4DX(i, j, k));
                marker.Color = graph.Scat4DColor;
                marker.size = d.Reg4DV(i, j, k) / d.MaxV * context.scaling.ScaleV * 5.0;
                marker.Draw(list, context.scene);
            }
    volumeMarks(list, graph, context);
}

void plainVectors4D(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    // An arrow at each node of a range, by the differences to the nodes `back` before it and `forth` after it.
    const auto arrowsOver = [&](Corner is, Corner js, Corner ks, int back, int forth) {
        const auto arrow = [&](int i, int j, int k) {
            for (const int step : {-back, 0, forth})
                if (badAt(d, i + step, j, k) || badAt(d, i, j + step, k) || badAt(d, i, j, k + step)) return;
            const double v = d.Reg4DV(i, j, k);
            const int count = back + forth;
            const double du = ((v - d.Reg4DV(i - back, j, k)) + (d.Reg4DV(i + forth, j, k) - v)) / count;
            const double dv = ((v - d.Reg4DV(i, j - back, k)) + (d.Reg4DV(i, j + forth, k) - v)) / count;
            const double dh = ((v - d.Reg4DV(i, j, k - back)) + (d.Reg4DV(i, j, k + forth) - v)) / count;
            const Node from{d.Reg4DY(i, j, k), d.Reg4DZ(i, j, k), d.Reg4DX(i, j, k)};
            DrawArrow(list, graph, context, from, {from.x + dv, from.y + dh, from.z + du});
        };
        for (int i = is[0]; i < is[1]; ++i)
            for (int j = js[0]; j < js[1]; ++j)
                for (int k = ks[0]; k < ks[1]; ++k)
                    arrow(i, j, k);
    };
    const int u = graph.StepU;
    const int v = graph.StepV;
    const int h = graph.StepH;
    if (graph.Material != scene::neon) beginSmooth(list, true);
    color3f(list, graph.VectorColor);
    arrowsOver({1, u}, {1, v}, {1, h}, 1, 1);
    arrowsOver({0, u}, {0, v}, {0, 1}, 0, 1);
    arrowsOver({1, u}, {1, v}, {h, h + 1}, 1, 0);
    arrowsOver({0, u}, {0, 1}, {0, h}, 0, 1);
    arrowsOver({1, u}, {v, v + 1}, {1, h}, 1, 0);
    arrowsOver({0, 1}, {0, v}, {0, h}, 0, 1);
    arrowsOver({u, u + 1}, {1, v}, {1, h}, 1, 0);
    volumeMarks(list, graph, context);
    endSmooth(list);
}

void plainSlices4D(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    const std::array last{graph.StepU, graph.StepV, graph.StepH};
    const Triple scale{context.scaling.ScaleX, context.scaling.ScaleY, context.scaling.ScaleZ};
    const Triple least{graph.MinX, graph.MinY, graph.MinZ};
    const Triple cell{(graph.MaxX - graph.MinX) / last[0], (graph.MaxY - graph.MinY) / last[1],
                      (graph.MaxZ - graph.MinZ) / last[2]};
    const auto slicesAcross = [&](const SliceSet& slices, std::size_t across, std::size_t first, std::size_t second,
                                  const Triple& face) {
        for (int n = 1; n <= slices.Num; ++n) {
            const SliceSet::Slice& slice = slices[n];
            const double pos = slice.Position / scale[across];
            int lower = 0;
            int upper = 0;
            double w = 0;
            for (int k = 0; k < last[across]; ++k) {
                const double lo = k * cell[across] + least[across];
                const double hi = (k + 1) * cell[across] + least[across];
                lower = k;
                upper = k + 1;
                w = (pos - lo) / (hi - lo);
                if (pos - lo > 0.0001 && hi - pos > 0.0001) break;
                upper = k;
                if (std::abs(lo - pos) < 0.0001) break;
                lower = upper = k + 1;
                if (std::abs(hi - pos) < 0.0001) break;
            }
            // Data X, Y, Z and the value of a node of the plane.
            const auto nodeAt = [&](int i, int j) -> std::array<double, 4> {
                const auto on = [&](int layer) -> std::array<double, 4> {
                    std::array<int, 3> at{};
                    at[first] = i, at[second] = j, at[across] = layer;
                    const auto [x, y, z] = at;
                    if (badAt(d, x, y, z)) return {missing, missing, missing, missing};
                    return {d.Reg4DX(x, y, z), d.Reg4DY(x, y, z), d.Reg4DZ(x, y, z), d.Reg4DV(x, y, z)};
                };
                auto node = on(lower);
                const auto above = on(upper);
                if (lower == upper || bad(node[3]) || bad(above[3])) return bad(above[3]) ? above : node;
                for (std::size_t k = 0; k < 4; ++k)
                    node[k] += (above[k] - node[k]) * w;
                return node;
            };
            const auto value = [&](int i, int j) { return nodeAt(i, j)[3]; };
            const auto vertexAt = [&](double u, double v) {
                Triple p{};
                p[across] = pos, p[first] = u, p[second] = v;
                upright(list, context, p);
            };
            const int i0 = slice.FirstBegin == 0 ? 0 : slice.FirstBegin - 1;
            const int i1 = slice.FirstEnd == 0 ? last[first] : slice.FirstEnd - 1;
            const int j0 = slice.SecondBegin == 0 ? 0 : slice.SecondBegin - 1;
            const int j1 = slice.SecondEnd == 0 ? last[second] : slice.SecondEnd - 1;
            if (slice.ShowColor) {
                list.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
                list.glShadeModel(GL_SMOOTH);
                const bool hasLines = slice.ShowCont || slice.ShowVect;
                if (hasLines) list.glEnable(GL_POLYGON_OFFSET_FILL);
                if (hasLines) list.glPolygonOffset(1, 1);
                for (int i = i0; i < i1; ++i)
                    for (int j = j0; j < j1; ++j) {
                        bool hole = false;
                        for (const auto& [a, b] : cornersOf(i, j))
                            hole = hole || bad(value(a, b));
                        if (hole) continue;
                        list.glBegin(GL_QUADS);
                        list.glNormal3d(face[0], face[1], face[2]);
                        for (const auto& [a, b] : cornersOf(i, j)) {
                            const auto node = nodeAt(a, b);
                            Rgb color;
                            if (graph.FillStyle == 5)
                                ValueToRGB(graph, node[3], graph.MInv, graph.MaxV - graph.MInv, color);
                            if (graph.FillStyle == 3)
                                color = gradient(node[3], graph.MInv, graph.MaxV, graph.FirstColor, graph.SecondColor);
                            list.glColor3d(color.r, color.g, color.b);
                            vertexAt(node[first], node[second]);
                        }
                        list.glEnd();
                    }
                if (hasLines) list.glDisable(GL_POLYGON_OFFSET_FILL);
                list.glEnable(GL_LIGHTING);
            }
            if (slice.ShowCont)
                contours(
                    list, context,
                    {i1 - i0 + 1, j1 - j0 + 1, cell[first], cell[second], (i0 - 1) * cell[first] + least[first],
                     (j0 - 1) * cell[second] + least[second]},
                    graph.LineWidth,
                    {slice.ContLevels / context.scaling.ScaleV, 4, slice.ContColor, slice.ContColor, {}},
                    [&](int i, int j) { return value(i0 + i, j0 + j); }, vertexAt);
            if (!slice.ShowVect) continue;
            if (graph.Material != scene::neon) beginSmooth(list, true);
            color3f(list, across == 2 ? 0 : slice.VectColor);
            for (int i = i0 + 1; i < i1; ++i)
                for (int j = j0 + 1; j < j1; ++j) {
                    const auto slope = slopeAt(value, i, j);
                    if (!slope) continue;
                    const auto node = nodeAt(i, j);
                    list.glBegin(GL_LINES);
                    vertexAt(node[first], node[second]);
                    vertexAt(node[first] + (*slope)[0], node[second] + (*slope)[1]);
                    list.glEnd();
                }
            endSmooth(list);
        }
    };
    slicesAcross(graph.SlicesZ, 2, 0, 1, {0, 1, 0});
    slicesAcross(graph.SlicesY, 1, 0, 2, {0, 0, 1});
    slicesAcross(graph.SlicesX, 0, 1, 2, {1, 0, 0});
    volumeMarks(list, graph, context);
}

}  // namespace tessaplot::graphs
