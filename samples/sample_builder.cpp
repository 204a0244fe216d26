#include "sample_builder.h"

#include <cmath>
#include <memory>

#include "base/number_text.h"
#include "core/document.h"

namespace tessaplot::samples {

namespace {

/// Data as a person would type them: a few digits.
std::string typed(double value) {
    constexpr double digits = 1e5;
    const double rounded = std::round(value * digits) / digits;
    return base::generalText(rounded == 0 ? 0.0 : rounded);
}

}  // namespace

SampleBuilder::SampleBuilder(int sceneMode) {
    state_.scene.SceneMode = sceneMode;
    state_.TheAxis.SetDefault();
}

void SampleBuilder::setRow(int at, const Row& row) {
    state_.panel.setCell(1, at, typed(row.first));
    state_.panel.setCell(2, at, typed(row.second));
    state_.panel.setCell(3, at, typed(row.third));
    state_.panel.setCell(4, at, typed(row.fourth));
}

void SampleBuilder::regularSurface(data::DataKind kind, int rows, int columns,
                                   const std::function<Row(double, double)>& node) {
    state_.panel.selectKind(kind);
    state_.panel.setText(1, std::to_string(rows));
    state_.panel.setText(2, std::to_string(columns));
    state_.panel.layOut();
    int at = 0;
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < columns; ++j)
            setRow(++at, node(i / (rows - 1.0), j / (columns - 1.0)));
    lastU_ = rows - 1;
    lastV_ = columns - 1;
}

void SampleBuilder::irregularSurface(const std::vector<Row>& points, const Lattice& lattice) {
    data::DataPanel& panel = state_.panel;
    panel.selectKind(data::DataKind::IrregularSurface);
    panel.setText(3, std::to_string(points.size()));
    panel.setText(4, std::to_string(lattice.countX));
    panel.setText(7, std::to_string(lattice.countY));
    panel.setText(1, typed(lattice.minX));
    panel.setText(2, typed(lattice.maxX));
    panel.setText(5, typed(lattice.minY));
    panel.setText(6, typed(lattice.maxY));
    panel.layOut();
    int at = 0;
    for (const Row& point : points)
        setRow(++at, point);
    lastU_ = lattice.countX - 1;
    lastV_ = lattice.countY - 1;
}

void SampleBuilder::regularVolume(const std::array<int, 3>& count,
                                  const std::function<Row(double, double, double)>& node) {
    state_.panel.selectKind(data::DataKind::RegularVolume);
    state_.panel.setText(1, std::to_string(count[0]));
    state_.panel.setText(2, std::to_string(count[1]));
    state_.panel.setText(4, std::to_string(count[2]));
    state_.panel.layOut();
    int at = 0;
    for (int i = 0; i < count[0]; ++i)
        for (int j = 0; j < count[1]; ++j)
            for (int k = 0; k < count[2]; ++k)
                setRow(++at, node(i / (count[0] - 1.0), j / (count[1] - 1.0), k / (count[2] - 1.0)));
    lastU_ = count[0] - 1;
    lastV_ = count[1] - 1;
    lastH_ = count[2] - 1;
}

void SampleBuilder::irregularVolume(const std::vector<Row>& points, const VolumeLattice& lattice) {
    data::DataPanel& panel = state_.panel;
    panel.selectKind(data::DataKind::IrregularVolume);
    panel.setText(3, std::to_string(points.size()));
    panel.setText(4, std::to_string(lattice.countX));
    panel.setText(7, std::to_string(lattice.countY));
    panel.setText(10, std::to_string(lattice.countZ));
    for (const int box : {1, 5, 8}) {
        panel.setText(box, typed(lattice.minimum));
        panel.setText(box + 1, typed(lattice.maximum));
    }
    panel.layOut();
    int at = 0;
    for (const Row& point : points)
        setRow(++at, point);
    lastU_ = lattice.countX - 1;
    lastV_ = lattice.countY - 1;
    lastH_ = lattice.countZ - 1;
}

graphs::Cls9& SampleBuilder::add(int graphType, const std::string& name) {
    auto graph = std::make_shared<graphs::Cls9>();
    graph->ID = ++state_.LastGraphId;
    graph->GraphType = graphType;
    graph->NameS = name;
    graph->StepU = lastU_;
    graph->StepV = lastV_;
    graph->StepH = lastH_;
    graph->Material = 13;
    state_.ShownGraphs.Graphs.push_back(graph);
    return *graph;
}

void SampleBuilder::titles(const std::string& x, const std::string& y, const std::string& z) {
    state_.TheAxis.TitleX = x;
    state_.TheAxis.TitleY = y;
    state_.TheAxis.TitleZ = z;
}

void SampleBuilder::write(const std::filesystem::path& path) const {
    std::filesystem::remove(path);
    core::writeDocumentFile(path, core::documentText(core::partsOf(state_, state_.ShownGraphs)));
}

double radicalInverse(int n, int base) {
    double value = 0;
    double digit = 1;
    for (; n > 0; n /= base) {
        digit /= base;
        value += digit * (n % base);
    }
    return value;
}

}  // namespace tessaplot::samples
