#include "ui/demo_table.h"

#include <array>

namespace tessaplot::ui {

namespace {

constexpr std::array table{
    Demo{"mnuDemo4DSliceIsoSur", "4d_slice_isofurface.tsp"},
    Demo{"mnuDemo4DVecIsoSur", "4d_vector_isosurface.tsp"},
    Demo{"mnuDemo3DCC1", "surface_3dcontour.tsp"},
    Demo{"mnuDemo3DCC2", "surface_3dcc.tsp"},
    Demo{"mnuDemo3DCCy", "surface_3dccy.tsp"},
    Demo{"mnuDemo3DCS", "surface_3dcs.tsp"},
    Demo{"mnuDemo3dsc", "surface_colormap.tsp"},
    Demo{"mnuDemo3dscc", "surfaceir_contour.tsp"},
    Demo{"mnuDemo3dSpe", "surface_rg_spe.tsp"},
    Demo{"mnuDemo4ds", "4d_slice.tsp"},
    Demo{"mnuDemo4dsc", "4d_slice_contour.tsp"},
    Demo{"mnuDemo4DSlice2", "4dslice2.tsp"},
    Demo{"mnuDemo4dSur", "4dsurface.tsp"},
    Demo{"mnuDemo4S", "4dscatter.tsp"},
    Demo{"mnuDemo4SV", "4d_slice_vector.tsp"},
    Demo{"mnuDemoCC", "color_contour.tsp"},
    Demo{"mnuDemoCV", "contour_vector.tsp"},
    Demo{"mnuDemoCyl", "cylinder.tsp"},
    Demo{"mnuDemoDelaunay", "delaunay.tsp"},
    Demo{"mnuDemoFlat", "surface_flat.tsp"},
    Demo{"mnuDemoI3", "surface.tsp"},
    Demo{"mnuDemoR3", "surface_rg.tsp"},
    Demo{"mnuDemoSG", "surface_grid.tsp"},
    Demo{"mnuDemoSlice", "4dslice.tsp"},
    Demo{"mnuDemoSph", "sphere.tsp"},
    Demo{"mnuDemoVector", "4dvector.tsp"},
    Demo{"mnuDemoVG", "grid_vertex.tsp"},
};

}  // namespace

std::span<const Demo> demos() {
    return table;
}

}  // namespace tessaplot::ui
