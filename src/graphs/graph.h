#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/checked_array.h"
#include "base/color.h"
#include "gl/display_list.h"
#include "graphs/graph_context.h"
#include "scene/box.h"
#include "scene/point.h"

namespace tessaplot::graphs {

/// The kinds of graph that a person can add; the numbers stand in documents.
namespace graph_type {
inline constexpr int table = 4;
inline constexpr int surface = 6;
inline constexpr int point = 7;
inline constexpr int colorMap = 13;
inline constexpr int contour = 14;
inline constexpr int vector = 15;
inline constexpr int contour3D = 16;
inline constexpr int nodesOnly = 17;
inline constexpr int vertexModel = 18;
inline constexpr int gridModel = 19;
inline constexpr int delaunay = 24;
inline constexpr int scatter4D = 41;
inline constexpr int vector4D = 42;
inline constexpr int slice4D = 43;
inline constexpr int isoSurface = 44;
}  // namespace graph_type

/// Slices of a volume across one axis: slice i, counted from 1 to 50, keeps its properties at index i.
struct SliceSet {
    static constexpr int maximum = 50;

    int Num = 0;
    /// One slice: position, what it shows, and its limits as first and last index of the two axes of its plane.
    struct Slice {
        double Position = 0;
        bool ShowColor = false;
        bool ShowCont = false;
        bool ShowVect = false;
        double ContLevels = 0;
        base::PackedColor ContColor = 0;
        base::PackedColor VectColor = 0;
        int FirstBegin = 0;
        int FirstEnd = 0;
        int SecondBegin = 0;
        int SecondEnd = 0;
    };

    /// Index 0 to 50; throws SubscriptOutOfRange beyond. References stay valid for the life of the set.
    Slice& operator[](int i);
    const Slice& operator[](int i) const;

 private:
    /// All or none: made whole on first write, so that a graph without slices stays small.
    std::vector<Slice> slices_;
};

/// One plot of any kind: a flat record of presentation properties. It owns no data and draws from the one data set.
class Cls9 {
 public:
    Cls9();

    int ID = 0;
    std::string NameS;
    int GraphType = 0;
    int CoordType = 0;
    int Show = 0;        ///< Polygon mode: 1 points, 2 lines, 3 fill.
    int Smoothness = 0;  ///< 1 flat, 2 smooth, 3 smoothest.
    int Material = 0;

    int StepU = 1;  ///< Last index along the first grid axis.
    int StepV = 1;
    int StepH = 0;
    double MinU = 0, MaxU = 0, MInv = 0, MaxV = 0;

    int FillStyle = 0;
    base::PackedColor FirstColor = 0;
    base::PackedColor SecondColor = 0;
    base::PackedColor LineColor = 0;
    int LineWidth = 0;

    std::string ColorName;
    int ColorNum = 6;
    base::CheckedArray<double> ColorPos{"ColorPos"};  ///< Index 0 to 30, percent.
    base::CheckedArray<int> ColorR{"ColorR"}, ColorG{"ColorG"}, ColorB{"ColorB"};

    double PointX = 0, PointY = 0, PointZ = 0;
    base::PackedColor PointColor = 0;
    double PointSize = 0;

    bool ShowContour = false;
    bool ShowVector = false;
    bool ShowColormap = false;
    double ContourLevel = 0;
    bool ShowIrregData = false;
    int VertSize = 0;
    base::PackedColor VertColor = 0;
    base::PackedColor GridColor = 0;
    int GridWidth = 0;

    int ColorMapfilltype = 0;
    base::PackedColor ColorMapcolor1 = 0, ColorMapcolor2 = 0;
    double ContourLevels = 0;
    int ConFillType = 0;
    base::PackedColor ConColor1 = 0, ConColor2 = 0;
    int ConWidth = 0;
    double Contour3Levels = 0;
    int Con3FillType = 0;
    base::PackedColor Con3Color1 = 0, Con3Color2 = 0;
    int Con3Width = 0;
    base::PackedColor VectorColor = 0;

