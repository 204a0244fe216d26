#pragma once

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>

#include "core/app_state.h"
#include "data/data_kind.h"
#include "graphs/graph.h"

namespace tessaplot::samples {

/// The four columns of a data row.
struct Row {
    double first = 0;
    double second = 0;
    double third = 0;
    double fourth = 0;
};

/// Puts one sample document together and writes it the way the program saves.
class SampleBuilder {
 public:
    explicit SampleBuilder(int sceneMode);

    /// A regular surface of `rows` by `columns` nodes; `node(u, v)` is asked with u and v from 0 to 1.
    void regularSurface(data::DataKind kind, int rows, int columns, const std::function<Row(double, double)>& node);
    /// Adds a graph of a kind with its steps set for the data; the reference is good until the next one is added.
    graphs::Cls9& add(int graphType, const std::string& name);
    void titles(const std::string& x, const std::string& y, const std::string& z);
    core::AppState& state() { return state_; }

    void write(const std::filesystem::path& path) const;

 private:
    core::AppState state_;
    int lastU_ = 1;
    int lastV_ = 1;
};

}  // namespace tessaplot::samples
