#include "volumes.h"

#include <array>
#include <cmath>
#include <vector>

#include "base/color.h"
#include "graphs/color_fill.h"
#include "sample_builder.h"

namespace tessaplot::samples {

namespace {

using base::packColor;
using graphs::Cls9;
using graphs::SliceSet;
using std::filesystem::path;

constexpr int equalScales = 2;
constexpr int customScales = 3;
constexpr int winter = 13;
/// A material that shines of itself: its colours are those of the legend, whichever way it faces.
constexpr int neon = 5;
constexpr int fillShape = 3;
constexpr int smoothest = 3;

constexpr int colorMapFill = 5;

struct Point {
    double x;
    double y;
    double z;
};

/// Limits of a block of nodes.
struct Block {
    Point low;
    Point high;
};

constexpr Block cube(double limit) {
    return {{-limit, -limit, -limit}, {limit, limit, limit}};
}

double distance(const Point& a, const Point& b) {
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

/// The potential of a charge at a place that is spread over a ball, so that it stays finite.
double potential(const Point& at, const Point& charge, double strength) {
    constexpr double spread = 1.1;
    return strength / std::hypot(distance(at, charge), spread);
}

/// A strong positive and a weaker negative charge.
double twoCharges(const Point& at) {
    return 10 * (potential(at, {-2, -0.8, -0.6}, 1) + potential(at, {2, 1.2, 0.8}, -0.8));
}

/// The amplitude of an electron of hydrogen in the state 3d that stands along z, in hundredths of its largest.
double orbital(const Point& at) {
    constexpr double radius = 2.25;
    const double r = distance(at, {0, 0, 0});
    const double largest = 8 * radius * radius * std::exp(-2);  // on z, two radii from the middle
    return 100 * std::abs(3 * at.z * at.z - r * r) * std::exp(-r / radius) / largest;
}

/// The wave of an electron in the state 4f that has three fold lobes about z, positive and negative.
double lobes(const Point& at) {
    const double r = distance(at, {0, 0, 0});
    return 0.4 * (at.x * (at.x * at.x - 3 * at.y * at.y) + 0.5 * at.z * at.z * at.z) * std::exp(-r / 1.6);
}

constexpr Block heatedBlock{{0, 0, 0}, {12, 12, 8}};

/// The temperature in the block: hot at the wall x = 0 around its upper middle, cooled from the floor and by a pipe.
double heat(const Point& at) {
    const double wall =
        90 * std::exp(-at.x / 3.5) * std::exp(-std::pow((at.y - 5) / 3.5, 2) - std::pow((at.z - 4) / 3, 2));
    const double pipe = 28 * std::exp(-(std::pow(at.x - 7, 2) + std::pow(at.z - 1.5, 2)) / 2);
    return 20 + wall + 2.5 * at.z - pipe;
}

/// The speed of the air in a vortex that leans and widens with its height.
double vortex(const Point& at) {
    const double height = at.z + 4;
    const double middleX = 0.22 * height - 0.8;
    const double middleY = 0.9 * std::sin(0.45 * height) - 0.4;
    const double core = 0.7 + 0.16 * height;
    const double r = std::hypot(at.x - middleX, at.y - middleY);
    return 40 * (r / core) * std::exp(0.5 * (1 - std::pow(r / core, 2))) / (1 + 0.06 * height);
}

template <class Field>
void sampleField(SampleBuilder& sample, const std::array<int, 3>& count, const Block& block, const Field& field) {
    sample.state().scaling.ScaleMode = equalScales;
    scene::Cls3& axis = sample.state().TheAxis;
    axis.LabelNumX = axis.LabelNumY = axis.LabelNumZ = 4;
    sample.regularVolume(count, [&](double u, double v, double w) {
        const Point at{between(block.low.x, block.high.x, u), between(block.low.y, block.high.y, v),
                       between(block.low.z, block.high.z, w)};
        return Row{at.x, at.y, at.z, field(at)};
    });
}

struct Stop {
    double position;
    int red;
    int green;
    int blue;
};

/// A ramp of this document's own, from deep blue over a light middle to brick red.
void takeFairRamp(Cls9& graph) {
    constexpr std::array<Stop, 5> stops{
        {{0, 60, 90, 170}, {20, 130, 170, 210}, {45, 235, 225, 190}, {75, 240, 160, 70}, {100, 190, 50, 40}}};
    graph.ColorNum = static_cast<int>(stops.size());
    for (int i = 0; i < graph.ColorNum; ++i) {
        const Stop& stop = stops[static_cast<std::size_t>(i)];
        graph.ColorPos(i) = stop.position;
        graph.ColorR(i) = stop.red;
        graph.ColorG(i) = stop.green;
        graph.ColorB(i) = stop.blue;
    }
}

/// "Fair" is a ramp of this document's own.
void useRamp(Cls9& graph, const std::string& ramp) {
    graph.FillStyle = colorMapFill;
    graph.ColorName = ramp;
    if (ramp == "Fair")
        takeFairRamp(graph);
    else
        graphs::ApplyNamedMap(graph, ramp);
}

Cls9& addSlices(SampleBuilder& sample, const std::string& ramp) {
    Cls9& slices = sample.add(graphs::graph_type::slice4D, "4D Slice ");
    slices.LineWidth = 1;
    slices.Material = neon;
    useRamp(slices, ramp);
    return slices;
}

/// Adds a slice that shows its colours. Limits that are not set are those of the grid.
SliceSet::Slice& addSlice(SliceSet& slices, double position) {
    SliceSet::Slice& slice = slices[++slices.Num];
    slice.Position = position;
    slice.ShowColor = true;
    slice.VectColor = packColor(0, 0, 0);
    return slice;
}

void addContours(SliceSet::Slice& slice, double interval) {
    slice.ShowCont = true;
    slice.ContLevels = interval;
}

void addIsoSurface(SampleBuilder& sample, double value, const std::string& ramp) {
    Cls9& surface = sample.add(graphs::graph_type::isoSurface, "4D IsoSurface ");
    surface.IsoSurValue = value;
    useRamp(surface, ramp);
}

Cls9& addVectors(SampleBuilder& sample, base::PackedColor color) {
    Cls9& vectors = sample.add(graphs::graph_type::vector4D, "4D Vector ");
    vectors.Vect4DColor = color;
    vectors.Material = winter;
    return vectors;
}

void writeScatter(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {13, 13, 13}, cube(12), orbital);
    Cls9& scatter = sample.add(graphs::graph_type::scatter4D, "4D Scatter ");
    scatter.Scat4DColor = packColor(60, 120, 230);
    sample.write(folder / "4dscatter.tsp");
}

void writeVectors(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {9, 9, 9}, cube(4), twoCharges);
    addVectors(sample, packColor(230, 120, 40));
    sample.write(folder / "4dvector.tsp");
}

void writeSlice(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {21, 21, 17}, heatedBlock, heat);
    Cls9& slices = addSlices(sample, "Rainbow");
    sample.titles("Length", "Width", "Height");
    addSlice(slices.SlicesX, 1);
    addSlice(slices.SlicesY, 5);
    addSlice(slices.SlicesZ, 1.5);
    sample.write(folder / "4dslice.tsp");
}