    bool ShowDS = false;
    bool ShowDG = false;
    base::PackedColor TriColor = 0;
    int TriWidth = 0;

    bool ShowTex = false;
    std::string TexName;
    int TexMode = 0;
    bool ShowTrans = false;
    double TransAlpha = 0;

    base::PackedColor Scat4DColor = 0;
    base::PackedColor Vect4DColor = 0;
    base::PackedColor IsoSurColor = 0;
    double IsoSurValue = 0;
    SliceSet SlicesX;  ///< `Slice4X`, `SliceX...` and the limits `Slice4YZYB`, `YZYE`, `YZZB`, `YZZE`.
    SliceSet SlicesY;  ///< `Slice4Y`, `SliceY...` and the limits `Slice4ZXXB`, `ZXXE`, `ZXZB`, `ZXZE`.
    SliceSet SlicesZ;  ///< `Slice4Z`, `SliceZ...` and the limits `Slice4XYXB`, `XYXE`, `XYYB`, `XYYE`.

    std::string ExpX, ExpY, ExpZ;

    /// Ranges that the last `GetBox` found, named after the data axis.
    double MaxY = 0, MinY = 0, MaxZ = 0, MinZ = 0, MaxX = 0, MinX = 0, MaxC = 0, MinC = 0;

    /// Node (i, j), both 0 to 200, of the table that graph type 4 draws; made on first touch.
    scene::Cls2& VertTab3D(int i, int j);

    /// The fields that the factory `init` and `Equal` take together.
    struct Basics {
        std::string strName;
        int gtpGraphType = 0;
        int dtpCoordType = 0;
        std::string strExpX, strExpY, strExpZ;
        int lngStepU = 0, lngStepV = 0;
        double sngMinU = 0, sngMaxU = 0, sngMinV = 0, sngMaxV = 0;
        int fstFillStyle = 0;
        base::PackedColor lngFirstColor = 0, lngSecondColor = 0, lngLineColor = 0;
        int lngLineWidth = 0;
        int MatType = 0;
        int shwShow = 0;
        int smtSmooth = 0;
        bool bolShowCon = false, bolShowVec = false, bolShowColormap = false;
        double lngConLevel = 0;
    };

    /// A new graph with these fields; the expressions are dropped.
    static Cls9 init(int lngID, const Basics& basics);
    /// Writes the same fields into this graph, but for the ID; the expressions are kept.
    void Equal(const Basics& basics);
    /// Copies presentation, ranges, point, texture and iso-surface; ID, StepH, expressions and colour map stay.
    void EqualTo(const Cls9& other);
    /// The full copy of properties; ID, StepH, ranges, point and expressions stay. A slice count above 50 or a stop
    /// count above 31 throws SubscriptOutOfRange part way.
    void TabEqualTo(const Cls9& other);

    /// Fills the range members from the data set and returns the box in scene axes. Arrays that are not allocated hold
    /// nothing, so that the box of an empty data set is inverted. Throws SubscriptOutOfRange for arrays smaller than
    /// the graph's steps, DivisionByZero for a point while there are no scales.
    scene::Cls1 GetBox(const GraphContext& context);
    /// Emits the graph. Steps of 0 become 1 and a named ramp is loaded; both stay. The state set last is left to the
    /// next graph. Throws SubscriptOutOfRange for a data set smaller than the graph's steps.
    void Draw(gl::DisplayList& list, const GraphContext& context);
    /// Emits the colour bar with its numbers in percent of the picture, for the data set's range that belongs to the
    /// fill. Kinds and fills without a range have no bar. An empty colour name becomes "Rainbow".
    void DrawLegend(gl::DisplayList& list, const GraphContext& context);

 private:
    std::unordered_map<int, scene::Cls2> vertexTable_;
};

/// The fixed label of a kind in the graph list, with its trailing blanks; empty for a kind that has no entry. A point
/// is labelled with its position by the axes of the mode.
std::string listLabel(const Cls9& graph, int sceneMode);

}  // namespace tessaplot::graphs
