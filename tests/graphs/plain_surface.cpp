#include "plain_surface.h"

#include <array>
#include <cmath>
#include <vector>

#include "geometry/contour.h"
#include "graphs/color_fill.h"

namespace tessaplot::graphs {

namespace {

using Triple = std::array<double, 3>;
using Table = std::vector<std::vector<Triple>>;

constexpr double missing = 0.12345;

Table table(int lastI, int lastJ) {
    return Table(std::size_t(lastI) + 1, std::vector<Triple>(std::size_t(lastJ) + 1));
}

Triple sum(std::initializer_list<Triple> terms) {
    Triple total{};
    for (int k = 0; k < 3; ++k) {
        total[k] = terms.begin()[0][k];
        for (std::size_t n = 1; n < terms.size(); ++n)
            total[k] += terms.begin()[n][k];
    }
    return total;
}

Triple divided(const Triple& v, double instead) {
    double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (length == 0) length = instead;
    return {v[0] / length, v[1] / length, v[2] / length};
}

Triple normal(const Triple& p, const Triple& q, const Triple& r, const Triple& s) {
    const Triple a{p[0] - q[0], p[1] - q[1], p[2] - q[2]};
    const Triple b{r[0] - s[0], r[1] - s[1], r[2] - s[2]};
    return divided({a[1] * b[2] - a[2] * b[1], a[2] * b[0] - b[2] * a[0], b[1] * a[0] - a[1] * b[0]}, 1.0 / 10000);
}

/// The colour variables of one drawing.
struct Colors {
    Cls9& graph;
    Rgb now{};

