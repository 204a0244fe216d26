#pragma once

#include "graphs/emitters.h"

namespace tessaplot::graphs {

/// `value` over the largest value of the data set, which sizes the spheres of a volume. Throws DivisionByZero if that
/// is 0.
double overLargestValue(double value, const data::ClsData& data);

/// Marks the points of an irregular volume by spheres, sized by their values, if the graph shows them; other kinds of
/// data have no such points.
void emitIrregularMarks(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);

}  // namespace tessaplot::graphs
