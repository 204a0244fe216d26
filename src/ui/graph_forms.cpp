#include "ui/graph_forms.h"

#include "base/failure.h"
#include "ui/color_map_dialog.h"
#include "ui/contour3d_dialog.h"
#include "ui/contour_dialog.h"
#include "ui/delaunay_dialog.h"
#include "ui/grid_dialog.h"
#include "ui/iso_surface_dialog.h"
#include "ui/point_dialog.h"
#include "ui/scatter4d_dialog.h"
#include "ui/slice_dialog.h"
#include "ui/surface_dialog.h"
#include "ui/vector4d_dialog.h"
#include "ui/vector_dialog.h"
#include "ui/vertex_dialog.h"

namespace tessaplot::ui {

namespace {

template <class Dialog>
std::unique_ptr<Form> make(core::AppState& state) {
    return std::make_unique<Dialog>(state);
}

struct Entry {
    int graphType;
    std::unique_ptr<Form> (*make)(core::AppState& state);
};

namespace type = graphs::graph_type;

constexpr Entry entries[]{
    {type::surface, make<frmF12>},     {type::point, make<frmF16>},     {type::colorMap, make<frmF22>},
    {type::contour, make<frmF23>},     {type::vector, make<frmF24>},    {type::contour3D, make<frmF25>},
    {type::vertexModel, make<frmF27>}, {type::gridModel, make<frmF28>}, {type::delaunay, make<frmF32>},
    {type::scatter4D, make<frmF29>},   {type::vector4D, make<frmF30>},  {type::slice4D, make<frmF31>},
    {type::isoSurface, make<frmF33>},
};

}  // namespace

std::unique_ptr<Form> makeGraphForm(core::AppState& state, int graphType) {
    for (const Entry& entry : entries)
        if (entry.graphType == graphType) return entry.make(state);
    throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                        "There is no dialog for graphs of kind " + std::to_string(graphType) + ".");
}

}  // namespace tessaplot::ui
