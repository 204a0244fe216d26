#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "base/number_text.h"
#include "data/data_panel.h"
#include "data/data_set.h"
#include "data/text_table.h"
#include "peerbench/gen.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

namespace {

constexpr std::size_t rows = 20000;

/// Reads a text table of 20,000 rows from its file into the panel, checks it there as a dialog does before it draws,
/// and reads it from there into the data set.
class TextTable : public Work {
 public:
    TextTable() : path_(std::filesystem::temp_directory_path() / "tessaplot-peerbench-w11.txt") {
        const Points points = scatteredPoints(1011, rows);
        std::FILE* file = std::fopen(path_.c_str(), "w");
        if (file == nullptr) return;
        std::fputs("RC\n200\t100\n", file);
        for (std::size_t i = 0; i < rows; ++i)
            std::fprintf(file, "%.9g\t%.9g\t%.9g\t%.9g\n", points.x[i], points.y[i], points.z[i], points.c[i]);
        std::fclose(file);
    }
    ~TextTable() override { std::filesystem::remove(path_); }

    double run(std::string& check) override {
        const auto start = std::chrono::steady_clock::now();
        data::DataPanel panel;
        data::importText(panel, data::readTextFile(path_));
        std::string fault;
        panel.CheckData(fault);
        data::ClsData set;
        data::Scaling scaling;
        set.GetData(panel, scaling, {}, {});
        const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
        double sum = 0;
        for (int row = 1; row < panel.gridRows(); ++row)
            for (int column = 1; column <= 4; ++column)
                sum += base::TextValue(panel.cell(column, row));
        char text[80];
        std::snprintf(text, sizeof text, "%dx4, sum %.4f", panel.gridRows() - 1, sum);
        check = text;
        return spent.count();
    }

 private:
    std::filesystem::path path_;
};

}  // namespace

std::unique_ptr<Work> makeW11() {
    return std::make_unique<TextTable>();
}

}  // namespace tessaplot::bench
