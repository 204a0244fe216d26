"""W5 to W7: triangulation, contours, iso-surface."""
import numpy

from inputs import CONTOUR_LEVELS, ISO_LEVEL, axis, dented_ball, scattered, wavy_field
from routine import Routine

TRIANGULATED = numpy.array(scattered(1005, 4900))[:, :2]
CONTOURED_SIDE = 500
VOLUME_SIDE = 101


def triangles(count):
    return f"{count} triangles"


def scipy_delaunay():
    from scipy.spatial import Delaunay
    return Routine(lambda: Delaunay(TRIANGULATED).simplices, lambda made: triangles(len(made)))


def matplotlib_delaunay():
    from matplotlib.tri import Triangulation
    x, y = numpy.ascontiguousarray(TRIANGULATED.T)
    return Routine(lambda: Triangulation(x, y).triangles, lambda made: triangles(len(made)))


def vtk_delaunay():
    from vtkmodules.util.numpy_support import numpy_to_vtk
    from vtkmodules.vtkCommonCore import vtkPoints
    from vtkmodules.vtkCommonDataModel import vtkPolyData
    from vtkmodules.vtkFiltersCore import vtkDelaunay2D
    numbers = numpy.column_stack([TRIANGULATED, numpy.zeros(len(TRIANGULATED))])

    def work():
        points = vtkPoints()
        points.SetData(numpy_to_vtk(numbers))
        cloud = vtkPolyData()
        cloud.SetPoints(points)
        delaunay = vtkDelaunay2D()
        delaunay.SetInputData(cloud)
        delaunay.Update()
        return delaunay.GetOutput()

    return Routine(work, lambda made: triangles(made.GetNumberOfPolys()))


def contourpy_lines(way, chunks):
    from contourpy import LineType, contour_generator
    x = numpy.array(axis(CONTOURED_SIDE))
    field = wavy_field(CONTOURED_SIDE)
    more = {} if way == "serial" else {"thread_count": int(chunks), "chunk_count": int(chunks)}

    def work():
        generator = contour_generator(x, x, field, name=way, line_type=LineType.Separate, **more)
        return [line for level in CONTOUR_LEVELS for line in generator.lines(level)]

    return Routine(work, lambda lines: f"{sum(len(line) - 1 for line in lines)} segments, {len(lines)} lines")


def vtk_image(values, low, spacing):
    """An array [z][y][x] as VTK sees it."""
    from vtkmodules.util.numpy_support import numpy_to_vtk
    from vtkmodules.vtkCommonDataModel import vtkImageData
    image = vtkImageData()
    image.SetDimensions(values.shape[::-1])
    image.SetOrigin(low, low, low)
    image.SetSpacing(spacing, spacing, spacing)
    image.GetPointData().SetScalars(numpy_to_vtk(values.ravel(), deep=True))
    return image


def vtk_lines():
    from vtkmodules.vtkFiltersCore import vtkFlyingEdges2D, vtkStripper
    image = vtk_image(wavy_field(CONTOURED_SIDE)[numpy.newaxis], -10, 20 / (CONTOURED_SIDE - 1))

    def work():
        edges = vtkFlyingEdges2D()
        edges.SetInputData(image)
        for number, level in enumerate(CONTOUR_LEVELS):
            edges.SetValue(number, level)
        joined = vtkStripper()
        joined.SetMaximumLength(CONTOURED_SIDE**2)
        joined.SetInputConnection(edges.GetOutputPort())
        joined.Update()
        return joined.GetOutput()

    def check(made):
        lines = made.GetNumberOfLines()
        return f"{made.GetLines().GetNumberOfConnectivityIds() - lines} segments, {lines} lines"

    return Routine(work, check)


def iso_check(number_of_triangles, points):
    return f"{triangles(number_of_triangles)}, {points} points"


def skimage_iso_surface():
    from skimage.measure import marching_cubes
    volume = dented_ball(VOLUME_SIDE).astype(numpy.float32)  # It would convert other numbers.
    spacing = (2 / (VOLUME_SIDE - 1),) * 3
    return Routine(lambda: marching_cubes(volume, ISO_LEVEL, spacing=spacing),
                   lambda made: iso_check(len(made[1]), len(made[0])))


def vtk_iso_surface(filter_name):
    import vtkmodules.vtkFiltersCore
    image = vtk_image(dented_ball(VOLUME_SIDE), -1, 2 / (VOLUME_SIDE - 1))

    def work():
        surface = getattr(vtkmodules.vtkFiltersCore, filter_name)()
        surface.SetInputData(image)
        surface.SetValue(0, ISO_LEVEL)
        surface.ComputeNormalsOn()
        surface.ComputeGradientsOff()
        surface.ComputeScalarsOff()
        surface.Update()
        return surface.GetOutput()

    def check(made):
        if made.GetPointData().GetNormals() is None:
            raise SystemExit("VTK made no normals")
        return iso_check(made.GetNumberOfPolys(), made.GetNumberOfPoints())

    return Routine(work, check)
