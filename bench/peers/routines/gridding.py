"""W1 to W4: scattered points onto a lattice."""
import ctypes

import numpy

from inputs import lattice, scattered
from routine import Routine


def columns(seed, count):
    """x, y, value and colour, each an array of its own."""
    return [numpy.ascontiguousarray(column) for column in numpy.array(scattered(seed, count)).T]


def rms(*results):
    return "rms " + " ".join(f"{numpy.sqrt(numpy.mean(result**2)):.6f}" for result in results)


class GdalGrid:
    """GDALGridCreate on arrays, without files: node centres where ours are."""
    DOUBLES = 7

    def __init__(self, options, x, y, side):
        self.library = ctypes.CDLL("libgdal.so.32")
        self.library.GDALAllRegister()
        self.algorithm, self.options = ctypes.c_int(), ctypes.c_void_p()
        if self.library.ParseAlgorithmAndOptions(options.encode(), ctypes.byref(self.algorithm),
                                                 ctypes.byref(self.options)):
            raise SystemExit("GDAL refuses the options")
        self.x, self.y, self.side = x, y, side

    def __call__(self, values):
        half_cell = 10 / (self.side - 1)
        low, high = ctypes.c_double(-10 - half_cell), ctypes.c_double(10 + half_cell)
        side = ctypes.c_uint(self.side)
        grid = numpy.empty((self.side, self.side))
        points = [ctypes.c_void_p(column.ctypes.data) for column in (self.x, self.y, values)]
        if self.library.GDALGridCreate(self.algorithm, self.options, ctypes.c_uint(len(values)), *points, low, high,
                                       low, high, side, side, self.DOUBLES, ctypes.c_void_p(grid.ctypes.data), None,
                                       None):
            raise SystemExit("GDAL cannot grid")
        return grid


def gdal_inverse_distance():
    x, y, value, colour = columns(1001, 10000)
    grid = GdalGrid("invdist:power=2:smoothing=0:radius1=0:radius2=0:max_points=0:min_points=0", x, y, 100)
    return Routine(lambda: (grid(value), grid(colour)), lambda grids: rms(*grids))


def scipy_inverse_distance():
    """All distances of some nodes at a time, then a product of matrices for both columns at once."""
    from scipy.spatial.distance import cdist
    x, y, value, colour = columns(1001, 10000)
    points = numpy.column_stack([x, y])
    weighted = numpy.column_stack([value, colour, numpy.ones(len(x))])
    nodes, at_once = lattice(100), 250

    def work():
        sums = numpy.empty((len(nodes), 3))
        for first in range(0, len(nodes), at_once):
            weights = cdist(nodes[first:first + at_once], points, "sqeuclidean")
            numpy.reciprocal(weights, out=weights)
            sums[first:first + at_once] = weights @ weighted
        return sums[:, :2] / sums[:, 2:]

    return Routine(work, lambda result: rms(*result.T))


def gdal_nearest(radius):
    x, y, value, _ = columns(1002, 20000)
    grid = GdalGrid(f"invdistnn:power=2:smoothing=0:radius={radius}:max_points=5:min_points=0", x, y, 200)
    return Routine(lambda: grid(value), rms)


def scipy_nearest(workers):
    from scipy.spatial import cKDTree
    x, y, value, _ = columns(1002, 20000)
    points, nodes = numpy.column_stack([x, y]), lattice(200)

    def work():
        distances, indices = cKDTree(points).query(nodes, k=5, workers=int(workers))
        weights = 1 / distances**2
        return (weights * value[indices]).sum(1) / weights.sum(1)

    return Routine(work, rms)


def scipy_multiquadric():
    from scipy.interpolate import RBFInterpolator
    x, y, value, _ = columns(1003, 500)
    points, nodes = numpy.column_stack([x, y]), lattice(100)
    return Routine(lambda: RBFInterpolator(points, value, kernel="multiquadric", epsilon=1, degree=-1)(nodes), rms)


def scipy_thin_plate():
    from scipy.interpolate import RBFInterpolator
    x, y, value, _ = columns(1004, 497)
    points, nodes = numpy.column_stack([x, y]), lattice(100)
    return Routine(lambda: RBFInterpolator(points, value, kernel="thin_plate_spline", degree=1)(nodes), rms)