/// Probes scattered through the vortex, gridded, with the probes as marks.
void writeScatteredSlices(const path& folder) {
    constexpr double limit = 4;
    std::vector<Row> probes;
    for (int n = 1; n <= 1500; ++n) {
        const Point at{between(-limit, limit, radicalInverse(n, 2)), between(-limit, limit, radicalInverse(n, 3)),
                       between(-limit, limit, radicalInverse(n, 5))};
        probes.push_back({at.x, at.y, at.z, vortex(at)});
    }
    SampleBuilder sample(scene::mode4D);
    sample.irregularVolume(probes, {21, 21, 21, -limit, limit});
    Cls9& slices = addSlices(sample, "Rainbow");
    slices.ShowIrregData = true;
    slices.Material = winter;
    for (const double height : {-4.0, 0.0, 4.0})
        addSlice(slices.SlicesZ, height);
    sample.write(folder / "4dslice2.tsp");
}

/// Slices across Z as steps, each cut to less than the one below it, before a whole one across X.
void writeLimitedSlices(const path& folder) {
    constexpr int nodes = 21;
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {nodes, nodes, nodes}, cube(4), vortex);
    Cls9& slices = addSlices(sample, "Rainbow");
    for (int step = 0; step < 4; ++step) {
        SliceSet::Slice& slice = addSlice(slices.SlicesZ, -4 + 2.4 * step);
        slice.FirstBegin = slice.SecondBegin = 1;
        slice.FirstEnd = nodes - 5 * step;
        slice.SecondEnd = nodes;
    }
    addSlice(slices.SlicesX, -4);
    sample.write(folder / "4d_slice.tsp");
}