    Rgb gradient(double value, double lower, double upper) const {
        const double span = upper - lower == 0 ? 1.0 / 1000000 : upper - lower;
        const Rgb f = ColorToRGB(graph.FirstColor);
        const Rgb s = ColorToRGB(graph.SecondColor);
        return {(value - lower) * (f.r - s.r) / span + s.r, (value - lower) * (f.g - s.g) / span + s.g,
                (value - lower) * (f.b - s.b) / span + s.b};
    }
    Rgb at(const Triple& node, double value, bool overlay) {
        const int style = graph.FillStyle;
        if (style == 1 && !overlay) now = gradient(node[0], graph.MinY, graph.MaxY);
        if (style == 2 && !overlay) now = gradient(node[2], graph.MinX, graph.MaxX);
        if (style == 3) now = gradient(node[1], graph.MinZ, graph.MaxZ);
        if (style == 4 && !overlay) now = ColorToRGB(graph.SecondColor);
        const double range = graph.MaxC - graph.MinC == 0 ? 1.0 / 1000000 : graph.MaxC - graph.MinC;
        if (style == 5) ValueToRGB(graph, value, graph.MinC, range, now);
        return now;
    }
};

void shade(gl::DisplayList& list, int smoothness) {
    if (smoothness == 1) list.glShadeModel(GL_FLAT);
    if (smoothness == 2) list.glShadeModel(GL_SMOOTH);
    if (smoothness == 3) list.glShadeModel(GL_SMOOTH);
}

Table vertexNormals(const Cls9& graph, const Table& P, const Table& FN) {
    const int U = graph.StepU;
    const int V = graph.StepV;
    Table VN = table(U, V);
    VN[0][0] = FN[0][0];
    VN[0][V] = FN[0][V - 1];
    VN[U][0] = FN[U - 1][0];
    VN[U][V] = FN[U - 1][V - 1];
    for (int j = 1; j < V; ++j)
        VN[0][j] = sum({FN[0][j], FN[0][j - 1]});
    for (int j = 1; j < V; ++j)
        VN[U][j] = sum({FN[U - 1][j], FN[U - 1][j - 1]});
    for (int i = 1; i < U; ++i)
        VN[i][0] = sum({FN[i][0], FN[i - 1][0]});
    for (int i = 1; i < U; ++i)
        VN[i][V] = sum({FN[i][V - 1], FN[i - 1][V - 1]});
    const Triple tolerance{(graph.MaxY - graph.MinY) / U * 8 / 10, (graph.MaxZ - graph.MinZ) / V * 8 / 10,
                           (graph.MaxX - graph.MinX) / (U > V ? U : V) * 8 / 10};
    const auto meet = [&](const Triple& a, const Triple& b) {
        return std::abs(a[0] - b[0]) < tolerance[0] && std::abs(a[1] - b[1]) < tolerance[1] &&
               std::abs(a[2] - b[2]) < tolerance[2];
    };
    if (meet(P[0][V], P[0][0]) && meet(P[U][V], P[U][0])) {
        VN[0][0] = VN[0][V] = sum({FN[0][0], FN[0][V - 1]});
        VN[U][0] = VN[U][V] = sum({FN[U - 1][0], FN[U - 1][V - 1]});
        for (int i = 1; i < U; ++i)
            VN[i][0] = VN[i][V] = sum({FN[i][0], FN[i - 1][0], FN[i][V - 1], FN[i - 1][V - 1]});
    }
    if (meet(P[U][0], P[0][0]) && meet(P[U][V], P[0][V])) {
        VN[0][0] = VN[U][0] = sum({FN[0][0], FN[U - 1][0]});
        VN[0][V] = VN[U][V] = sum({FN[0][V - 1], FN[U - 1][V - 1]});
        for (int j = 1; j < V; ++j)
            VN[0][j] = VN[U][j] = sum({FN[0][j], FN[0][j - 1], FN[U - 1][j], FN[U - 1][j - 1]});
    }
    for (int i = 1; i < U; ++i)
        for (int j = 1; j < V; ++j)
            VN[i][j] = sum({FN[i][j], FN[i - 1][j], FN[i][j - 1], FN[i - 1][j - 1]});
    for (auto& row : VN)
        for (Triple& v : row)
            v = divided(v, 1);
    return VN;
}

void contours(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    const scene::SceneState& at = context.scene;
    const int m = graph.StepU + 1;
    const int n = graph.StepV + 1;
    std::vector<double> table(std::size_t(m * n));
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < n; ++j)
            table[std::size_t(i * n + j)] = context.data.Reg3DC(i, j);
    const double dx = (graph.MaxX - graph.MinX) / graph.StepU;
    const double dy = (graph.MaxY - graph.MinY) / graph.StepV;
    const auto lines = geometry::CContour::Contour(
        {m, n, dy, dx, graph.MinY - dy, graph.MinX - dx, table, std::size_t(n)}, {graph.ContourLevel, 4, 0, 0, {}});
    list.glDisable(GL_LIGHTING);
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glLineWidth(static_cast<float>(graph.LineWidth));
    for (const auto& level : lines.levels) {
        list.glColor3d(0, 0, 0);
        for (const auto& segment : lines.of(level)) {
            list.glColor3d(150, 150, 150);
            list.glBegin(GL_LINES);
            for (const auto& p : {segment.from, segment.to})
                list.glVertex3d(p.A - at.SceneCenterX, graph.MinZ - 3.0 - at.SceneCenterY, p.B - at.SceneCenterZ);
            list.glEnd();
        }
    }
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
    list.glEnable(GL_LIGHTING);
}

void arrows(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    const scene::SceneState& at = context.scene;
    const double plane = graph.MinZ - 3.0 - at.SceneCenterY;
    const auto vertex = [&](double x, double y) { list.glVertex3d(y - at.SceneCenterX, plane, x - at.SceneCenterZ); };
    list.glDisable(GL_LIGHTING);
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
    list.glColor3f(0, 0, 0);
    for (int i = 1; i < graph.StepU; ++i)
        for (int j = 1; j < graph.StepV; ++j) {
            const double h = d.Reg3DC(i, j);
            const double w = d.Reg3DC(i - 1, j);
            const double s = d.Reg3DC(i, j - 1);
            const double e = d.Reg3DC(i + 1, j);
            const double n = d.Reg3DC(i, j + 1);
            if (h == missing || w == missing || s == missing || e == missing || n == missing) continue;
            const double tipX = d.Reg3DX(i, j) + ((h - w) + (e - h)) / 2;
            const double tipY = d.Reg3DY(i, j) + ((h - s) + (n - h)) / 2;
            list.glBegin(GL_LINES);
            vertex(d.Reg3DX(i, j), d.Reg3DY(i, j));
            vertex(tipX, tipY);
            list.glEnd();
            for (int t = 0; t < 20; ++t) {
                const double y = tipY + std::sin(t * 0.31416) * 0.04;
                list.glBegin(GL_TRIANGLES);
                vertex(tipX + std::cos(t * 0.31416) * 0.04, y);
                vertex(tipX + std::cos((t + 1) * 0.31416) * 0.04, y);
                vertex(tipX, tipY);
                list.glEnd();
            }
        }
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
    list.glEnable(GL_LIGHTING);
}

}  // namespace

void plainSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    const scene::SceneState& at = context.scene;
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
    for (const bool overlay : {false, true}) {
        if (overlay) {
            if (graph.ShowTex) list.glDisable(GL_TEXTURE_2D);
            if (graph.ShowTrans) list.glDisable(GL_BLEND);
            if (graph.ShowIrregData)
                for (int p = 0; p < d.Points; ++p) {
                    scene::Cls2 marker = scene::Cls2::init(d.Irreg3DY(p), d.Irreg3DZ(p), d.Irreg3DX(p));
                    marker.Color = base::packColor(255, 255, 0);
                    marker.size = 3;
                    marker.Draw(list, at);
                }
            if (!graph.ShowColormap) break;
        }
        for (int i = 0; i < U; ++i)
            for (int j = 0; j < V; ++j) {
                const std::array<std::array<int, 2>, 4> corners{{{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}};
                std::array<Rgb, 4> rgb;
                bool hole = false;
                for (std::size_t k = 0; k < 4; ++k) {
                    const Triple& node = P[corners[k][0]][corners[k][1]];
                    rgb[k] = colors.at(node, d.Reg3DC(corners[k][0], corners[k][1]), overlay);
                    for (const double coordinate : node)
                        hole = hole || coordinate == missing;
                }
                if (overlay && hole) continue;
                list.glBegin(GL_QUADS);
                const bool flat = !overlay && (graph.Smoothness == 1 || graph.Smoothness == 2);
                const bool drawn = overlay || flat || graph.Smoothness == 3;
                if (flat && !hole) list.glNormal3d(FN[i][j][0], FN[i][j][1], FN[i][j][2]);
                for (std::size_t k = 0; k < 4 && drawn && !hole; ++k) {
                    const int a = corners[k][0];
                    const int b = corners[k][1];
                    const double tu = double(U - a) / U;
                    const double tv = double(V - b) / V;
                    if (flat) list.glTexCoord2f(float(tu), float(tv));
                    if (!flat && !overlay) list.glTexCoord2d(tu, tv);
                    if (!flat) list.glNormal3d(VN[a][b][0], VN[a][b][1], VN[a][b][2]);
                    overlay ? list.glColor3d(rgb[k].r, rgb[k].g, rgb[k].b) : color(rgb[k]);
                    const double y = overlay ? graph.MinZ - 3.0 : P[a][b][1];
                    list.glVertex3d(P[a][b][0] - at.SceneCenterX, y - at.SceneCenterY, P[a][b][2] - at.SceneCenterZ);
                }
                list.glEnd();
            }
    }
    if (graph.ShowTrans) {
        list.glDisable(GL_BLEND);
        list.glDepthMask(true);
    }
    if (graph.ShowContour) contours(list, graph, context);
    if (graph.ShowVector) arrows(list, graph, context);
}

void plainTriangles(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const data::ClsData& d = context.data;
    const scene::SceneState& at = context.scene;
    std::vector<std::array<int, 3>> triangles;
    for (const geometry::Triangle& t : context.triangles)
        triangles.push_back({t.a, t.b, t.c});
    const auto point = [&](int p) { return Triple{d.Irreg3DY(p - 1), d.Irreg3DZ(p - 1), d.Irreg3DX(p - 1)}; };
    const auto vertex = [&](const Triple& p) {
        list.glVertex3d(p[0] - at.SceneCenterX, p[1] - at.SceneCenterY, p[2] - at.SceneCenterZ);
    };
    if (graph.ShowDS) {
        std::vector<Triple> faces;
        for (const auto& t : triangles)
            faces.push_back(normal(point(t[0]), point(t[2]), point(t[1]), point(t[2])));
        std::vector<Triple> normals(std::size_t(d.Points) + 1);
        for (int p = 1; p <= d.Points; ++p) {
            double held = 0;
            Triple total{};
            for (std::size_t k = 0; k < triangles.size(); ++k) {
                if (triangles[k][0] != p && triangles[k][1] != p && triangles[k][2] != p) continue;
                total = sum({total, faces[k]});
                ++held;
            }
            if (held > 0) normals[std::size_t(p)] = divided({total[0] / held, total[1] / held, total[2] / held}, 1);
        }
        shade(list, graph.Smoothness);
        Colors colors{graph};
        for (std::size_t k = 0; k < triangles.size(); ++k) {
            list.glBegin(GL_TRIANGLES);
            for (std::size_t corner = 0; corner < 3; ++corner) {
                const int p = triangles[k][corner];
                const Rgb c = colors.at(point(p), d.Irreg3DC(p - 1), false);
                list.glColor3d(c.r, c.g, c.b);
                const Triple& n = graph.Smoothness == 1 ? faces[k] : normals[std::size_t(p)];
                if (graph.Smoothness != 1 || corner == 0) list.glNormal3d(n[0], n[1], n[2]);
                vertex(point(p));
            }
            list.glEnd();
        }
    }
    if (!graph.ShowDG) return;
    const Rgb c = ColorToRGB(graph.TriColor);
    for (const auto& t : triangles) {
        list.glColor3d(c.r, c.g, c.b);
        list.glLineWidth(static_cast<float>(graph.TriWidth));
        list.glBegin(GL_LINES);
        for (const int corner : {0, 1, 1, 2, 0, 2})
            vertex(point(t[std::size_t(corner)]));
        list.glEnd();
    }
}

}  // namespace tessaplot::graphs