void writeContours(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {21, 21, 21}, cube(4), twoCharges);
    Cls9& slices = addSlices(sample, "Rainbow");
    addContours(addSlice(slices.SlicesX, -2), 0.5);
    addContours(addSlice(slices.SlicesY, 1.2), 0.5);
    addContours(addSlice(slices.SlicesZ, -0.6), 0.5);
    sample.write(folder / "4d_slice_contour.tsp");
}

void writeContoursAndVectors(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {15, 15, 12}, heatedBlock, heat);
    sample.titles("Length", "Width", "Height");
    Cls9& slices = addSlices(sample, "Fair");
    for (SliceSet::Slice* slice :
         {&addSlice(slices.SlicesX, 1), &addSlice(slices.SlicesY, 5), &addSlice(slices.SlicesZ, 1.5)}) {
        addContours(*slice, 10);
        slice->ShowVect = true;
    }
    sample.write(folder / "4d_slice_vector.tsp");
}

void writeSlicesAndIsoSurface(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {25, 25, 25}, cube(12), orbital);
    Cls9& slices = addSlices(sample, "Rainbow");
    addSlice(slices.SlicesX, 0);
    addSlice(slices.SlicesZ, 0);
    addIsoSurface(sample, 38, "Rainbow");
    sample.write(folder / "4d_slice_isofurface.tsp");
}

void writeVectorsAndIsoSurface(const path& folder) {
    SampleBuilder sample(scene::mode4D);
    sampleField(sample, {12, 12, 12}, cube(4), twoCharges);
    addVectors(sample, packColor(240, 130, 50));
    addIsoSurface(sample, 3.2, "Rainbow");
    addIsoSurface(sample, -3, "Rainbow");
    sample.write(folder / "4d_vector_isosurface.tsp");
}

/// A surface over x and y whose colour is a fourth quantity, not its height.
void writeColoredSurface(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    data::Scaling& scaling = sample.state().scaling;
    scaling.ScaleMode = customScales;
    scaling.ScaleRatioX = scaling.ScaleRatioY = 1;
    scaling.ZoomZ = 0.25;
    sample.regularSurface(data::DataKind::RegularSurface, 61, 61, [](double u, double v) {
        const double x = between(-4, 4, u);
        const double y = between(-4, 4, v);
        const double height = 1.1 * std::exp(-(x * x + y * y) / 6) * std::cos(1.1 * x) + 0.12 * y;
        return Row{x, y, height, lobes({x, y, height})};
    });
    Cls9& surface = sample.add(graphs::graph_type::surface, "3D Surface Model");
    surface.Show = fillShape;
    surface.Smoothness = smoothest;
    useRamp(surface, "Rainbow");
    sample.write(folder / "4dsurface.tsp");
}

}  // namespace

void writeVolumes(const path& folder) {
    writeScatter(folder);
    writeVectors(folder);
    writeSlice(folder);
    writeScatteredSlices(folder);
    writeLimitedSlices(folder);
    writeContours(folder);
    writeContoursAndVectors(folder);
    writeSlicesAndIsoSurface(folder);
    writeVectorsAndIsoSurface(folder);
    writeColoredSurface(folder);
}

}  // namespace tessaplot::samples
